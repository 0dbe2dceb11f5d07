// The transport between a fake player, a disk in memory and a screen that only keeps a log, for its tests.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "playback/transport.h"
#include "support/fake_length_probe.h"
#include "support/fake_player.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "support/repeat_fields.h"
#include "support/set_list_display_log.h"

namespace brevant {

// Two groups: the first with playlists of three songs and of one, the second with one of two songs. Every
// song is there and lasts ten seconds.
class Transport : public testing::Test {
 protected:
  Transport() {
    AddGroup({{u"a1", u"a2", u"a3"}, {u"b1"}});
    AddGroup({{u"c1", u"c2"}});
    player.SetDefaultSong({.length = 10.4});
    probe.defaultLength = 10;
  }

  void AddGroup(const std::vector<std::vector<std::u16string>>& playlists) {
    TCPlayGroups& group = store.groups.emplace_back();
    for (const auto& names : playlists) {
      TCPlayList& playlist = group.playlists.emplace_back();
      for (const std::u16string& name : names) {
        const std::u16string path = u"C:\\" + name + u".mp3";
        playlist.items.emplace_back().SetPath(path);
        files.Put(path);
      }
    }
  }

  // Lets `seconds` pass with a tick every 300 ms.
  void Run(double seconds) {
    for (double passed = 0.0; passed < seconds; passed += 0.3) {
      player.Advance(0.3);
      transport.OnPlayTimerTick();
    }
  }

  TCPlayListItem& Song(std::size_t index) { return store.groups[0].playlists[0].items[index]; }

  TCMemoryFiles files;
  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCSettings& settings = record.settings;
  TCFakePlayer player;
  TCFakeLengthProbe probe;
  TCSetListDisplayLog display;
  TCMessageLog messages;
  TCFakeRepeatFields repeatFields;
  TCTransport transport{{record, files, display, messages, &player, &probe, &repeatFields}};
};

}  // namespace brevant
