#include "playback/gst/midi_source.h"

#include <gst/audio/audio.h>

#include <cstdint>
#include <utility>

#include "playback/gst/midi_renderer.h"

namespace brevant {

namespace {

// About 46 ms: small enough to start and seek at once, large enough to be worth a wake-up.
constexpr std::size_t kFramesPerBuffer = 2048;
constexpr std::size_t kBytesPerFrame = TCMidiRenderer::kChannels * sizeof(float);

GstClockTime TimeOfFrame(std::int64_t frame) {
  return gst_util_uint64_scale(static_cast<guint64>(frame), GST_SECOND, TCMidiSynth::kRate);
}

void OnNeedData(GstAppSrc* source, guint, gpointer data) {
  auto& renderer = *static_cast<TCMidiRenderer*>(data);
  GstBuffer* buffer = gst_buffer_new_allocate(nullptr, kFramesPerBuffer * kBytesPerFrame, nullptr);
  const std::int64_t begin = renderer.Frame();
  std::size_t frames = 0;
  GstMapInfo map;
  if (buffer != nullptr && gst_buffer_map(buffer, &map, GST_MAP_WRITE)) {
    frames = renderer.Render(reinterpret_cast<float*>(map.data), kFramesPerBuffer);
    gst_buffer_unmap(buffer, &map);
  }
  if (frames == 0) {
    gst_clear_buffer(&buffer);
    gst_app_src_end_of_stream(source);
    return;
  }
  gst_buffer_set_size(buffer, static_cast<gssize>(frames * kBytesPerFrame));
  GST_BUFFER_PTS(buffer) = TimeOfFrame(begin);
  GST_BUFFER_DURATION(buffer) = TimeOfFrame(renderer.Frame()) - TimeOfFrame(begin);
  gst_app_src_push_buffer(source, buffer);
}

gboolean OnSeekData(GstAppSrc*, guint64 offset, gpointer data) {
  static_cast<TCMidiRenderer*>(data)->Seek(static_cast<std::int64_t>(offset));
  return TRUE;
}

}  // namespace

void FeedMidi(GstAppSrc* source, std::shared_ptr<TCMidiSynth> synth, std::shared_ptr<const TCMidiSong> song) {
  GstCaps* caps =
      gst_caps_new_simple("audio/x-raw", "format", G_TYPE_STRING, GST_AUDIO_NE(F32), "layout", G_TYPE_STRING,
                          "interleaved", "rate", G_TYPE_INT, TCMidiSynth::kRate, "channels", G_TYPE_INT,
                          static_cast<int>(TCMidiRenderer::kChannels), nullptr);
  gst_app_src_set_caps(source, caps);
  gst_caps_unref(caps);
  g_object_set(source, "format", GST_FORMAT_TIME, nullptr);
  gst_app_src_set_stream_type(source, GST_APP_STREAM_TYPE_SEEKABLE);
  gst_app_src_set_max_bytes(source, 2 * kFramesPerBuffer * kBytesPerFrame);
  gst_app_src_set_duration(
      source, static_cast<GstClockTime>(song->nanoseconds) + TimeOfFrame(TCMidiRenderer::kTailFrames));
  GstAppSrcCallbacks callbacks{};
  callbacks.need_data = OnNeedData;
  callbacks.seek_data = OnSeekData;
  gst_app_src_set_callbacks(source, &callbacks, new TCMidiRenderer(std::move(synth), std::move(song)),
                            [](gpointer data) { delete static_cast<TCMidiRenderer*>(data); });
}

}  // namespace brevant
