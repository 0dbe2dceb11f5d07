#include "document/document_saver.h"

#include <algorithm>
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
  std::shared_future<bool> before;
  if (const TCSave* last = LastSaveOf(path)) before = last->onDisk;
  TCSave save{std::u16string(path), std::make_shared<const TextLines>(std::move(lines)), {}, {}};
  save.onDisk = AskDisk(
      files, [path = save.path, lines = save.lines, recovery = recoveryFolder, before](TCFileSystem& disk) {
        if (before.valid()) before.wait();
        if (SaveSetListDocument(disk, path, *lines)) return true;
        WriteRecoveryCopy(disk, recovery, FileNamePart(path), *lines);
        return false;
      });
  if (!HasCome(save.onDisk, kDiskPatience)) underWay.push_back(std::move(save));
}

void TCDocumentSaver::KeepRecoveryCopy(std::u16string_view path, const TextLines& lines) {
  if (!lines.empty()) WriteRecoveryCopy(files, recoveryFolder, FileNamePart(path), lines);
}

const TCDocumentSaver::TCSave* TCDocumentSaver::LastSaveOf(std::u16string_view path) const {
  const auto last = std::find_if(underWay.rbegin(), underWay.rend(),
                                 [path](const TCSave& save) { return IsSameFile(save.path, path); });
  return last == underWay.rend() ? nullptr : &*last;
}

bool TCDocumentSaver::IsSaving(std::u16string_view path) const {
  const TCSave* last = LastSaveOf(path);
  return last != nullptr && !HasCome(last->onDisk, std::chrono::milliseconds(0));
}

bool TCDocumentSaver::DropEndedSaves() {
  return std::erase_if(underWay, [this](const TCSave& save) {
           if (!HasCome(save.onDisk, std::chrono::milliseconds(0))) return false;
           // One that failed has left a copy of its own, and both stay.
           if (!save.copy.empty() && save.onDisk.get()) files.DeleteFile(save.copy);
           return true;
         }) > 0;
}

void TCDocumentSaver::CopyWhatHangs() {
  for (TCSave& save : underWay) {
    if (&save != LastSaveOf(save.path) || !save.copy.empty() || HasCome(save.onDisk, kDiskPatience)) continue;
    save.copy = WriteRecoveryCopy(files, recoveryFolder, FileNamePart(save.path), *save.lines);
  }
}

void TCDocumentSaver::WaitFor(std::u16string_view path) {
  const TCSave* last = LastSaveOf(path);
  if (last == nullptr) return;
  CopyWhatHangs();
  last->onDisk.wait();
  DropEndedSaves();
}

void TCDocumentSaver::Finish(std::chrono::milliseconds patience) {
  CopyWhatHangs();
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (const TCSave& save : underWay) {
    if (&save != LastSaveOf(save.path)) continue;
    if (save.copy.empty()) {
      save.onDisk.wait();
    } else {
      save.onDisk.wait_until(deadline);
    }
  }
  DropEndedSaves();
  underWay.clear();
}

}  // namespace brevant
