#include "playback/gst/gst_pipeline.h"

#include <cmath>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "playback/gst/midi_source.h"

namespace brevant {

namespace {

// Of playbin's flags: no video, no subtitles, no volume of its own.
constexpr int kAudioOnly = 1 << 1;

// Cubic, as system mixers count: linear, 50 would be only 6 dB below 100.
double Gain(int volume) {
  return std::pow(volume / 100.0, 3.0);
}

double Seconds(gint64 nanoseconds) {
  return static_cast<double>(nanoseconds) / 1e9;
}

// `volume ! sink` as one element, and the volume element out of it. The sink is the bin's from then on;
// without a bin it stays the caller's.
std::pair<TCGstRef<GstElement>, TCGstRef<GstElement>> MakeSoundBin(TCGstOpenElement& opened) {
  GstElement* const sink = opened.get();
  TCGstRef<GstElement> bin = OwnElement(gst_bin_new("sound"));
  TCGstRef<GstElement> volume = OwnElement(gst_element_factory_make("volume", nullptr));
  if (!bin || !volume) return {};
  gst_bin_add_many(GST_BIN(bin.get()), volume.get(), sink, nullptr);
  // Without the usual look at what the sink can take: that would ask the sound server, which may not answer.
  if (!gst_element_link_pads_full(volume.get(), "src", sink, "sink", GST_PAD_LINK_CHECK_NOTHING)) return {};
  const TCGstRef<GstPad> pad(gst_element_get_static_pad(volume.get(), "sink"));
  gst_element_add_pad(bin.get(), gst_ghost_pad_new("sink", pad.get()));
  gst_object_unref(opened.release());  // the bin holds it as well
  return {std::move(bin), std::move(volume)};
}

std::string FileUri(const std::string& nativePath) {
  gchar* uri = gst_filename_to_uri(nativePath.c_str(), nullptr);
  std::string result = uri == nullptr ? "" : uri;
  g_free(uri);
  return result;
}

bool IsForeignContainer(GstElement* element) {
  GstElementFactory* factory = gst_element_get_factory(element);
  if (factory == nullptr) return false;
  const std::string_view name = GST_OBJECT_NAME(factory);
  if (name == "id3demux" || name == "apedemux") return false;
  const gchar* kind = gst_element_factory_get_metadata(factory, GST_ELEMENT_METADATA_KLASS);
  return kind != nullptr && std::string_view(kind).find("Demuxer") != std::string_view::npos;
}

bool IsMpegAudioParser(GstElement* element) {
  GstElementFactory* factory = gst_element_get_factory(element);
  return factory != nullptr && std::string_view(GST_OBJECT_NAME(factory)) == "mpegaudioparse";
}

// Turns what the bus says into notes, on whatever thread it is said.
struct TCBusListener {
  std::uint64_t build = 0;
  TCGstPipeline::Notify notify;
  GstElement* soundBin = nullptr;  // only compared, never used
};

TCPlayerNote ErrorNote(const TCBusListener& listener, GstMessage* message) {
  TCPlayerNote note;
  const bool fromSink =
      listener.soundBin != nullptr &&
      (GST_MESSAGE_SRC(message) == GST_OBJECT_CAST(listener.soundBin) ||
       gst_object_has_as_ancestor(GST_MESSAGE_SRC(message), GST_OBJECT_CAST(listener.soundBin)));
  note.kind = fromSink ? TCPlayerNote::Kind::SinkFailed : TCPlayerNote::Kind::SourceFailed;
  GError* error = nullptr;
  gst_message_parse_error(message, &error, nullptr);
  note.detail = error->message;
  g_error_free(error);
  return note;
}

GstBusSyncReply OnMessage(GstBus*, GstMessage* message, gpointer data) {
  const auto& listener = *static_cast<TCBusListener*>(data);
  const auto tell = [&listener](TCPlayerNote note) {
    note.number = listener.build;
    listener.notify(std::move(note));
  };
  TCPlayerNote note;
  switch (GST_MESSAGE_TYPE(message)) {
    case GST_MESSAGE_EOS:
      note.kind = TCPlayerNote::Kind::EndOfStream;
      tell(std::move(note));
      break;
    case GST_MESSAGE_ASYNC_DONE:
      note.kind = TCPlayerNote::Kind::PipelineReady;
      tell(std::move(note));
      break;
    case GST_MESSAGE_ERROR:
      tell(ErrorNote(listener, message));
      break;
    default:
      break;
  }
  gst_message_unref(message);
  return GST_BUS_DROP;
}

struct TCMidiFeed {
  std::shared_ptr<TCMidiSynth> synth;
  std::shared_ptr<const TCMidiSong> song;
};

void OnSourceSetup(GstElement*, GstElement* source, gpointer data) {
  const auto& feed = *static_cast<TCMidiFeed*>(data);
  if (GST_IS_APP_SRC(source)) FeedMidi(GST_APP_SRC(source), feed.synth, feed.song);
}

}  // namespace

std::unique_ptr<TCGstPipeline> TCGstPipeline::Build(Setup setup) {
  GstElement* playbin = gst_element_factory_make("playbin", nullptr);
  if (playbin == nullptr) return nullptr;
  std::unique_ptr<TCGstPipeline> made(new TCGstPipeline(GST_ELEMENT(gst_object_ref_sink(playbin))));
  return made->Assemble(std::move(setup)) ? std::move(made) : nullptr;
}

bool TCGstPipeline::Assemble(Setup setup) {
  const bool isMidi = setup.song->midi != nullptr;
  if (isMidi && !setup.synth) return false;
  const bool sounds = setup.sink != nullptr;
  TCGstRef<GstElement> soundBin;
  if (sounds) {
    std::tie(soundBin, volumeElement) = MakeSoundBin(setup.sink);
  } else {
    soundBin = OwnElement(gst_element_factory_make("fakesink", nullptr));
  }
  if (!soundBin) return false;
  const std::string uri = isMidi ? kMidiSourceUri : FileUri(setup.song->nativePath);
  g_object_set(pipeline.get(), "flags", kAudioOnly, "uri", uri.c_str(), "audio-sink", soundBin.get(),
               nullptr);
  SetVolume(setup.volume);
  if (isMidi) {
    g_signal_connect_data(
        pipeline.get(), "source-setup", G_CALLBACK(OnSourceSetup),
        new TCMidiFeed{setup.synth, setup.song->midi},
        [](gpointer data, GClosure*) { delete static_cast<TCMidiFeed*>(data); }, GConnectFlags(0));
  }
  auto* listener = new TCBusListener{setup.build, std::move(setup.notify), sounds ? soundBin.get() : nullptr};
  const TCGstRef<GstBus> bus(gst_element_get_bus(pipeline.get()));
  gst_bus_set_sync_handler(bus.get(), OnMessage, listener,
                           [](gpointer data) { delete static_cast<TCBusListener*>(data); });
  return true;
}

TCGstPipeline::~TCGstPipeline() {
  const TCGstRef<GstBus> bus(gst_element_get_bus(pipeline.get()));
  gst_bus_set_sync_handler(bus.get(), nullptr, nullptr, nullptr);
  while (gst_element_set_state(pipeline.get(), GST_STATE_NULL) == GST_STATE_CHANGE_ASYNC) {
    gst_element_get_state(pipeline.get(), nullptr, nullptr, GST_SECOND);
  }
}

void TCGstPipeline::Discard(std::unique_ptr<TCGstPipeline> pipeline, TCJobThreads& jobs) {
  if (!pipeline) return;
  // Whatever happens to its teardown, it is silent from here on.
  pipeline->SetVolume(0);
  const std::shared_ptr<TCGstPipeline> last = std::move(pipeline);
  jobs.Start([last] {});
}

bool TCGstPipeline::SetState(GstState state) {
  return gst_element_set_state(pipeline.get(), state) != GST_STATE_CHANGE_FAILURE;
}

bool TCGstPipeline::Seek(double seconds) {
  const auto flags = static_cast<GstSeekFlags>(GST_SEEK_FLAG_FLUSH | GST_SEEK_FLAG_ACCURATE);
  return gst_element_seek_simple(pipeline.get(), GST_FORMAT_TIME, flags, std::llround(seconds * 1e9)) !=
         FALSE;
}

void TCGstPipeline::SetVolume(int volume) {
  if (volumeElement) g_object_set(volumeElement.get(), "volume", Gain(volume), nullptr);
}

std::optional<double> TCGstPipeline::Position() const {
  gint64 position = 0;
  if (!gst_element_query_position(pipeline.get(), GST_FORMAT_TIME, &position)) return std::nullopt;
  return Seconds(position);
}

std::optional<double> TCGstPipeline::Duration() const {
  gint64 duration = 0;
  if (!gst_element_query_duration(pipeline.get(), GST_FORMAT_TIME, &duration) || duration < 0)
    return std::nullopt;
  return Seconds(duration);
}

bool TCGstPipeline::IsBareMp3() const {
  bool mp3 = false;
  bool container = false;
  GstIterator* elements = gst_bin_iterate_recurse(GST_BIN(pipeline.get()));
  GValue item = G_VALUE_INIT;
  for (GstIteratorResult step = gst_iterator_next(elements, &item);
       step == GST_ITERATOR_OK || step == GST_ITERATOR_RESYNC; step = gst_iterator_next(elements, &item)) {
    if (step == GST_ITERATOR_RESYNC) {
      gst_iterator_resync(elements);
      continue;
    }
    auto* element = GST_ELEMENT(g_value_get_object(&item));
    mp3 = mp3 || IsMpegAudioParser(element);
    container = container || IsForeignContainer(element);
    g_value_reset(&item);
  }
  g_value_unset(&item);
  gst_iterator_free(elements);
  return mp3 && !container;
}

}  // namespace brevant
