#include "playback/gst/midi_renderer.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace brevant {

namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
// The reverberation outlives the voices by about so much.
constexpr std::int64_t kReverbFrames = TCMidiSynth::kRate / 2;
constexpr int kAllChannels = -1;
constexpr int kSustainPedal = 64;  // the number of its controller

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
  synth->With(claim, [this](const TCFluidSynth& fluid) {
    fluid.library.systemReset(fluid.synth);
    for (; nextEvent < song->events.size(); ++nextEvent) {
      const TCMidiEvent& event = song->events[nextEvent];
      if (FrameOf(event.nanoseconds) >= frame) break;
      if (!event.IsNote()) Send(fluid, event);
    }
  });
}

std::size_t TCMidiRenderer::Render(float* samples, std::size_t frames) {
  std::size_t done = 0;
  synth->With(claim, [&](const TCFluidSynth& fluid) {
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

std::int64_t TCMidiRenderer::SendDue(const TCFluidSynth& fluid) {
  const std::vector<TCMidiEvent>& events = song->events;
  while (nextEvent < events.size() && FrameOf(events[nextEvent].nanoseconds) <= frame) {
    Send(fluid, events[nextEvent++]);
  }
  if (nextEvent < events.size()) return FrameOf(events[nextEvent].nanoseconds) - frame;
  if (frame < lengthFrames) return lengthFrames - frame;
  if (!released) {
    released = true;
    // Notes that the file left hanging, and the pedals that would hold them.
    fluid.library.allNotesOff(fluid.synth, kAllChannels);
    for (int channel = 0; channel < fluid.library.countMidiChannels(fluid.synth); ++channel) {
      fluid.library.controlChange(fluid.synth, channel, kSustainPedal, 0);
    }
  }
  return RungOut(fluid) ? 0 : lengthFrames + kTailFrames - frame;
}

bool TCMidiRenderer::RungOut(const TCFluidSynth& fluid) const {
  const std::int64_t tail = frame - lengthFrames;
  return tail >= kTailFrames ||
         (tail >= kReverbFrames && fluid.library.getActiveVoiceCount(fluid.synth) == 0);
}

void TCMidiRenderer::RenderPiece(const TCFluidSynth& fluid, float* samples, std::size_t frames) {
  fluid.library.writeFloat(fluid.synth, static_cast<int>(frames), samples, 0, 2, samples, 1, 2);
  frame += static_cast<std::int64_t>(frames);
}

void TCMidiRenderer::Send(const TCFluidSynth& fluid, const TCMidiEvent& event) const {
  const int channel = event.status & 0x0F;
  const int first = event.data1;
  const int second = event.data2;
  switch (event.status & 0xF0) {
    case 0x80:
      fluid.library.noteOff(fluid.synth, channel, first);
      break;
    case 0x90:
      fluid.library.noteOn(fluid.synth, channel, first, second);
      break;
    case 0xA0:
      fluid.library.keyPressure(fluid.synth, channel, first, second);
      break;
    case 0xB0:
      fluid.library.controlChange(fluid.synth, channel, first, second);
      break;
    case 0xC0:
      fluid.library.programChange(fluid.synth, channel, first);
      break;
    case 0xD0:
      fluid.library.channelPressure(fluid.synth, channel, first);
      break;
    case 0xE0:
      fluid.library.pitchBend(fluid.synth, channel, second << 7 | first);
      break;
    default: {
      const std::string_view data = song->SysexOf(event);
      fluid.library.sysex(fluid.synth, data.data(), static_cast<int>(data.size()), nullptr, nullptr, nullptr,
                          0);
    }
  }
}

}  // namespace brevant
