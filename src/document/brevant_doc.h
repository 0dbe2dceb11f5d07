// The document: the open file's name and modified mark, and the handlers of the set-list, transport and
// option commands. It owns no songs; those live in the application record. User-interface thread only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/document_saver.h"
#include "document/entry_mover.h"
#include "document/frame_display.h"
#include "document/playlist_presenter.h"
#include "document/prompts.h"
#include "document/properties_presenter.h"
#include "document/recent_file_list.h"
#include "document/set_list_editor.h"
#include "document/song_check.h"
#include "document/song_placement.h"
#include "document/tree_presenter.h"
#include "model/app_record.h"
#include "model/document_file.h"
#include "model/message_display.h"
#include "model/program_folders.h"
#include "playback/transport.h"
#include "playback/volume_and_seek.h"
#include "resources/command_id.h"

namespace brevant {

// Everything the document works with. All of it outlives the document.
struct TCDocumentParts {
  TCAppRecord& record;
  TCFileSystem& files;
  TCPlayer* player = nullptr;  // null when there is none
  TCPlaylistDisplay& playlistView;
  TCTreeDisplay& treeView;
  TCMessageDisplay& messages;
  TCFrameDisplay& frame;
  TCPrompts& prompts;
  TCProgramFolders folders;
  TCLengthProbe* lengthProbe = nullptr;       // null: no song times are measured
  TCRepeatFields* repeatFields = nullptr;     // null: there is no repeat range
  TCPropertiesDisplay* properties = nullptr;  // null: there is no properties pane
  TCRecentFileList* recentFiles = nullptr;    // null: nobody remembers
};

class TCBrevantDoc {
 public:
  explicit TCBrevantDoc(TCDocumentParts documentParts);

  // Each returns true in every case: a file that cannot be read opens as an empty document of that name, and
  // a failed save is silent (its lines go to the recovery folder). An open takes as long as the disk does; a
  // save on a slow one goes on by itself, and the title says "modified" until it is over.
  bool OnNewDocument();
  bool OnOpenDocument(std::u16string_view path);
  bool OnSaveDocument(std::u16string_view path);

  // Opens `path` unless the user holds on to unsaved changes; the open file is read again.
  void OpenDocumentFile(std::u16string_view path);

  // True when nothing stands in the way of losing the document: no changes, saved, or given up by the user.
  [[nodiscard]] bool SaveModified();

  // The session ends and nobody can be asked: unsaved changes go to the recovery folder.
  void KeepUnsavedChanges();

  // The program ends: waits for saves that are under way, see TCDocumentSaver.
  void FinishSaves() { saver.Finish(); }

  // The path as opened or saved; empty for a new document.
  [[nodiscard]] const std::u16string& GetPathName() const { return pathName; }
  [[nodiscard]] bool IsModified() const { return modified; }
  // What was saved is not on its disk yet.
  [[nodiscard]] bool IsSaving() const { return saver.IsSaving(pathName); }
  void SetModified();

  // Runs a command that is the document's. False when it is not.
  bool OnCommand(TCCommandId command);
  // True when the document handles `command` at all.
  [[nodiscard]] static bool Handles(TCCommandId command);
  // The check mark of an option; false for every other command.
  [[nodiscard]] bool IsChecked(TCCommandId command) const;

  // A row of the playlist was double-clicked (-1: none): it becomes current and may start.
  void PickRow(std::int32_t row);
  // A row was dragged to the place of another.
  void MoveRow(std::int32_t from, std::int32_t to) { mover.MoveRow(from, to); }

  // A node of the tree was pressed: the properties pane shows that song, and nothing becomes current.
  void PressNode(TCTreeNode node);
  // A node of the tree was double-clicked: a playlist becomes current, and of a song its playlist and itself.
  void PickNode(TCTreeNode node);
  // Enter in the tree does the same for the selected node and opens its playlist.
  void EnterOnNode();
  // False when the name is blank or the node stands for nothing: what was typed stays on the screen alone.
  bool RenameNode(TCTreeNode node, std::u16string_view name) { return editor.Rename(node, name); }
  void MoveNode(TCTreeNode source, TCTreeNode target) { mover.Move(source, target); }

  // Rows dragged with Ctrl were dropped: on the tree, whose selected node says where, or on the playlist
  // itself.
  void DropRowsOnTree() { mover.CopySelectedRowsToNode(); }
  void DropRowsOnPlaylist();

  // Files dropped on the window (model paths): a document among them is opened and ends the drop; songs wait
  // for the click into the tree that places them.
  void DropFiles(std::vector<std::u16string> paths);
  // The click.
  void PlacePendingFiles() { placement.PlacePendingFiles(); }

  // The properties pane was built, or other rows of the playlist are selected.
  void RefreshProperties() { properties.RefreshProperties(pathName); }

  // Every 300 ms.
  void OnPlayTimerTick();

  [[nodiscard]] const TCTransport& Transport() const { return transport; }
  [[nodiscard]] const TCSongPlacement& Placement() const { return placement; }
  [[nodiscard]] TCPlaylistPresenter& Presenter() { return presenter; }

 private:
  // A command that neither toggles an option nor asks for one.
  struct Handler {
    TCCommandId command = TCCommandId::None;
    void (*run)(TCBrevantDoc&) = nullptr;
  };

  // Null when there is none.
  [[nodiscard]] static const Handler* HandlerOf(TCCommandId command);

  void ClearViewsAndStore();
  void ShowBanner();
  // Name and modified mark, in the title and in the properties.
  void ShowTitle();
  void ToggleOption(TCCommandId command);
  void ChangeOption(TCCommandId command);
  void ShowTimeRun();
  void FileNew();
  void FileOpen();
  void Cancel();
  void AddSongs();
  void Copy();
  void Remove();
  void ShowSongProperties();
  void ShowTreeSelection();
  void MakePlaylistCurrent(TCPlaylistPosition playlist);
  [[nodiscard]] TCEditParts EditParts();
  void AddToRecentFiles();
  // False when the user cancelled.
  bool Save();
  bool SaveAs();

  TCDocumentParts parts;
  TCDocumentFile documentFile;
  TCDocumentSaver saver;
  TCPropertiesPresenter properties;
  TCPlaylistPresenter presenter;
  TCTreePresenter tree;
  TCSongCheck songCheck;
  TCSetListEditor editor;
  TCEntryMover mover;
  TCSongPlacement placement;
  TCTransport transport;
  TCVolumeAndSeek volumeAndSeek;
  std::u16string pathName;
  bool modified = false;
};

}  // namespace brevant
