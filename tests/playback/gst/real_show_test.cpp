// A document on real songs: the run that measures them without a sound while one of them plays, and the words
// that follow a song.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <span>

#include "playback/gst/gst_length_probe.h"
#include "playback/gst/gst_player.h"
#include "playback/gst/song_files.h"
#include "support/document_rig.h"
#include "support/pitch.h"
#include "support/pulse_server.h"
#include "support/temp_folder.h"
#include "support/utf16.h"
#include "text/disk_files.h"
#include "text/numbers.h"
#include "text/time_text.h"
#include "text/unicode.h"

namespace brevant {
namespace {

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::EndsWith;
using testing::Ge;
using testing::Le;

constexpr double kSoon = 60.0;
constexpr double kPoll = 0.3;
constexpr double kRate = TCPulseServer::kRate;
constexpr double kA4 = 440.0;

// The document, opened from the disk, with the real player and the real probe.
class TCShow {
 public:
  explicit TCShow(const TCGstPlayerOptions& options) : player(TCNativePaths(), options) {}

  // One playlist of these songs, each with a time that none of them has.
  bool Open(const TCTempFolder& folder, const std::vector<std::u16string>& songs) {
    std::u16string text;
    for (const std::u16string& song : songs) text += u"\"Band\" \"Set\" \"" + song + u"\" 09:09\r\n";
    folder.Write("show.brv", Utf16Bytes(text));
    document.OnOpenDocument(folder.Model("show.brv"));
    return !record.setLists.groups.empty() && Songs().size() == songs.size();
  }

  [[nodiscard]] std::vector<TCPlayListItem>& Songs() { return record.setLists.groups[0].playlists[0].items; }
  [[nodiscard]] std::vector<std::u16string> Times() {
    std::vector<std::u16string> times;
    for (const TCPlayListItem& song : Songs()) times.push_back(song.time);
    return times;
  }
  [[nodiscard]] bool Measuring() const { return document.Transport().TimeRun().Pending(); }
  [[nodiscard]] double Position() const { return player.GetPosition().value_or(-1.0); }

  TCDiskFiles files{TCNativePaths()};
  TCGstPlayer player;
  TCGstLengthProbe probe{TCNativePaths()};
  TCDocumentRig rig{files, &player, &probe};

