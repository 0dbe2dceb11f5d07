// The parts of a Windows path as the model holds it: folder with its trailing backslash, file name, type.
// Pure functions over text; no disk is touched. Used by every room that handles a song or document path.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// What follows the last `\` or `>`; the whole text when there is none, or none but in the first character.
[[nodiscard]] std::u16string FileNamePart(std::u16string_view path);

// The path without its file name, trailing backslash kept, leading white space removed; empty without a
// folder.
[[nodiscard]] std::u16string FolderPart(std::u16string_view path);

// The text after the last "." wherever it stands, even inside a folder name; empty without a dot.
[[nodiscard]] std::u16string ExtensionPart(std::u16string_view path);

// Folder and file name up to its last "."; a file name without a dot is kept whole.
[[nodiscard]] std::u16string PathWithoutExtension(std::u16string_view path);

// Folder and file name up to and including its last ".", then `extension`; without a dot "." is put first.
[[nodiscard]] std::u16string ReplaceExtension(std::u16string_view path, std::u16string_view extension);

}  // namespace brevant
