// brevant_make_set_list FOLDER [SONGS [by_folder|shuffled [SONGS_PER_LYRIC_FILE]]]: writes a set list to
// measure with and prints its document's name.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <exception>

#include "make_set_list.h"
#include "text/native_path.h"

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s FOLDER [SONGS [by_folder|shuffled [SONGS_PER_LYRIC_FILE]]]\n", argv[0]);
    return 2;
  }
  brevant::TCSetListSize size;
  if (argc > 2) size.songs = std::max(1, std::atoi(argv[2]));
  if (argc > 3 && std::strcmp(argv[3], "shuffled") == 0) size.order = brevant::TCSongOrder::Shuffled;
  if (argc > 4) size.songsPerLyricFile = std::max(1, std::atoi(argv[4]));
  try {
    std::puts(brevant::TCNativePaths().ToNative(brevant::MakeSetList(argv[1], size)).c_str());
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
  return 0;
}
