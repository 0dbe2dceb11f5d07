#!/usr/bin/env python3
"""The include rule held against small trees that break it, so that it cannot pass by seeing nothing."""

import pathlib
import tempfile
import unittest

import include_rule

GOOD = {
    "resources/string_table.h": "#include <string_view>\n",
    "resources/icons/icons.h": "#include <QIcon>\n",
    "text/disk_files.h": "#include <sys/stat.h>\n",
    "model/store.h": '#include "text/disk_files.h"\n',
    "playback/player.h": "#include <string>\n",
    "playback/gst/pipeline.cpp": '#include <gst/gst.h>\n#include <fluidsynth.h>\n#include "playback/player.h"\n',
    "playback/gst/search.cpp": "#include <filesystem>\n",
    "document/document.h": '#include "playback/player.h"\n#include "model/store.h"\n',
    "views/playlist_view.cpp": '#include <QTableView>\n#include "document/document.h"\n#include "playlist_view.moc"\n',
    "app/main.cpp": '#include "playback/gst/pipeline.cpp"\n#include "views/playlist_view.cpp"\n',
}


class IncludeRuleTest(unittest.TestCase):
    def complaints(self, extra):
        with tempfile.TemporaryDirectory() as folder:
            source = pathlib.Path(folder)
            for name, text in {**GOOD, **extra}.items():
                (source / name).parent.mkdir(parents=True, exist_ok=True)
                (source / name).write_text(text, "utf-8")
            return include_rule.complaints(source)

    def assert_refused(self, name, line, reason):
        found = self.complaints({name: f"#include <string>\n{line}\n"})
        self.assertEqual(len(found), 1, found)
        self.assertIn(f"src/{name}:2:", found[0])
        self.assertIn(reason, found[0])

    def test_a_tree_in_order_gets_no_complaint(self):
        self.assertEqual(self.complaints({}), [])

    def test_every_arrow_upward_is_refused(self):
        tops = [f"{room}/a.h" for room in include_rule.ROOMS]
        for low in range(1, len(tops)):
            for high in range(low):
                with self.subTest(include=tops[high], by=tops[low]):
                    extra = {tops[high]: "", tops[low]: f'#include "{tops[high]}"\n'}
                    self.assertEqual(len(self.complaints(extra)), 1)

    def test_the_back_end_is_seen_by_app_alone(self):
        self.assert_refused("views/a.cpp", '#include "playback/gst/pipeline.cpp"', "app/ alone")
        self.assert_refused("playback/a.cpp", '#include "playback/gst/pipeline.cpp"', "app/ alone")

    def test_the_back_end_does_not_look_up(self):
        self.assert_refused("playback/gst/a.cpp", '#include "document/document.h"', "goes up")

    def test_qt_stays_in_the_window_rooms(self):
        self.assert_refused("document/a.h", "#include <QString>", "takes Qt")
        self.assert_refused("playback/gst/a.cpp", "#include <QtCore/qglobal.h>", "takes Qt")
        self.assert_refused("resources/a.cpp", "  #  include <QIcon>", "takes Qt")
        self.assert_refused("model/a.cpp", "#include <QtGlobal>", "takes Qt")
        self.assert_refused("text/a.cpp", "#include <Qt>", "takes Qt")

    def test_media_libraries_stay_in_the_back_end(self):
        for header in ("gst/gst.h", "glib.h", "fluidsynth.h", "mpg123.h"):
            self.assert_refused("app/a.cpp", f"#include <{header}>", "alone")

    def test_the_core_rooms_use_the_standard_library_alone(self):
        self.assert_refused("model/a.cpp", "#include <boost/any.hpp>", "neither")
        self.assert_refused("model/a.cpp", "#include <unistd.h>", "calls the system")

    def test_files_are_not_read_past_the_disk(self):
        for room in ("playback/midi", "model", "lyrics", "resources"):
            for header in ("filesystem", "fstream"):
                self.assert_refused(f"{room}/a.cpp", f"#include <{header}>", "past text/")

    def test_an_include_outside_the_rooms_is_refused(self):
        self.assert_refused("model/a.cpp", '#include "store.h"', "names no room")
        self.assert_refused("model/a.cpp", '#include "text/gone.h"', "not there")
        self.assert_refused("model/a.cpp", "#include HEADER", "macro")
        self.assertIn("lies in no room", self.complaints({"helpers/a.h": ""})[0])

    def test_a_tree_without_includes_is_a_complaint(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertEqual(len(include_rule.complaints(pathlib.Path(folder))), 1)


if __name__ == "__main__":
    unittest.main()
