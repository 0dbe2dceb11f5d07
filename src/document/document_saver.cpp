#include "document/document_saver.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "document/recovery_copy.h"
#include "model/document_file.h"
#include "text/case_folding.h"
#include "text/disk_question.h"
#include "text/path_parts.h"

namespace brevant {
namespace {

constexpr std::chrono::milliseconds kNow(0);
constexpr std::chrono::milliseconds kBeforeLookingAgain(10);

}  // namespace

bool TCDocumentSaver::TCSave::CameThrough() const {
  return HasCome(onDisk, kNow) && onDisk.get();
}

bool TCDocumentSaver::TCSave::IsCopied() const {
  return HasCome(copy, kNow) && !copy.get().empty();
}

bool TCDocumentSaver::TCSave::HasEnded() const {
  return HasCome(onDisk, kNow) && HasCome(copy, kNow);
}

TCDocumentSaver::TCDocumentSaver(TCFileSystem& fileSystem, std::u16string_view recovery)
    : files(fileSystem), recoveryFolder(recovery) {
  SetUnreadFile({});
}

void TCDocumentSaver::SetUnreadFile(std::u16string_view path) {
  unread = std::make_shared<TCUnreadFile>();
  unread->path = path;
}

void TCDocumentSaver::Save(std::u16string_view path, TextLines lines) {
  if (lines.empty()) return;
  const auto kept = std::make_shared<const TextLines>(std::move(lines));
  TCSave save{std::u16string(path), kept, WriteBehindOthers(path, kept), {}};
  if (HasCome(save.onDisk, kDiskPatience) && save.onDisk.get()) return;
  save.copy = AskDisk(files, [folder = recoveryFolder, name = FileNamePart(path), kept](TCFileSystem& disk) {
    return WriteRecoveryCopy(disk, folder, name, *kept);
  });
  underWay.push_back(std::move(save));
}

std::shared_future<bool> TCDocumentSaver::WriteBehindOthers(std::u16string_view path,
                                                            std::shared_ptr<const TextLines> lines) {
  std::shared_future<bool> before;
  if (const TCSave* last = LastSaveOf(path)) before = last->onDisk;
  const auto write = [file = std::u16string(path), lines = std::move(lines), before,
                      old = unread](TCFileSystem& disk) {
    if (before.valid()) before.wait();
    const bool isUnread = EqualIgnoringCase(file, old->path) && !old->replaced;
    const bool saved =
        SaveSetListDocument(disk, file, *lines, isUnread ? TCKeepOldFile::Always : TCKeepOldFile::IfForeign);
    if (saved && isUnread) old->replaced = true;
    return saved;
  };
  return AskDisk(files, write);
}

void TCDocumentSaver::KeepRecoveryCopy(std::u16string_view path, const TextLines& lines) {
  if (!lines.empty()) WriteRecoveryCopy(files, recoveryFolder, FileNamePart(path), lines);
}

const TCDocumentSaver::TCSave* TCDocumentSaver::LastSaveOf(std::u16string_view path) const {
  const auto last = std::find_if(underWay.rbegin(), underWay.rend(),
                                 [path](const TCSave& save) { return EqualIgnoringCase(save.path, path); });
  return last == underWay.rend() ? nullptr : &*last;
}

bool TCDocumentSaver::IsSaving(std::u16string_view path) const {
  const TCSave* last = LastSaveOf(path);
  return last != nullptr && !HasCome(last->onDisk, kNow);
}

void TCDocumentSaver::TakeBackCopy(const TCSave& save) {
  if (save.IsCopied()) RemoveRecoveryCopy(files, save.copy.get(), *save.lines);
}

bool TCDocumentSaver::DropEndedSaves() {
  bool news = false;
  for (TCSave& save : underWay) {
    if (!save.told && HasCome(save.onDisk, kNow)) news = save.told = true;
  }
  std::erase_if(underWay, [this](const TCSave& save) {
    if (!save.HasEnded()) return false;
    if (save.CameThrough()) TakeBackCopy(save);
    return true;
  });
  return news;
}

void TCDocumentSaver::WaitFor(std::u16string_view path) {
  const TCSave* last = LastSaveOf(path);
  if (last == nullptr) return;
  last->onDisk.wait();
  DropEndedSaves();
}

void TCDocumentSaver::Finish(std::chrono::milliseconds patience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (const TCSave& save : underWay) {
    save.onDisk.wait_until(deadline);
    save.copy.wait_until(deadline);
    if (&save != LastSaveOf(save.path)) continue;  // of several saves of one file only the last one counts
    while (!save.CameThrough() && !save.IsCopied() && !save.HasEnded()) {
      std::this_thread::sleep_for(kBeforeLookingAgain);
    }
  }
  DropEndedSaves();
  for (const TCSave& save : underWay) {
    if (&save != LastSaveOf(save.path)) TakeBackCopy(save);
  }
  underWay.clear();
}

}  // namespace brevant
