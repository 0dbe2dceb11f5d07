// What reaches the player's machine and what it asks for in return: the commands of the user interface, the
// notes of pipelines and disk jobs, and the actions that carry a decision out. Plain values, any thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "playback/midi/smf_reader.h"

namespace brevant {

// A song file that was found and looked into.
struct TCPlayable {
  std::string nativePath;                  // absolute, the system's own bytes
  std::shared_ptr<const TCMidiSong> midi;  // set for MIDI files only
};

struct TCPlayerCommand {
  enum class Kind { Load, Play, Pause, Stop, Seek, SetVolume };
  Kind kind = Kind::Stop;
  std::u16string url{};       // Load
  double seconds = 0.0;       // Seek
  int volume = 100;           // SetVolume, 0 to 100
  std::uint64_t barrier = 0;  // what the machine publishes counts only once it has seen the newest barrier
};

struct TCPlayerNote {
  enum class Kind {
    FileOpened,      // `playable` is set
    FileUnreadable,  // no such file, no permission, no MIDI file after all
    NoSoundfont,
    LengthMeasured,  // the exact length, or none when it could not be measured
    PipelineReady,   // prerolled: after a start, and again after every seek
    SeekRefused,
    EndOfStream,
    SinkFailed,    // the sound system
    SourceFailed,  // the file or its decoder
  };
  Kind kind = Kind::EndOfStream;
  // The load (files and lengths) or the build (pipelines) it tells about; an older one is no longer news.
  std::uint64_t number = 0;
  std::shared_ptr<const TCPlayable> playable{};
  std::optional<double> length{};  // seconds; PipelineReady: what the pipeline itself says
  bool lengthNeedsScan = false;    // PipelineReady: an MP3 stream, whose own word on its length is a guess
  std::string detail{};            // UTF-8, for the pane
};

struct TCPlayerAction {
  enum class Kind {
    OpenFile,       // find and read the file of `url`, off the worker's thread
    MeasureLength,  // walk over all frames, off the worker's thread
    Probe,          // build a pipeline without sound and preroll it
    BuildPlaying,   // build the sounding pipeline and let it run
    BuildPaused,    // the same, prerolled only, so that it can be sent to a position before it sounds
    Discard,        // whatever pipeline there is
    Resume,
    Pause,
    Seek,
    SetVolume,
  };
  Kind kind = Kind::Discard;
  std::uint64_t number = 0;  // the load or the build
  double seconds = 0.0;      // Seek
  int volume = 100;          // BuildPlaying, BuildPaused, SetVolume
};

// What the worker reads off the running pipeline now and then.
struct TCPipelineReading {
  std::optional<double> position{};
  std::optional<double> length{};
  // A worker that got stuck in the sound system has not come back yet: opening it again would stick as well.
  bool soundSystemStuck = false;
};

}  // namespace brevant
