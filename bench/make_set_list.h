// Writes a set list to measure with: a document, its song files (empty) and lyric files, in folders as a
// collection on disk has them. Every run with the same size writes the same. Used by the benchmarks alone.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace brevant {

// In which order the playlists name the songs of the collection.
enum class TCSongOrder : std::uint8_t { ByFolder, Shuffled };

struct TCSetListSize {
  int songs = 100'000;
  int groups = 20;
  int playlistsPerGroup = 25;  // the songs are dealt out evenly
  int songsPerFolder = 12;
  int songsPerLyricFile = 4;  // every fourth song has one
  TCSongOrder order = TCSongOrder::ByFolder;
};

// Into `folder`, which is made if it is missing. Returns the document's model path. Throws
// std::filesystem::filesystem_error or std::ios_base::failure when the disk refuses.
std::u16string MakeSetList(const std::filesystem::path& folder, const TCSetListSize& size);

}  // namespace brevant
