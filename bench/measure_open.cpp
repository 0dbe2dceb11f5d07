// brevant_measure_open DOCUMENT.brv: opens the document, and beside it runs a loop that does nothing but the
// file opens a song needs, the floor under any way of opening it. Then saves the document under another name.
// Everything is in the system's cache; prints medians.
#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "medians.h"
#include "opened_document.h"
#include "text/path_parts.h"

namespace brevant {
namespace {

constexpr int kRepetitions = 11;

struct NativeNames {
  std::string song;
  std::string lyrics;      // .lrc
  std::string wideLyrics;  // .lrcx, asked for where there is no .lrc
};

std::vector<NativeNames> NamesIn(const TCSetListStore& store) {
  const TCNativePaths paths;
  std::vector<NativeNames> names;
  for (const TCPlayGroups& group : store.groups) {
    for (const TCPlayList& playlist : group.playlists) {
      for (const TCPlayListItem& song : playlist.items) {
        const std::u16string path = song.FullPath();
        names.push_back({paths.ToNative(path), paths.ToNative(ReplaceExtension(path, u"lrc")),
                         paths.ToNative(ReplaceExtension(path, u"lrcx"))});
      }
    }
  }
  return names;
}

// True when there was such a file.
bool OpenAndClose(const std::string& name) {
  const int file = open(name.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  close(file);
  return true;
}

bool OpenAndRead(const std::string& name, std::size_t& bytesRead) {
  const int file = open(name.c_str(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return false;
  std::array<char, 65536> buffer;
  for (ssize_t got = 1; got > 0;) {
    got = read(file, buffer.data(), buffer.size());
    if (got > 0) bytesRead += static_cast<std::size_t>(got);
  }
  close(file);
  return true;
}

struct Touched {
  std::size_t songs = 0;
  std::size_t lyricFiles = 0;
  std::size_t lyricBytes = 0;
};

Touched TouchFiles(const std::vector<NativeNames>& names) {
  Touched touched;
  for (const NativeNames& name : names) {
    touched.songs += OpenAndClose(name.song) ? 1 : 0;
    if (OpenAndRead(name.lyrics, touched.lyricBytes) || OpenAndRead(name.wideLyrics, touched.lyricBytes)) {
      ++touched.lyricFiles;
    }
  }
  return touched;
}

struct Samples {
  std::vector<double> wall;
  std::vector<double> processor;

  void Add(const TCSpent& spent) {
    wall.push_back(spent.wall);
    processor.push_back(spent.processor);
  }
  void Print(const char* what) const {
    std::printf("%s %9.2f %9.2f\n", what, Median(wall), Median(processor));
  }
};

int Measure(const std::u16string& path) {
  TCOpenedDocument first;
  if (!first.Open(path)) return EXIT_FAILURE;
  const std::vector<NativeNames> names = NamesIn(first.store);
  const Touched touched = TouchFiles(names);
  std::printf("%zu songs, %zu found, %zu lyric files of %zu bytes in all\n", names.size(), touched.songs,
              touched.lyricFiles, touched.lyricBytes);

  // One after the other, so that whatever else the machine does meets both.
  Samples floor;
  Samples open;
  Samples ratio;
  Samples save;
  for (int repetition = 0; repetition < kRepetitions; ++repetition) {
    const TCSpent floorSpent = Spent([&] { (void)TouchFiles(names); });
    TCOpenedDocument opened;  // new each time: what it remembers of the folders would spare the next one work
    const TCSpent openSpent = Spent([&] { (void)opened.Open(path); });
    floor.Add(floorSpent);
    open.Add(openSpent);
    ratio.Add({openSpent.wall / floorSpent.wall, openSpent.processor / floorSpent.processor});
    save.Add(Spent(
        [&] { (void)SaveSetListDocument(opened.files, path + u".saved.brv", opened.file.FlatLines()); }));
    opened.files.DeleteFile(path + u".saved.brv");
  }
  std::printf("medians of %d              clock  processor\n", kRepetitions);
  floor.Print("file opens alone, ms   ");
  open.Print("open the document, ms  ");
  ratio.Print("open / file opens      ");
  save.Print("save the document, ms  ");
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  const std::u16string path = brevant::DocumentArgument(argc, argv);
  return path.empty() ? EXIT_FAILURE : brevant::Measure(path);
}
