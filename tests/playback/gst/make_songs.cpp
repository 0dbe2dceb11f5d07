// Makes the songs that the player's tests play: synthesised, written as WAV and MIDI by hand, and turned into
// MP3 and WMA by the encoders named on the command line. Run by the build.
//
//   make_songs FOLDER LAME FFMPEG
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <numbers>
#include <string>

#include "playback/midi/smf_bytes.h"

namespace brevant {
namespace {

constexpr int kRate = 44100;
constexpr double kA4 = 440.0;
constexpr double kA5 = 880.0;
// Where the pitch of the long songs jumps from A4 to A5.
constexpr double kMark = 20.0;

using Wave = std::function<double(double seconds)>;

double Sine(double frequency, double seconds) {
  return 0.5 * std::sin(2.0 * std::numbers::pi * frequency * seconds);
}

double Tone(double seconds) {
  return Sine(kA4, seconds);
}
double Mark(double seconds) {
  return Sine(seconds < kMark ? kA4 : kA5, seconds);
}

// Silence first and noise later, so that an encoder of variable bit rate spends its bits unevenly and a
// length guessed from the first frames is far off.
double Uneven(double seconds) {
  if (seconds < 5.0) return 0.0;
  if (seconds >= 15.0) return Mark(seconds);
  static std::uint32_t state = 1;
  state = state * 1664525u + 1013904223u;
  return 0.3 * (static_cast<double>(state >> 8) / (1 << 23) - 1.0);
}

std::string Wav(double seconds, const Wave& wave) {
  const auto frames = static_cast<std::uint32_t>(std::lround(seconds * kRate));
  std::string data;
  for (std::uint32_t frame = 0; frame < frames; ++frame) {
    const auto sample =
        static_cast<std::int16_t>(std::lround(32767.0 * wave(static_cast<double>(frame) / kRate)));
    for (int channel = 0; channel < 2; ++channel) data += Bytes({sample & 0xFF, sample >> 8 & 0xFF});
  }
  const auto size = static_cast<std::uint32_t>(data.size());
  return "RIFF" + LittleEndian32(size + 36) + "WAVEfmt " + LittleEndian32(16) + Bytes({1, 0, 2, 0}) +
         LittleEndian32(kRate) + LittleEndian32(kRate * 4) + Bytes({4, 0, 16, 0}) + "data" +
         LittleEndian32(size) + data;
}

constexpr int kTicks = 480;  // in a quarter

// Notes of one quarter each, A4 for `low` quarters and A5 for `high`, on an ocarina; the tempo halves and
// doubles as `tempos` (in microseconds, one for each quarter) says.
std::string Midi(int low, int high, const std::function<std::uint32_t(int)>& tempos) {
  std::string conductor;
  std::string notes = Delta(0) + Bytes({0xC0, 79});
  for (int quarter = 0; quarter < low + high; ++quarter) {
    const int key = quarter < low ? 69 : 81;
    conductor += Tempo(quarter == 0 ? 0 : kTicks, tempos(quarter));
    notes += NoteOn(0, key) + NoteOff(kTicks, key);
  }
  return MidiFile(1, kTicks, {conductor + TrackEnd(kTicks), notes + TrackEnd(0)});
}

bool Write(const std::string& path, const std::string& bytes) {
  std::ofstream file(path, std::ios::binary);
  file << bytes;
  return file.good();
}

bool Run(const std::string& command) {
  std::puts(command.c_str());
  return std::system(command.c_str()) == 0;
}

bool MakeSongs(const std::string& folder, const std::string& lame, const std::string& ffmpeg) {
  const auto path = [&folder](const char* name) { return "'" + folder + "/" + name + "'"; };
  const auto plain = [&folder](const char* name) { return folder + "/" + name; };
  bool made = Write(plain("tone.wav"), Wav(2.05, Tone)) && Write(plain("mark.wav"), Wav(30.1, Mark)) &&
              Write(plain("uneven.wav"), Wav(30.1, Uneven)) && Write(plain("short.wav"), Wav(0.4, Tone)) &&
              Write(plain("blink.wav"), Wav(0.05, Tone)) && Write(plain("silent.wav"), Wav(0.0, Tone));
  // Two seconds: a quarter of 0.5, two of 0.25, one of 1. Thirty: a second each, then half seconds.
  made = made && Write(plain("tone.mid"), Midi(4, 0, [](int quarter) {
                         return quarter == 0 ? 500'000u : quarter == 3 ? 1'000'000u : 250'000u;
                       }));
  made = made && Write(plain("mark.mid"), Midi(30, 15, [](int quarter) {
                         return quarter < 10   ? 1'000'000u
                                : quarter < 30 ? 500'000u
                                               : 666'667u - (quarter % 3 == 0 ? 1u : 0u);
                       }));
  made = made && Write(plain("text.mp3"), "This is a text, whatever its name says.\n") &&
         Write(plain("empty.mp3"), "");
  const std::string quiet = lame + " --quiet ";
  made = made && Run(quiet + "-b 128 " + path("tone.wav") + " " + path("tone.mp3"));
  made = made && Run(quiet + "-b 128 " + path("mark.wav") + " " + path("mark.mp3"));
  // -t leaves the index out.
  made = made && Run(quiet + "-V 4 -t " + path("tone.wav") + " " + path("tone_vbr.mp3"));
  made = made && Run(quiet + "-V 4 -t " + path("uneven.wav") + " " + path("mark_vbr.mp3"));
  const std::string encode = ffmpeg + " -nostdin -loglevel error -y -i ";
  const std::string wma = " -c:a wmav2 -b:a 128k ";
  made = made && Run(encode + path("tone.wav") + wma + path("tone.wma"));
  made = made && Run(encode + path("mark.wav") + wma + path("mark.wma"));
  return made;
}

}  // namespace
}  // namespace brevant

int main(int count, char** arguments) {
  if (count != 4) return 2;
  return brevant::MakeSongs(arguments[1], arguments[2], arguments[3]) ? 0 : 1;
}