  TCAppRecord& record = rig.record;
  TCFakePlaylistView& view = rig.view;
  TCMessageLog& messages = rig.messages;
  TCFakeFrame& frame = rig.frame;
  TCBrevantDoc& document = rig.document;
};

TEST(RealShow, BrokenAndMissingSongsInTheMiddleOfARunCostNoneOfTheOthersItsTime) {
  const TCTempFolder folder;
  const std::string wma = BytesOf(SongFile("mark.wma"));
  std::string scrambled = wma;
  std::fill(scrambled.begin() + 30, scrambled.begin() + 200, '\xFF');
  folder.Write("no_tracks.mid", BytesOf(SongFile("mark.mid")).substr(0, 14));
  folder.Write("no_midi.mid", "MThd and nothing that follows from it");
  folder.Write("headless.wma", wma.substr(100));
  folder.Write("scrambled.wma", scrambled);
  TCShow show({.audioSink = "fakesink"});
  ASSERT_TRUE(show.Open(
      folder, {SongUrl("mark.mp3"), folder.Model("no_tracks.mid"), SongUrl("mark.mid"),
               folder.Model("headless.wma"), SongUrl("mark.wma"), folder.Model("gone.mp3"),
               folder.Model("scrambled.wma"), SongUrl("tone.wma"), folder.Model("no_midi.mid"),
               SongUrl("text.mp3"), SongUrl("tone.mid"), SongUrl("mark_vbr.mp3"), SongUrl("tone.wav")}));
  show.document.OnCommand(TCCommandId::ClearInformation);
  show.document.OnCommand(TCCommandId::RefreshAllTimes);
  ASSERT_TRUE(AwaitReally(
      [&show] {
        show.document.OnPlayTimerTick();
        return !show.Measuring();
      },
      kSoon));
  const auto line = [](const char16_t* name, const char16_t* time) {
    return std::u16string(u"Calculating times for song \"") + name + u"\": " + time;
  };
  EXPECT_THAT(
      show.messages.lines,
      ElementsAre(line(u"mark.mp3", u"00:30"), line(u"no_tracks.mid", u"00:00"), line(u"mark.mid", u"00:30"),
                  line(u"headless.wma", u"00:00"), line(u"mark.wma", u"00:30"), line(u"gone.mp3", u"00:00"),
                  line(u"scrambled.wma", u"00:00"), line(u"tone.wma", u"00:02"),
                  line(u"no_midi.mid", u"00:00"), line(u"text.mp3", u"00:00"), line(u"tone.mid", u"00:02"),
                  line(u"mark_vbr.mp3", u"00:30"), line(u"tone.wav", u"00:02")));
  EXPECT_THAT(show.Times(), ElementsAre(u"00:30", u"00:00", u"00:30", u"00:00", u"00:30", u"00:00", u"00:00",
                                        u"00:02", u"00:00", u"00:00", u"00:02", u"00:30", u"00:02"));
  // 126 seconds of songs and twelve gaps of 15.
  EXPECT_EQ(show.view.header, u"Set - Total Playlist Time: 05:06");
  EXPECT_EQ(show.view.rows[7].texts.time, u"00:02");
  EXPECT_TRUE(show.document.IsModified());
  EXPECT_EQ(show.frame.status, u"");
}

// On a sound server of its own, whose output is recorded.
class RealShowHeard : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(setenv("PULSE_SERVER", server.Address().c_str(), 1), 0);
    ASSERT_TRUE(server.Start());
    ASSERT_TRUE(server.Record());
    show.emplace(TCGstPlayerOptions{});
    std::vector<std::u16string> songs{SongUrl("mark.wav")};
    for (int i = 0; i < 4; ++i) {
      for (const char* song : {"mark.mp3", "tone.mid", "mark.wma", "mark_vbr.mp3", "tone.wav"})
        songs.push_back(SongUrl(song));
    }
    ASSERT_TRUE(show->Open(folder, songs));
    show->document.OnCommand(TCCommandId::Play);
    ASSERT_TRUE(AwaitReally([this] { return show->Position() > 0.5; }, kSoon));
    Poll();
    ASSERT_TRUE(show->document.Transport().State().started);
  }

  // A poll, after which the player is where it was going, with the song that it had.
  void Poll() {
    show->document.OnPlayTimerTick();
    EXPECT_EQ(show->player.GetUrl(), SongUrl("mark.wav"));
    EXPECT_EQ(show->player.Snapshot().phase, TCPlayerPhase::Playing);
    EXPECT_EQ(show->player.GetVolume(), 100);
    EXPECT_TRUE(show->document.Transport().State().playing);
    EXPECT_FALSE(show->document.Transport().State().paused);
    EXPECT_EQ(show->record.setLists.currentSong, 0);
    const double position = show->Position();
    EXPECT_GT(position, lastPosition);
    lastPosition = position;
  }

  // Polls until `done`; the number of polls, 0 when it never was.
  int PollUntil(const std::function<bool()>& done) {
    for (int polls = 1; polls < 100; ++polls) {
      std::this_thread::sleep_for(std::chrono::duration<double>(kPoll));
      Poll();
      if (done()) return polls;
    }
    return 0;
  }

  [[nodiscard]] std::size_t RecordedSamples() const { return server.Recording().size(); }

