// A small band's document on a disk in memory, with a hand-driven player, for the tests of what the document
// does. It is on the disk and not yet opened.
#pragma once

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

#include "support/document_rig.h"
#include "support/fake_length_probe.h"
#include "support/fake_player.h"
#include "support/memory_files.h"

namespace brevant {

class TCShowDocument : public testing::Test {
 protected:
  static constexpr std::u16string_view kShow = u"D:\\Docs\\show.brv";
  static constexpr std::u16string_view kShowText =
      u"\"Sets\" \"One\" \"C:\\a.mp3\" 03:00\r\n"
      u"\"Sets\" \"One\" \"C:\\b.mp3\" 04:00\r\n"
      u"\"Sets\" \"Two\" \"C:\\c.mp3\" 01:00\r\n"
      u"\"Club\" \"Late\" \"C:\\d.mp3\" 01:00\r\n";

  TCShowDocument() {
    files.PutUtf16(kShow, kShowText);
    for (const std::u16string_view song : {u"C:\\a.mp3", u"C:\\b.mp3", u"C:\\c.mp3", u"C:\\d.mp3"})
      files.Put(song);
  }

  // The first node of this text is the tree's selected one.
  void Select(std::u16string_view text) { tree.selected = tree.NodeNamed(text); }
  // The names in the playlist view from top to bottom.
  [[nodiscard]] std::vector<std::u16string> Rows() const {
    std::vector<std::u16string> rows;
    for (const TCPlaylistRow& row : view.rows) rows.push_back(row.texts.name);
    return rows;
  }
  // A tick of the document every 0.3 seconds.
  void Poll(int times) {
    for (int poll = 0; poll < times; ++poll) {
      player.Advance(0.3);
      document.OnPlayTimerTick();
    }
  }

  TCMemoryFiles files;
  TCFakePlayer player;
  TCFakeLengthProbe probe;
  TCDocumentRig rig{files, &player, &probe};

  TCAppRecord& record = rig.record;
  TCFakePlaylistView& view = rig.view;
  TCFakeTree& tree = rig.tree;
  TCMessageLog& messages = rig.messages;
  TCFakeFrame& frame = rig.frame;
  TCFakePrompts& prompts = rig.prompts;
  TCFakeProperties& pane = rig.pane;
  TCBrevantDoc& document = rig.document;
};

}  // namespace brevant
