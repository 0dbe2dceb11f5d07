// Owning pointers to GStreamer objects: what is not handed over is released. Any thread.
#pragma once

#include <gst/gst.h>

#include <memory>

namespace brevant {

struct TCGstUnref {
  void operator()(GstElement* object) const { gst_object_unref(object); }
  void operator()(GstBus* object) const { gst_object_unref(object); }
  void operator()(GstPad* object) const { gst_object_unref(object); }
};

template <class T>
using TCGstRef = std::unique_ptr<T, TCGstUnref>;

// An element outside any pipeline whose device is open: closed before it is released.
struct TCGstCloseAndUnref {
  void operator()(GstElement* element) const {
    gst_element_set_state(element, GST_STATE_NULL);
    gst_object_unref(element);
  }
};
using TCGstOpenElement = std::unique_ptr<GstElement, TCGstCloseAndUnref>;

// For elements fresh from a factory, whose reference floats.
inline TCGstRef<GstElement> OwnElement(GstElement* element) {
  if (element == nullptr) return nullptr;
  return TCGstRef<GstElement>(GST_ELEMENT(gst_object_ref_sink(element)));
}

}  // namespace brevant
