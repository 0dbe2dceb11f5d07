// Which command runs what in the document.

#include <array>

#include "document/brevant_doc.h"
#include "document/option_commands.h"
#include "document/option_prompts.h"
#include "resources/string_table.h"

namespace brevant {

const TCBrevantDoc::Handler* TCBrevantDoc::HandlerOf(TCCommandId command) {
  using Doc = TCBrevantDoc;
  using Id = TCCommandId;
  static constexpr std::array kHandlers = {
      Handler{Id::FileNew, [](Doc& doc) { doc.FileNew(); }},
      Handler{Id::FileOpen, [](Doc& doc) { doc.FileOpen(); }},
      Handler{Id::FileSave, [](Doc& doc) { doc.Save(); }},
      Handler{Id::FileSaveAs, [](Doc& doc) { doc.SaveAs(); }},
      Handler{Id::Cancel, [](Doc& doc) { doc.Cancel(); }},
      Handler{Id::ClearInformation, [](Doc& doc) { doc.parts.messages.Clear(); }},

      Handler{Id::CreateGroupList, [](Doc& doc) { doc.editor.AskForGroup(); }},
      Handler{Id::NewGroupFolder, [](Doc& doc) { doc.editor.CreateGroup(TextOf(TCTextId::NewGroupFolder)); }},
      Handler{Id::CreatePlaylist, [](Doc& doc) { doc.editor.AskForPlaylist(); }},
      Handler{Id::NewPlaylistFolder,
              [](Doc& doc) { doc.editor.CreatePlaylist(TextOf(TCTextId::NewPlaylistFolder)); }},
      Handler{Id::AddSongs, [](Doc& doc) { doc.AddSongs(); }},
      Handler{Id::Rename, [](Doc& doc) { doc.editor.AskForNewName(); }},
      Handler{Id::Remove, [](Doc& doc) { doc.Remove(); }},
      Handler{Id::SongProperties, [](Doc& doc) { doc.ShowSongProperties(); }},
      Handler{Id::Copy, [](Doc& doc) { doc.Copy(); }},
      Handler{Id::Paste, [](Doc& doc) { doc.placement.Paste(); }},
      Handler{Id::Duplicate, [](Doc& doc) { doc.mover.Duplicate(); }},
      Handler{Id::SelectSongToMove, [](Doc& doc) { doc.mover.SelectSongToMove(); }},
      Handler{Id::MoveSongUp, [](Doc& doc) { doc.mover.MoveSongUp(); }},
      Handler{Id::MoveSongDown, [](Doc& doc) { doc.mover.MoveSongDown(); }},
      Handler{Id::ShowTreeSelection, [](Doc& doc) { doc.ShowTreeSelection(); }},
      Handler{Id::FocusPlaylistManager, [](Doc& doc) { doc.parts.treeView.TakeFocus(); }},

      Handler{Id::Play, [](Doc& doc) { doc.transport.Play(); }},
      Handler{Id::Stop, [](Doc& doc) { doc.transport.Stop(); }},
      Handler{Id::PauseContinue, [](Doc& doc) { doc.transport.PauseContinue(); }},
      Handler{Id::LoadSong, [](Doc& doc) { doc.PickRow(doc.parts.record.setLists.currentSong); }},
      Handler{Id::NextSong, [](Doc& doc) { doc.transport.NextSong(); }},
      Handler{Id::PriorSong, [](Doc& doc) { doc.transport.PriorSong(); }},
      Handler{Id::NextPlaylist, [](Doc& doc) { doc.transport.NextPlaylist(); }},
      Handler{Id::PriorPlaylist, [](Doc& doc) { doc.transport.PriorPlaylist(); }},

      Handler{Id::VolumeUp, [](Doc& doc) { doc.volumeAndSeek.VolumeUp(); }},
      Handler{Id::MediaVolumeUp, [](Doc& doc) { doc.volumeAndSeek.VolumeUp(); }},
      Handler{Id::VolumeDown, [](Doc& doc) { doc.volumeAndSeek.VolumeDown(); }},
      Handler{Id::MediaVolumeDown, [](Doc& doc) { doc.volumeAndSeek.VolumeDown(); }},
      Handler{Id::SeekForward, [](Doc& doc) { doc.volumeAndSeek.SeekForward(); }},
      Handler{Id::SeekBack, [](Doc& doc) { doc.volumeAndSeek.SeekBack(); }},
      Handler{Id::SetRepeatBegin, [](Doc& doc) { doc.volumeAndSeek.SetRepeatBegin(); }},
      Handler{Id::SetRepeatEnd, [](Doc& doc) { doc.volumeAndSeek.SetRepeatEnd(); }},

      Handler{Id::RefreshSongTime, [](Doc& doc) { doc.transport.RefreshCurrentSongTime(); }},
      Handler{Id::RefreshAllTimes, [](Doc& doc) { doc.transport.StartTimeRun(TCTimeScope::AllSongs); }},
      Handler{Id::RefreshPlaylistTimes,
              [](Doc& doc) { doc.transport.StartTimeRun(TCTimeScope::CurrentPlaylist); }},
  };
  for (const Handler& handler : kHandlers) {
    if (handler.command == command) return &handler;
  }
  return nullptr;
}

bool TCBrevantDoc::Handles(TCCommandId command) {
  return HandlerOf(command) != nullptr || IsOptionCommand(command) || IsOptionPrompt(command);
}

bool TCBrevantDoc::IsChecked(TCCommandId command) const {
  return IsOptionOn(command, parts.record.settings);
}

bool TCBrevantDoc::OnCommand(TCCommandId command) {
  if (const Handler* handler = HandlerOf(command)) {
    handler->run(*this);
  } else if (IsOptionCommand(command)) {
    ToggleOption(command);
  } else if (IsOptionPrompt(command)) {
    ChangeOption(command);
  } else {
    return false;
  }
  return true;
}

}  // namespace brevant
