// The application record: the options and the set lists, from start-up to exit. Owned by the application
// object; everybody else is handed a reference.
#pragma once

#include "model/set_list_store.h"
#include "model/settings.h"

namespace brevant {

struct TCAppRecord {
  TCSettings settings;
  TCSetListStore setLists;
};

}  // namespace brevant
