// Turns one MIDI song into sound, frame by frame, from any place in it. Used by the source of a pipeline, on
// that pipeline's threads, one at a time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

#include "playback/gst/midi_synth.h"
#include "playback/midi/smf_reader.h"

namespace brevant {

class TCMidiRenderer {
 public:
  static constexpr std::size_t kChannels = 2;
  // How long the last notes may ring on after the song's end.
  static constexpr std::int64_t kTailFrames = std::int64_t{2} * TCMidiSynth::kRate;

  TCMidiRenderer(std::shared_ptr<TCMidiSynth> synth, std::shared_ptr<const TCMidiSong> song);

  // Fills up to `frames` interleaved frames and returns how many; 0 when the song is over, or when another
  // song has taken the synth.
  std::size_t Render(float* samples, std::size_t frames);

  // The next Render goes on at `nanoseconds`, with the instruments and controllers as they stand there.
  void Seek(std::int64_t nanoseconds);

  // Where the next Render begins.
  [[nodiscard]] std::int64_t Frame() const { return frame; }

 private:
  [[nodiscard]] std::int64_t FrameOf(std::int64_t nanoseconds) const;
  void RenderPiece(const TCFluidSynth& fluid, float* samples, std::size_t frames);
  void Send(const TCFluidSynth& fluid, const TCMidiEvent& event) const;
  // Sends what is due; how many frames may be rendered until something is.
  std::int64_t SendDue(const TCFluidSynth& fluid);
  [[nodiscard]] bool RungOut(const TCFluidSynth& fluid) const;

  std::shared_ptr<TCMidiSynth> synth;
  std::shared_ptr<const TCMidiSong> song;
  TCMidiSynth::Claim claim = 0;
  std::int64_t frame = 0;
  std::int64_t lengthFrames = 0;
  std::size_t nextEvent = 0;
  bool released = false;
};

}  // namespace brevant
