#include "playback/gst/sound_device.h"

#include <utility>

namespace brevant {

namespace {

// Brings the element to READY, which opens the device.
TCOpenedSink Open(TCGstRef<GstElement> element) {
  TCOpenedSink opened;
  if (!element) {
    opened.detail = "The GStreamer plug-in for the sound system is missing.";
    return opened;
  }
  TCGstOpenElement sink(element.release());
  const TCGstRef<GstBus> bus(gst_bus_new());
  gst_element_set_bus(sink.get(), bus.get());
  const bool open = gst_element_set_state(sink.get(), GST_STATE_READY) != GST_STATE_CHANGE_FAILURE;
  gst_element_set_bus(sink.get(), nullptr);
  if (open) {
    opened.sink = std::move(sink);
    return opened;
  }
  if (GstMessage* message = gst_bus_pop_filtered(bus.get(), GST_MESSAGE_ERROR)) {
    GError* error = nullptr;
    gst_message_parse_error(message, &error, nullptr);
    opened.detail = error->message;
    g_error_free(error);
    gst_message_unref(message);
  }
  return opened;
}

TCOpenedSink OpenDescribed(const std::string& description) {
  GError* error = nullptr;
  TCGstRef<GstElement> bin = OwnElement(gst_parse_bin_from_description(description.c_str(), TRUE, &error));
  if (error == nullptr) return Open(std::move(bin));
  TCOpenedSink failed;
  failed.detail = error->message;
  g_error_free(error);
  return failed;
}

TCOpenedSink OpenSoundServer() {
  TCGstRef<GstElement> sink = OwnElement(gst_element_factory_make("pulsesink", nullptr));
  if (sink) {
    GstStructure* properties = gst_structure_new("properties", "media.role", G_TYPE_STRING, "music", nullptr);
    g_object_set(sink.get(), "client-name", "Brevant", "stream-properties", properties, nullptr);
    gst_structure_free(properties);
  }
  return Open(std::move(sink));
}

}  // namespace

TCOpenedSink OpenSink(const std::string& description) {
  if (!description.empty()) return OpenDescribed(description);
  TCOpenedSink server = OpenSoundServer();
  if (server.sink) return server;
  TCOpenedSink card = Open(OwnElement(gst_element_factory_make("alsasink", nullptr)));
  if (card.sink) return card;
  card.detail = server.detail + " " + card.detail;
  return card;
}

}  // namespace brevant
