// Looks whether the files of songs are there and reads their lyrics, when songs enter a set list or get
// another file. A disk that has stopped answering holds nobody up: the songs stay pending, and what it says
// in the end is taken over by a tick. Part of the document; user-interface thread only.
#pragma once

#include <cstdint>
#include <future>
#include <vector>

#include "document/playlist_presenter.h"
#include "document/tree_presenter.h"
#include "model/set_list_store.h"
#include "text/file_system.h"

namespace brevant {

class TCSongCheck {
 public:
  // All of it outlives the check.
  TCSongCheck(TCFileSystem& fileSystem, TCSetListStore& setLists, TCTreePresenter& treePresenter,
              TCPlaylistPresenter& playlistPresenter);

  // Of `count` songs of one playlist, `first` and those behind it, which all have their nodes. Waits a moment
  // for the disk. Until it has answered they are pending and without lyrics. The rows are the caller's to
  // show.
  void CheckSongFiles(TCSongPosition first, std::int32_t count);

  // Takes over what came since, and shows it. A song that went or got yet another file is passed over.
  void TakeLateAnswers();

 private:
  struct TCSongOnDisk {
    TCTreeNode node = TCTreeNode::None;  // edits may move the song meanwhile
    std::u16string path;
    TCSongStatus status = TCSongStatus::Pending;
    TCSongLyrics lyrics;
  };
  using TCAnswer = std::vector<TCSongOnDisk>;

  [[nodiscard]] static TCAnswer LookAt(TCFileSystem& disk, TCAnswer songs);
  void Take(TCAnswer songs);

  TCFileSystem& files;
  TCSetListStore& store;
  TCTreePresenter& tree;
  TCPlaylistPresenter& playlist;
  std::vector<std::future<TCAnswer>> awaited;
};

}  // namespace brevant
