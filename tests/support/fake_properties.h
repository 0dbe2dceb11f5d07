// A properties pane without a window, for tests of whoever fills it.
#pragma once

#include <map>
#include <string>

#include "document/properties_display.h"

namespace brevant {

class TCFakeProperties final : public TCPropertiesDisplay {
 public:
  bool built = true;
  std::map<TCProperty, std::u16string> shown;
  int shows = 0;

  // What stands there; "(nothing)" where nothing was ever shown.
  [[nodiscard]] std::u16string Text(TCProperty property) const {
    const auto found = shown.find(property);
    return found == shown.end() ? u"(nothing)" : found->second;
  }

  [[nodiscard]] bool IsBuilt() const override { return built; }
  void ShowProperty(TCProperty property, std::u16string_view text) override {
    shown[property] = text;
    ++shows;
  }
};

}  // namespace brevant
