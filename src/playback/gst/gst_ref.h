// Owning pointers to GStreamer objects: what is not handed over is released.
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

// For elements fresh from a factory, whose reference floats.
inline TCGstRef<GstElement> OwnElement(GstElement* element) {
  if (element == nullptr) return nullptr;
  return TCGstRef<GstElement>(GST_ELEMENT(gst_object_ref_sink(element)));
}

}  // namespace brevant
