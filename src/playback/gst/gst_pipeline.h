// One GStreamer pipeline for one playing (or probing) of one song; never used twice. Worker thread, except
// where said; what it has to tell comes through the notify function on any thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "playback/engine/player_events.h"
#include "playback/gst/gst_ref.h"
#include "playback/gst/midi_synth.h"
#include "text/job_threads.h"

namespace brevant {

class TCGstPipeline {
 public:
  using Notify = std::function<void(TCPlayerNote)>;

  struct Setup {
    std::uint64_t build = 0;  // the number that its notes carry
    std::shared_ptr<const TCPlayable> song{};
    std::shared_ptr<TCMidiSynth> synth{};  // MIDI songs only
    TCGstOpenElement sink{};               // null: only probing, nothing sounds
    int volume = 100;
    Notify notify{};
  };

  // Null when GStreamer lacks a part, or a MIDI song its synth.
  [[nodiscard]] static std::unique_ptr<TCGstPipeline> Build(Setup setup);
  // Lets go of the pipeline on a thread of its own, since that takes as long as the sound server likes.
  static void Discard(std::unique_ptr<TCGstPipeline> pipeline, TCJobThreads& jobs);
  ~TCGstPipeline();

  TCGstPipeline(const TCGstPipeline&) = delete;
  TCGstPipeline& operator=(const TCGstPipeline&) = delete;

  // False when the change failed at once.
  bool SetState(GstState state);
  // To the very place, not the next key point; a PipelineReady note follows. False when refused.
  bool Seek(double seconds);
  void SetVolume(int volume);

  // Seconds; empty when the pipeline cannot say, as during a seek.
  [[nodiscard]] std::optional<double> Position() const;
  [[nodiscard]] std::optional<double> Duration() const;
  // An MP3 stream outside any container: its length is an estimate unless the file has an index.
  [[nodiscard]] bool IsBareMp3() const;

 private:
  explicit TCGstPipeline(GstElement* playbin) : pipeline(playbin) {}

  bool Assemble(Setup setup);

  TCGstRef<GstElement> pipeline;
  TCGstRef<GstElement> volumeElement;
};

}  // namespace brevant
