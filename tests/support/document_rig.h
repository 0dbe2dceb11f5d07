// A document with everything that it shows, asks and tells as fakes at hand. The disk and the player are the
// test's: in memory and hand-driven, or the real ones.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/brevant_doc.h"
#include "support/fake_frame.h"
#include "support/fake_playlist_view.h"
#include "support/fake_prompts.h"
#include "support/fake_properties.h"
#include "support/fake_tree.h"
#include "support/message_log.h"
#include "support/repeat_fields.h"

namespace brevant {

class TCRecentFileLog final : public TCRecentFileList {
 public:
  void AddToRecentFileList(std::u16string_view path) override { paths.emplace_back(path); }
  std::vector<std::u16string> paths;
};

class TCDocumentRig {
 public:
  // All of it outlives the rig. Without a player there is none; without a probe no song times are measured.
  // On a real disk the recovery folder has to be a folder of the test's.
  TCDocumentRig(TCFileSystem& files, TCPlayer* player, TCLengthProbe* lengthProbe = nullptr,
                std::u16string recovery = u"\\state\\recovery\\")
      : document({.record = record,
                  .files = files,
                  .player = player,
                  .playlistView = view,
                  .treeView = tree,
                  .messages = messages,
                  .frame = frame,
                  .prompts = prompts,
                  .folders = {u"\\opt\\", u"\\conf\\", std::move(recovery)},
                  .lengthProbe = lengthProbe,
                  .repeatFields = &repeatFields,
                  .properties = &pane,
                  .recentFiles = &recent}) {}
  TCDocumentRig(const TCDocumentRig&) = delete;
  TCDocumentRig& operator=(const TCDocumentRig&) = delete;

  TCAppRecord record;
  TCFakePlaylistView view;
  TCFakeTree tree;
  TCMessageLog messages;
  TCFakeFrame frame;
  TCFakePrompts prompts;
  TCFakeRepeatFields repeatFields;
  TCFakeProperties pane;
  TCRecentFileLog recent;
  TCBrevantDoc document;
};

}  // namespace brevant
