#include "text/path_parts.h"

#include "text/white_space.h"

namespace brevant {

namespace {

constexpr std::size_t kNone = std::u16string_view::npos;

// Where the file name begins. A separator in the first character is not seen, so `\a.mp3` is a name as a
// whole; `>` separates as a backslash does.
std::size_t FileNameStart(std::u16string_view path) {
  std::size_t start = path.size();
  while (start > 1 && path[start - 1] != u'\\' && path[start - 1] != u'>') --start;
  return start <= 1 ? 0 : start;
}

}  // namespace

std::u16string FileNamePart(std::u16string_view path) {
  return std::u16string(path.substr(FileNameStart(path)));
}

std::u16string FolderPart(std::u16string_view path) {
  return std::u16string(TrimLeft(path.substr(0, FileNameStart(path))));
}

std::u16string ExtensionPart(std::u16string_view path) {
  const std::size_t dot = path.rfind(u'.');
  return dot == kNone ? std::u16string() : std::u16string(path.substr(dot + 1));
}

std::u16string PathWithoutExtension(std::u16string_view path) {
  const std::u16string_view name = path.substr(FileNameStart(path));
  return FolderPart(path).append(name.substr(0, name.rfind(u'.')));
}

std::u16string ReplaceExtension(std::u16string_view path, std::u16string_view extension) {
  const std::size_t nameStart = FileNameStart(path);
  const std::u16string_view name = path.substr(nameStart);
  std::u16string replaced;
  replaced.reserve(path.size() + 1 + extension.size());
  return replaced.append(TrimLeft(path.substr(0, nameStart)))
      .append(name.substr(0, name.rfind(u'.')))
      .append(1, u'.')
      .append(extension);
}

}  // namespace brevant
