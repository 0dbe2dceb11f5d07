// Group list files (.brvgl): one playlist file a line. Read only.
#pragma once

#include <string_view>

#include "model/message_display.h"
#include "model/set_list_store.h"
#include "text/file_system.h"

namespace brevant {

// True for the types "brvgl" and "brvpl" in any case; else says so in two messages. Looks only at the name.
[[nodiscard]] bool IsSetListFileType(std::u16string_view path, TCMessageDisplay& messages);

// Fills `group`, whose `folder` must already be the folder of `path`: bare playlist names are resolved
// against it. False when the type is wrong (with messages) or the file cannot be read (without). A playlist
// that cannot be read stays in the group without songs, with a message.
[[nodiscard]] bool LoadGroupListFile(TCFileSystem& files, const TCSetListStore& store,
                                     TCMessageDisplay& messages, TCPlayGroups& group,
                                     std::u16string_view path);

}  // namespace brevant
