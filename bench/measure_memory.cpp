// brevant_measure_memory DOCUMENT.brv: opens the document once and prints what it then takes, in bytes a
// song: the allocator's bytes in use, with the allocator's own overhead, taken apart by freeing one part
// after the other, and the resident set, with all that the allocator holds ready.
#include <malloc.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>

#include "opened_document.h"

namespace brevant {
namespace {

double BytesInUse() {
  const struct mallinfo2 info = mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

double ResidentBytes() {
  std::ifstream statm("/proc/self/statm");
  std::size_t pages = 0;
  statm >> pages >> pages;  // the second number
  return static_cast<double>(pages) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

int Measure(const std::u16string& path) {
  auto files = std::make_unique<TCDiskFiles>(TCNativePaths());
  TCNoMessages messages;
  TCSetListStore store;
  const double inUseBefore = BytesInUse();
  const double residentBefore = ResidentBytes();
  TCDocumentFile document(*files, store, messages);
  if (!document.OpenSetListDocument(path)) return EXIT_FAILURE;
  const double inUseAfter = BytesInUse();
  const double residentAfter = ResidentBytes();

  files.reset();
  const double withoutFolderNames = BytesInUse();
  std::size_t songs = 0;
  std::size_t withLyrics = 0;
  for (TCPlayGroups& group : store.groups) {
    for (TCPlayList& playlist : group.playlists) {
      for (TCPlayListItem& song : playlist.items) {
        ++songs;
        withLyrics += song.lyrics.Empty() ? 0 : 1;
        song.lyrics = {};
      }
    }
  }
  const double withoutLyrics = BytesInUse();

  const auto perSong = [songs](double bytes) { return bytes / static_cast<double>(songs); };
  std::printf("%zu songs, %zu with lyrics; bytes a song:\n", songs, withLyrics);
  std::printf("in use, all              %8.1f\n", perSong(inUseAfter - inUseBefore));
  std::printf("  songs without lyrics   %8.1f (an entry itself has %zu)\n",
              perSong(withoutLyrics - inUseBefore), sizeof(TCPlayListItem));
  std::printf("  lyric data             %8.1f (%.0f for a song that has any)\n",
              perSong(withoutFolderNames - withoutLyrics),
              withLyrics == 0 ? 0.0 : (withoutFolderNames - withoutLyrics) / static_cast<double>(withLyrics));
  std::printf("  names of the folders   %8.1f (remembered for the search in other case)\n",
              perSong(inUseAfter - withoutFolderNames));
  std::printf("resident set             %8.1f\n", perSong(residentAfter - residentBefore));
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s DOCUMENT.brv\n", argv[0]);
    return EXIT_FAILURE;
  }
  const auto path = brevant::TCNativePaths::FromNative(std::filesystem::absolute(argv[1]).string());
  if (path && brevant::Measure(*path) == EXIT_SUCCESS) return EXIT_SUCCESS;
  std::fprintf(stderr, "%s: cannot be opened\n", argv[1]);
  return EXIT_FAILURE;
}