  // Every twentieth of a second of the recording from one moment to the other has the song's pitch at its
  // level.
  void ExpectTheSongThroughout(std::size_t begin, std::size_t end) {
    ASSERT_TRUE(AwaitReally([&] { return RecordedSamples() > end; }, kSoon));
    server.StopRecording();
    const std::vector<double> heard = server.Recording();
    const auto window = static_cast<std::size_t>(kRate / 20.0);
    std::vector<double> pitches;
    std::vector<double> levels;
    for (std::size_t at = begin; at + window <= end; at += window) {
      const auto stretch = std::span(heard).subspan(at, window);
      pitches.push_back(Amplitude(stretch, kA4, kRate));
      levels.push_back(Loudness(stretch) * std::sqrt(2.0));
    }
    const auto [least, most] = std::minmax_element(pitches.begin(), pitches.end());
    std::printf("%.2f s of the run: the pitch between %.4f and %.4f\n",
                static_cast<double>(end - begin) / kRate, *least, *most);
    EXPECT_THAT(pitches, Each(AllOf(Ge(0.48), Le(0.52))));
    EXPECT_THAT(levels, Each(AllOf(Ge(0.48), Le(0.52))));
  }

  TCTempFolder folder;
  TCPulseServer server;
  std::optional<TCShow> show;
  double lastPosition = 0.0;
};

TEST_F(RealShowHeard, ARunIsNotHeardAndLeavesTheSongThatPlaysAlone) {
  const std::size_t begin = RecordedSamples();
  show->document.OnCommand(TCCommandId::RefreshAllTimes);
  const int polls = PollUntil([this] { return !show->Measuring(); });
  EXPECT_GE(polls, 20) << "one song a poll";
  ExpectTheSongThroughout(begin, RecordedSamples());
  EXPECT_EQ(show->Times()[0], u"00:30");
  EXPECT_EQ(show->Times()[2], u"00:02");
  EXPECT_EQ(show->Times()[20], u"00:02");
}

TEST_F(RealShowHeard, CancelInTheMiddleOfARunEndsItWithoutASoundAndWithTheTimesAsTheyWere) {
  const std::vector<std::u16string> before = show->Times();
  const std::size_t begin = RecordedSamples();
  show->document.OnCommand(TCCommandId::RefreshAllTimes);
  ASSERT_GT(PollUntil([this] { return show->document.Transport().TimeRun().Measured() >= 5; }), 0);
  EXPECT_EQ(
      show->frame.status,
      FormatDecimal(static_cast<std::int64_t>(show->document.Transport().TimeRun().Measured())) + u" of 21");
  show->document.OnCommand(TCCommandId::Cancel);
  EXPECT_FALSE(show->Measuring());
  EXPECT_EQ(show->frame.status, u"");
  EXPECT_EQ(show->messages.lines.back(), u"Command canceled");
  int polls = 0;
  PollUntil([&polls] { return ++polls == 5; });
  ExpectTheSongThroughout(begin, RecordedSamples());
  EXPECT_EQ(show->Times(), before);
  EXPECT_EQ(show->frame.status, u"");
  EXPECT_FALSE(show->document.IsModified());
}

constexpr int kLines = 400;

// When a line is sung (milliseconds): about one a second, at any moment of it.
int StartOf(int line) {
  return line * 1000 + line * 137 % 1000;
}

TCLineRole RoleOf(int line) {
  return std::array{TCLineRole::SingerM, TCLineRole::SingerF, TCLineRole::SingerD,
                    TCLineRole::Normal}[static_cast<std::size_t>(line % 4)];
}

std::u16string WordsOf(int line) {
  const std::u16string_view singer =
      std::array{u"M: ", u"F: ", u"D: ", u""}[static_cast<std::size_t>(line % 4)];
  return std::u16string(singer) + u"f\u00FCr 5 \u20AC \u2013 Zeile " + FormatDecimal(line);
}

// The line that is current by whole seconds, half a second ahead.
int LineAt(double position) {
  const int time = static_cast<int>(position) * 1000 + 500;
  int line = 0;
  while (line + 1 < kLines && StartOf(line + 1) <= time) ++line;
  return line;
}

std::string Windows1252(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    bytes.push_back(static_cast<char>(unit == 0x20AC ? 0x80 : unit == 0x2013 ? 0x96 : unit));
  }
  return bytes;
}

