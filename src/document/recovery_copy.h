// Where the lines of a document go whose save failed: into a folder of the user's own, under a name that is
// not taken yet, so that nothing said and nothing lost go together.
#pragma once

#include <string>
#include <string_view>

#include "text/file_system.h"
#include "text/text_lines.h"

namespace brevant {

// `folder` ends with a backslash and is made when it is missing; `fileName` is the document's, "Brevant.brv"
// when empty. The copy is "show.brv", or "show (2).brv" and so on when that is taken. Its path, or empty when
// this failed too. Any thread, with a file system of its own.
std::u16string WriteRecoveryCopy(TCFileSystem& files, std::u16string_view folder,
                                 std::u16string_view fileName, const TextLines& lines);

// Takes the copy away again, unless something else stands under its name by now: somebody may have opened it
// and gone on working in it.
void RemoveRecoveryCopy(TCFileSystem& files, std::u16string_view copy, const TextLines& lines);

}  // namespace brevant
