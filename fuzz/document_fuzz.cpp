// Documents in both forms: whatever the bytes, a save writes what the format can hold of the set lists, and
// opening that again gives exactly this. A document that counts as whole loses nothing by it. The input is a
// document, two group lists, two playlist files and a lyric file.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "input_parts.h"
#include "model/document_file.h"
#include "must_hold.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "text/case_folding.h"
#include "text/white_space.h"

using namespace brevant;

namespace {

constexpr std::u16string_view kPath = u"D:\\Docs\\show.brv";
constexpr std::u16string_view kForeignPath = u"D:\\Docs\\show.brv~";
constexpr const char16_t* kOtherPaths[] = {u"D:\\Docs\\1.brvgl", u"D:\\Docs\\2.brvgl", u"D:\\Docs\\1.brvpl",
                                           u"D:\\Docs\\2.brvpl", u"a.lrc"};

// What a document keeps of a song, and where it puts it.
struct KeptSong {
  std::u16string path;
  std::u16string time;
  friend bool operator==(const KeptSong&, const KeptSong&) = default;
};
struct KeptPlaylist {
  std::u16string name;
  std::vector<KeptSong> songs;
  friend bool operator==(const KeptPlaylist&, const KeptPlaylist&) = default;
};
struct KeptGroup {
  std::u16string name;
  std::vector<KeptPlaylist> playlists;
  friend bool operator==(const KeptGroup&, const KeptGroup&) = default;
};

// Neither a double quote nor the blanks at its head survive in a quoted text.
std::u16string KeptText(std::u16string text) {
  std::erase(text, u'"');
  return std::u16string(TrimLeft(text));
}

template <class List>
auto& EntryNamed(List& list, const std::u16string& name) {
  for (auto& entry : list) {
    if (EqualIgnoringCase(entry.name, name)) return entry;
  }
  list.emplace_back().name = name;
  return list.back();
}

// What opening a saved document must give: entries without songs are gone, entries whose names differ in case
// alone have become one, and a time ends at its first blank.
std::vector<KeptGroup> KeptOf(const TCSetListStore& store) {
  std::vector<KeptGroup> kept;
  for (const TCPlayGroups& group : store.groups) {
    for (const TCPlayList& playlist : group.playlists) {
      for (const TCPlayListItem& song : playlist.items) {
        KeptGroup& into = EntryNamed(kept, KeptText(group.name));
        EntryNamed(into.playlists, KeptText(playlist.name))
            .songs.push_back(
                {KeptText(song.FullPath()), song.time.substr(0, song.time.find_first_of(u" \t"))});
      }
    }
  }
  return kept;
}

std::vector<KeptGroup> AllOf(const TCSetListStore& store) {
  std::vector<KeptGroup> all;
  for (const TCPlayGroups& group : store.groups) {
    KeptGroup& into = all.emplace_back();
    into.name = group.name;
    for (const TCPlayList& playlist : group.playlists) {
      KeptPlaylist& songs = into.playlists.emplace_back();
      songs.name = playlist.name;
      for (const TCPlayListItem& song : playlist.items) songs.songs.push_back({song.FullPath(), song.time});
    }
  }
  return all;
}

bool IsFolderForm(const TextLines& lines) {
  return !lines.empty() && ToLower(lines.front()).find(u"brvgl") != std::u16string::npos;
}

// The characters of all lines but white space, without regard to case, whatever the order of the lines.
std::vector<std::u16string> BareLines(TextLines lines) {
  for (std::u16string& line : lines) {
    std::erase_if(line, IsWhiteSpace);
    line = ToLower(line);
  }
  std::sort(lines.begin(), lines.end());
  return lines;
}

void CheckSaved(TCMemoryFiles& files, const TCSetListStore& opened, const TextLines& before) {
  TextLines saved;
  MustHold(ReadTextLines(files, kPath, saved), "what was saved can be read");
  if (IsFolderForm(saved)) return;  // the loose test takes such a first song for a group list

  TCSetListStore store;
  TCMessageLog messages;
  TCDocumentFile document(files, store, messages);
  MustHold(document.OpenSetListDocument(kPath), "what was saved opens");
  MustHold(AllOf(store) == KeptOf(opened), "opening it gives what the format holds");
  if (IsFolderForm(before)) return;

  // A flat document can say nothing that another flat document could not hold.
  MustHold(AllOf(store) == AllOf(opened), "a flat document comes back as it was");
  for (std::size_t g = 0; g < store.groups.size(); ++g) {
    for (std::size_t p = 0; p < store.groups[g].playlists.size(); ++p) {
      const auto& songs = opened.groups[g].playlists[p].items;
      const auto& again = store.groups[g].playlists[p].items;
      const bool same =
          std::equal(songs.begin(), songs.end(), again.begin(), [](const auto& a, const auto& b) {
            return a.fileName == b.fileName && a.folder == b.folder && a.extension == b.extension &&
                   a.status == b.status && a.lyrics == b.lyrics;
          });
      MustHold(same, "its songs come back in all their parts");
    }
  }
  const std::optional<std::string> bytes = files.BytesOf(kPath);
  MustHold(SaveSetListDocument(files, kPath, document.PrepareSave(kPath)) && files.BytesOf(kPath) == bytes,
           "a second save changes nothing");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::vector<std::string> parts = CutIntoParts(input, 1 + std::size(kOtherPaths));
  if (TooManyLines(parts)) return 0;
  TCMemoryFiles files;
  files.Put(kPath, parts[0]);
  files.Put(u"a.mp3");
  for (std::size_t i = 0; i < std::size(kOtherPaths); ++i) files.Put(kOtherPaths[i], parts[i + 1]);

  TCSetListStore store;
  TCMessageLog messages;
  TCDocumentFile document(files, store, messages);
  MustHold(document.OpenSetListDocument(kPath), "a file that can be read opens");
  const TextLines lines = SplitUtf16Lines(parts[0]);
  MustHold(store.groups.empty() == lines.empty(), "lines make groups");
  const bool whole = IsWholeDocument(parts[0]);

  if (!SaveSetListDocument(files, kPath, document.PrepareSave(kPath))) {
    MustHold(KeptOf(store).empty(), "a save fails only where there is no song");
    MustHold(files.BytesOf(kPath) == parts[0], "a failed save leaves the file as it was");
    return 0;
  }
  MustHold(files.BytesOf(kForeignPath).has_value() != whole, "only a file that is not whole is kept");
  if (!whole) MustHold(files.BytesOf(kForeignPath) == parts[0], "it is kept as it was");
  if (whole) MustHold(BareLines(document.FlatLines()) == BareLines(lines), "a whole document loses no text");
  CheckSaved(files, store, lines);
  return 0;
}