// Silence, 8 bits at 8000 a second.
std::string LongWave(std::uint32_t seconds) {
  const auto number = [](std::uint32_t value, int bytes) {
    std::string little;
    for (int i = 0; i < bytes; ++i) little.push_back(static_cast<char>(value >> 8 * i & 0xFF));
    return little;
  };
  const std::uint32_t size = seconds * 8000;
  return "RIFF" + number(size + 36, 4) + "WAVEfmt " + number(16, 4) + number(1, 2) + number(1, 2) +
         number(8000, 4) + number(8000, 4) + number(1, 2) + number(8, 2) + "data" + number(size, 4) +
         std::string(size, '\x80');
}

TEST(RealShow, HundredsOfLinesOfEveryEncodingFollowTheSongWithinOnePoll) {
  std::u16string text;
  for (int line = 0; line < kLines; ++line) {
    const std::u16string milliseconds = FormatDecimal(1000 + StartOf(line) % 1000).substr(1);
    text += u"[" + FormatTime(StartOf(line) / 1000) + u"." + milliseconds + u"]" + WordsOf(line) + u"\r\n";
  }
  struct Case {
    const char* what;
    const char* file;
    std::string bytes;
  };
  const std::vector<Case> cases{{".lrc in UTF-8", "song.lrc", EncodeUtf8(text)},
                                {".lrc in Windows-1252", "song.lrc", Windows1252(text)},
                                {".lrcx", "song.lrcx", Utf16Bytes(text)}};
  const std::vector<TCTempFolder> folders(cases.size());
  std::vector<std::unique_ptr<TCShow>> shows;
  for (std::size_t i = 0; i < cases.size(); ++i) {
    folders[i].Write("song.wav", LongWave(420));
    folders[i].Write(cases[i].file, cases[i].bytes);
    shows.push_back(std::make_unique<TCShow>(TCGstPlayerOptions{.audioSink = "fakesink sync=true"}));
    ASSERT_TRUE(shows[i]->Open(folders[i], {folders[i].Model("song.wav")}));
    ASSERT_EQ(shows[i]->Songs()[0].lyrics.LineCount(), static_cast<std::size_t>(kLines));
    shows[i]->document.OnCommand(TCCommandId::Play);
    ASSERT_TRUE(AwaitReally([&] { return shows[i]->Position() > 0.0; }, kSoon));
  }
  for (const double place : {0.0, 150.2, 393.7}) {
    for (const auto& show : shows) show->player.SetPosition(place);
    std::vector<std::size_t> changes(cases.size());
    for (double played = 0.0; played < 2.4; played += kPoll) {
      for (std::size_t i = 0; i < cases.size(); ++i) {
        SCOPED_TRACE(std::string(cases[i].what) + " from " + std::to_string(place) + " on");
        TCShow& show = *shows[i];
        const int clears = show.messages.clears;
        const double before = show.Position();
        show.document.OnPlayTimerTick();
        const double after = show.Position();
        ASSERT_GE(before, place);
        ASSERT_EQ(show.messages.lines.size(), 4u);
        const int line =
            show.messages.lines[1] == u"\t" + WordsOf(LineAt(before)) ? LineAt(before) : LineAt(after);
        EXPECT_EQ(show.messages.lines[1], u"\t" + WordsOf(line)) << EncodeUtf8(show.messages.lines[1]);
        EXPECT_EQ(show.messages.lines[3], u"\t" + WordsOf(line + 1)) << EncodeUtf8(show.messages.lines[3]);
        EXPECT_EQ(show.messages.roles[1], RoleOf(line));
        EXPECT_EQ(show.messages.roles[3], RoleOf(line + 1));
        changes[i] += show.messages.clears > clears ? 1 : 0;
      }
      std::this_thread::sleep_for(std::chrono::duration<double>(kPoll));
    }
    EXPECT_THAT(changes, Each(AllOf(Ge(2u), Le(4u)))) << "drawn at each change of the line and only there";
  }
}

}  // namespace
}  // namespace brevant
