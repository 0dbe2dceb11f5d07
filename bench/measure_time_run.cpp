// brevant_measure_time_run FOLDER [SONGS [polled]]: measures the times of so many songs, links in turn to the
// sound files of FOLDER, with the probe that the program uses. First each poll comes as soon as a length is
// known; with "polled" the run is then made once more with the program's own polls, which takes as long as it
// does there.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <thread>
#include <vector>

#include "medians.h"
#include "opened_document.h"
#include "playback/gst/gst_length_probe.h"
#include "playback/time_run.h"

namespace brevant {
namespace {

constexpr int kSongs = 1000;
constexpr std::chrono::milliseconds kPollPeriod(300);

// Full of links, and gone in the end.
class TCLinkFolder {
 public:
  TCLinkFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "brevant-bench-XXXXXX").string();
    if (mkdtemp(pattern.data()) != nullptr) path = pattern;
  }
  ~TCLinkFolder() {
    std::error_code ignored;
    if (!path.empty()) std::filesystem::remove_all(path, ignored);
  }
  TCLinkFolder(const TCLinkFolder&) = delete;
  TCLinkFolder& operator=(const TCLinkFolder&) = delete;

  std::filesystem::path path;  // empty: it could not be made
};

std::vector<std::filesystem::path> SoundFiles(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    const std::string type = entry.path().extension().string();
    if (type == ".wav" || type == ".mp3" || type == ".wma" || type == ".mid") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// One playlist of songs with names of their own.
void FillStore(TCSetListStore& store, const std::filesystem::path& folder,
               const std::vector<std::filesystem::path>& originals, int songs) {
  std::vector<TCPlayListItem>& items = store.groups.emplace_back().playlists.emplace_back().items;
  for (int number = 0; number < songs; ++number) {
    const std::filesystem::path& original = originals[static_cast<std::size_t>(number) % originals.size()];
    const std::filesystem::path link = folder / (std::to_string(number) + " " + original.filename().string());
    std::filesystem::create_symlink(std::filesystem::absolute(original), link);
    items.emplace_back().SetPath(TCNativePaths::FromNative(link.string()).value());
  }
}

void PrintLengths(const TCSetListStore& store, std::size_t kinds) {
  const std::vector<TCPlayListItem>& items = store.groups[0].playlists[0].items;
  for (std::size_t i = 0; i < std::min(kinds, items.size()); ++i) {
    const std::u16string& name = items[i].fileName;
    std::printf("  %-20s %s\n", std::string(name.begin(), name.end()).c_str(),
                std::string(items[i].time.begin(), items[i].time.end()).c_str());
  }
}

void RunAsFastAsKnown(TCTimeRun& run, const TCLengthProbe& probe) {
  std::vector<double> waits;
  const TCSpent total = Spent([&] {
    run.Start(TCTimeScope::AllSongs);
    // The first poll opens the first song; from then on each poll finds the song known that the last one
    // opened.
    while (run.Pending()) {
      (void)run.Step();
      if (!run.Pending()) break;
      const TCSpent wait = Spent([&probe] {
        while (probe.GetDurationSeconds() == 0) std::this_thread::sleep_for(std::chrono::microseconds(200));
      });
      waits.push_back(wait.wall);
    }
  });
  double sum = 0.0;
  for (const double wait : waits) sum += wait;
  const auto late =
      std::count_if(waits.begin(), waits.end(), [](double wait) { return wait > kPollPeriod.count(); });
  std::printf(
      "%zu songs in %.2f s, %.2f of the processor; until a length was known: mean %.1f, median %.1f, at most "
      "%.1f ms\n",
      run.Count(), total.wall / 1000.0, total.processor / 1000.0, sum / static_cast<double>(waits.size()),
      Median(waits), *std::max_element(waits.begin(), waits.end()));
  std::printf("%td of them not within a poll of %td ms; %zu polls at least, which take %.1f s\n", late,
              static_cast<std::ptrdiff_t>(kPollPeriod.count()), run.Count() + 1,
              static_cast<double>(run.Count() + 1) * static_cast<double>(kPollPeriod.count()) / 1000.0);
}

void RunPolled(TCTimeRun& run) {
  std::size_t polls = 0;
  std::size_t late = 0;
  const TCSpent total = Spent([&] {
    run.Start(TCTimeScope::AllSongs);
    auto next = std::chrono::steady_clock::now();
    while (run.Pending()) {
      std::this_thread::sleep_until(next += kPollPeriod);
      const std::size_t before = run.Measured();
      (void)run.Step();
      if (++polls > 1 && run.Measured() == before) ++late;  // the first can only open
    }
  });
  std::printf("%zu songs with real polls in %.1f s: %zu polls, %zu of them in vain\n", run.Count(),
              total.wall / 1000.0, polls, late);
}

int Measure(const std::filesystem::path& originals, int songs, bool polled) {
  const std::vector<std::filesystem::path> kinds = SoundFiles(originals);
  if (kinds.empty()) {
    std::fprintf(stderr, "%s: no sound files\n", originals.c_str());
    return EXIT_FAILURE;
  }
  const TCLinkFolder folder;
  if (folder.path.empty()) return EXIT_FAILURE;
  TCAppRecord record;
  FillStore(record.setLists, folder.path, kinds, songs);
  TCNoMessages messages;
  TCGstLengthProbe probe{TCNativePaths()};
  TCTimeRun run(record, &probe, messages);
  RunAsFastAsKnown(run, probe);
  PrintLengths(record.setLists, kinds.size());
  if (polled) RunPolled(run);
  return EXIT_SUCCESS;
}

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s FOLDER [SONGS [polled]]\n", argv[0]);
    return EXIT_FAILURE;
  }
  const int songs = argc > 2 ? std::max(1, std::atoi(argv[2])) : brevant::kSongs;
  return brevant::Measure(argv[1], songs, argc > 3 && std::strcmp(argv[3], "polled") == 0);
}
