#include "document/document_saver.h"

#include <chrono>
#include <utility>

#include "document/recovery_copy.h"
#include "model/document_file.h"
#include "text/case_folding.h"
#include "text/disk_question.h"
#include "text/path_parts.h"

namespace brevant {
namespace {

bool IsSameFile(std::u16string_view path, std::u16string_view other) {
  return ToLower(path) == ToLower(other);
}

}  // namespace

TCDocumentSaver::TCDocumentSaver(TCFileSystem& fileSystem, std::u16string_view recovery)
    : files(fileSystem), recoveryFolder(recovery) {}

void TCDocumentSaver::Save(std::u16string_view path, TextLines lines) {
  if (lines.empty()) return;
  TCSave save{std::u16string(path), std::make_shared<const TextLines>(std::move(lines)), {}};
  save.saved = AskDisk(files, [path = save.path, lines = save.lines, recovery = recoveryFolder,
                               before = LastSaveOf(path)](TCFileSystem& disk) {
    if (before.valid()) before.wait();
    if (SaveSetListDocument(disk, path, *lines)) return true;
    WriteRecoveryCopy(disk, recovery, FileNamePart(path), *lines);
    return false;
  });
  if (!HasCome(save.saved, kDiskPatience)) underWay.push_back(std::move(save));
}

void TCDocumentSaver::KeepRecoveryCopy(std::u16string_view path, const TextLines& lines) {
  if (!lines.empty()) WriteRecoveryCopy(files, recoveryFolder, FileNamePart(path), lines);
}

std::shared_future<bool> TCDocumentSaver::LastSaveOf(std::u16string_view path) const {
  std::shared_future<bool> last;
  for (const TCSave& save : underWay) {
    if (IsSameFile(save.path, path)) last = save.saved;
  }
  return last;
}

bool TCDocumentSaver::IsSaving(std::u16string_view path) const {
  const std::shared_future<bool> last = LastSaveOf(path);
  return last.valid() && !HasCome(last, std::chrono::milliseconds(0));
}

bool TCDocumentSaver::TakeEndedSaves() {
  return std::erase_if(underWay, [](const TCSave& save) {
           return HasCome(save.saved, std::chrono::milliseconds(0));
         }) > 0;
}

void TCDocumentSaver::WaitFor(std::u16string_view path) {
  if (const std::shared_future<bool> last = LastSaveOf(path); last.valid()) last.wait();
}

void TCDocumentSaver::Finish(std::chrono::milliseconds patience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (const TCSave& save : underWay) {
    if (HasCome(save.saved, kDiskPatience)) continue;
    const std::u16string copy =
        WriteRecoveryCopy(files, recoveryFolder, FileNamePart(save.path), *save.lines);
    const bool ended = save.saved.wait_until(deadline) == std::future_status::ready;
    // One that failed has left a copy of its own, which may be the very same file.
    if (ended && save.saved.get() && !copy.empty()) files.DeleteFile(copy);
  }
  TakeEndedSaves();
}

}  // namespace brevant
