#include "playback/gst/midi_renderer.h"

#include <algorithm>
#include <utility>

namespace brevant {

namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
// The reverberation outlives the voices by about so much.
constexpr std::int64_t kReverbFrames = TCMidiSynth::kRate / 2;
constexpr int kAllChannels = -1;

}  // namespace

TCMidiRenderer::TCMidiRenderer(std::shared_ptr<TCMidiSynth> theSynth,
                               std::shared_ptr<const TCMidiSong> theSong)
    : synth(std::move(theSynth)), song(std::move(theSong)), claim(synth->Take()) {
  lengthFrames = FrameOf(song->nanoseconds);
  Seek(0);
}

// Songs last a day at most, so the product stays below 2^63 when seconds and the rest are taken apart.
std::int64_t TCMidiRenderer::FrameOf(std::int64_t nanoseconds) const {
  return nanoseconds / kSecond * TCMidiSynth::kRate + nanoseconds % kSecond * TCMidiSynth::kRate / kSecond;
}

void TCMidiRenderer::Seek(std::int64_t nanoseconds) {
  frame = std::clamp<std::int64_t>(FrameOf(nanoseconds), 0, lengthFrames);
  released = false;
  nextEvent = 0;
  synth->With(claim, [this](fluid_synth_t& fluid) {
    fluid_synth_system_reset(&fluid);
    for (; nextEvent < song->events.size(); ++nextEvent) {
      const TCMidiEvent& event = song->events[nextEvent];
      if (FrameOf(event.nanoseconds) >= frame) break;
      if (!event.IsNote()) Send(fluid, event);
    }
  });
}

std::size_t TCMidiRenderer::Render(float* samples, std::size_t frames) {
  std::size_t done = 0;
  synth->With(claim, [&](fluid_synth_t& fluid) {
    while (done < frames) {
      const std::int64_t until = SendDue(fluid);
      if (until <= 0) break;
      const std::size_t piece = std::min(frames - done, static_cast<std::size_t>(until));
      RenderPiece(fluid, samples + done * kChannels, piece);
      done += piece;
    }
  });
  return done;
}

std::int64_t TCMidiRenderer::SendDue(fluid_synth_t& fluid) {
  const std::vector<TCMidiEvent>& events = song->events;
  while (nextEvent < events.size() && FrameOf(events[nextEvent].nanoseconds) <= frame) {
    Send(fluid, events[nextEvent++]);
  }
  if (nextEvent < events.size()) return FrameOf(events[nextEvent].nanoseconds) - frame;
  if (frame < lengthFrames) return lengthFrames - frame;
  if (!released) {
    released = true;
    // Notes that the file left hanging, and the pedals that would hold them.
    fluid_synth_all_notes_off(&fluid, kAllChannels);
    for (int channel = 0; channel < fluid_synth_count_midi_channels(&fluid); ++channel) {
      fluid_synth_cc(&fluid, channel, 64, 0);
    }
  }
  return RungOut(fluid) ? 0 : lengthFrames + kTailFrames - frame;
}

bool TCMidiRenderer::RungOut(fluid_synth_t& fluid) const {
  const std::int64_t tail = frame - lengthFrames;
  return tail >= kTailFrames || (tail >= kReverbFrames && fluid_synth_get_active_voice_count(&fluid) == 0);
}

void TCMidiRenderer::RenderPiece(fluid_synth_t& fluid, float* samples, std::size_t frames) {
  fluid_synth_write_float(&fluid, static_cast<int>(frames), samples, 0, 2, samples, 1, 2);
  frame += static_cast<std::int64_t>(frames);
}

void TCMidiRenderer::Send(fluid_synth_t& fluid, const TCMidiEvent& event) const {
  const int channel = event.status & 0x0F;
  const int first = event.data1;
  const int second = event.data2;
  switch (event.status & 0xF0) {
    case 0x80:
      fluid_synth_noteoff(&fluid, channel, first);
      break;
    case 0x90:
      fluid_synth_noteon(&fluid, channel, first, second);
      break;
    case 0xA0:
      fluid_synth_key_pressure(&fluid, channel, first, second);
      break;
    case 0xB0:
      fluid_synth_cc(&fluid, channel, first, second);
      break;
    case 0xC0:
      fluid_synth_program_change(&fluid, channel, first);
      break;
    case 0xD0:
      fluid_synth_channel_pressure(&fluid, channel, first);
      break;
    case 0xE0:
      fluid_synth_pitch_bend(&fluid, channel, second << 7 | first);
      break;
    default: {
      const std::string_view data = song->SysexOf(event);
      fluid_synth_sysex(&fluid, data.data(), static_cast<int>(data.size()), nullptr, nullptr, nullptr, 0);
    }
  }
}

}  // namespace brevant
