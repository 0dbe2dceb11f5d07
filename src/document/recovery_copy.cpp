#include "document/recovery_copy.h"

#include <mutex>

#include "text/numbers.h"
#include "text/path_parts.h"

namespace brevant {

namespace {

constexpr int kMostCopies = 1000;  // of one name
constexpr int kMostFailures = 3;   // a full disk fails under any name

std::u16string CopyPath(std::u16string_view folder, std::u16string_view fileName, int copy) {
  std::u16string path(folder);
  if (copy == 1) return path += fileName;
  path += PathWithoutExtension(fileName);
  path += u" (" + FormatDecimal(copy) + u")";
  if (const std::u16string extension = ExtensionPart(fileName); !extension.empty()) path += u'.' + extension;
  return path;
}

}  // namespace

std::u16string WriteRecoveryCopy(TCFileSystem& files, std::u16string_view folder,
                                 std::u16string_view fileName, const TextLines& lines) {
  if (fileName.empty()) fileName = u"Brevant.brv";
  if (!files.MakeFolder(folder)) return {};
  static std::mutex oneAtATime;  // or two would find the same name free
  const std::lock_guard lock(oneAtATime);
  int failures = 0;
  for (int copy = 1; copy <= kMostCopies && failures < kMostFailures; ++copy) {
    std::u16string path = CopyPath(folder, fileName, copy);
    if (files.FileExists(path)) continue;
    // Something that is no file may have the name; another name may still do.
    if (WriteTextLines(files, path, lines)) return path;
    ++failures;
  }
  return {};
}

void RemoveRecoveryCopy(TCFileSystem& files, std::u16string_view copy, const TextLines& lines) {
  TextLines there;
  if (ReadTextLines(files, copy, there) && there == lines) files.DeleteFile(copy);
}

}  // namespace brevant
