#include "document/song_check.h"

#include <chrono>
#include <utility>

#include "lyrics/lyric_file.h"
#include "model/media_check.h"
#include "text/disk_question.h"

namespace brevant {

TCSongCheck::TCSongCheck(TCFileSystem& fileSystem, TCSetListStore& setLists, TCTreePresenter& treePresenter,
                         TCPlaylistPresenter& playlistPresenter)
    : files(fileSystem), store(setLists), tree(treePresenter), playlist(playlistPresenter) {}

void TCSongCheck::CheckSongFiles(TCSongPosition first, std::int32_t count) {
  TCAnswer songs;
  for (TCSongPosition at = first; at.song < first.song + count; ++at.song) {
    TCPlayListItem* song = store.SongAt(at);
    if (song == nullptr) return;
    song->status = TCSongStatus::Pending;
    song->lyrics = {};  // nothing of another file's stays
    songs.push_back({song->treeNode, song->FullPath(), {}, {}});
  }
  std::future<TCAnswer> answer =
      AskDisk(files, [asked = std::move(songs)](TCFileSystem& disk) { return LookAt(disk, asked); });
  if (HasCome(answer, kDiskPatience)) {
    Take(answer.get());
  } else {
    awaited.push_back(std::move(answer));
  }
}

// Knows nothing of the set lists: they may be edited while it looks.
TCSongCheck::TCAnswer TCSongCheck::LookAt(TCFileSystem& disk, TCAnswer songs) {
  const TCManyFiles manyFiles(disk);
  for (TCSongOnDisk& song : songs) {
    song.status = SongFileStatus(disk, song.path);
    LoadLyrics(disk, song.path, song.lyrics);
  }
  return songs;
}

void TCSongCheck::TakeLateAnswers() {
  const auto taken = std::erase_if(awaited, [this](std::future<TCAnswer>& answer) {
    if (!HasCome(answer, std::chrono::milliseconds(0))) return false;
    Take(answer.get());
    return true;
  });
  if (taken > 0) playlist.ShowAgain();
}

void TCSongCheck::Take(TCAnswer songs) {
  for (TCSongOnDisk& onDisk : songs) {
    TCPlayListItem* song = store.SongAt(tree.EntryOf(onDisk.node).Song());
    if (song == nullptr || song->FullPath() != onDisk.path) continue;
    song->status = onDisk.status;
    song->lyrics = std::move(onDisk.lyrics);
  }
}

}  // namespace brevant
