// A disk in memory for the tests of every room: it fails on command and remembers what was asked of it. Names
// match without regard to case, as on the real disk; every folder is taken to exist.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/utf16.h"
#include "text/case_folding.h"
#include "text/file_system.h"

namespace brevant {

class TCMemoryFiles final : public TCFileSystem {
 public:
  // Switches. A file made unreadable is still there, but it can neither be opened nor found.
  bool failWrites = false;
  bool failCopies = false;
  bool failFolders = false;
  bool failDeletes = false;
  bool hangs = false;  // no question that is asked gets its answer until Wake

  // What was asked, in order, with the paths as they were given. Failed requests are recorded too.
  std::vector<std::u16string> existenceAsked;
  std::vector<std::u16string> reads;
  std::vector<std::u16string> writes;
  std::vector<std::u16string> foldersMade;
  std::vector<std::u16string> deletes;

  // Setting the scene; none of these is recorded.
  void Put(std::u16string_view path, std::string bytes = {}) { files[ToLower(path)] = std::move(bytes); }

  // The text as a text line file holds it: UTF-16 little-endian, no mark, line ends as they stand in `text`.
  void PutUtf16(std::u16string_view path, std::u16string_view text) { Put(path, Utf16Bytes(text)); }

  void Remove(std::u16string_view path) { files.erase(ToLower(path)); }
  void MakeUnreadable(std::u16string_view path) { unreadable.insert(ToLower(path)); }
  void MakeUnwritable(std::u16string_view path) { unwritable.insert(ToLower(path)); }
  void MakeWritable(std::u16string_view path) { unwritable.erase(ToLower(path)); }
  void MakeReadable(std::u16string_view path) { unreadable.erase(ToLower(path)); }

  // The bytes that stand there now, readable or not; empty when there is no such file.
  [[nodiscard]] std::optional<std::string> BytesOf(std::u16string_view path) const {
    const auto file = files.find(ToLower(path));
    if (file == files.end()) return std::nullopt;
    return file->second;
  }
  [[nodiscard]] std::size_t FileCount() const { return files.size(); }

  void ForgetRequests() {
    existenceAsked.clear();
    reads.clear();
    writes.clear();
    foldersMade.clear();
    deletes.clear();
  }

  [[nodiscard]] bool FileExists(std::u16string_view path) override {
    existenceAsked.emplace_back(path);
    return Readable(path) != nullptr;
  }

  void Ask(const std::function<void(TCFileSystem& disk)>& question) override {
    if (!hangs) return question(*this);
    questions.push_back(question);
  }

  // The disk no longer hangs: whoever asked meanwhile gets the answer now.
  void Wake() {
    hangs = false;
    for (const auto& question : questions) question(*this);
    questions.clear();
  }

  [[nodiscard]] std::optional<std::string> ReadFile(std::u16string_view path, std::size_t maxBytes) override {
    reads.emplace_back(path);
    const std::string* bytes = Readable(path);
    if (bytes == nullptr || bytes->size() > maxBytes) return std::nullopt;
    return *bytes;
  }

  [[nodiscard]] bool ReplaceFile(std::u16string_view path, std::string_view bytes) override {
    writes.emplace_back(path);
    if (failWrites || unwritable.contains(ToLower(path))) return false;
    files[ToLower(path)] = std::string(bytes);
    return true;
  }

  [[nodiscard]] bool CopyFile(std::u16string_view from, std::u16string_view to) override {
    const std::string* bytes = Readable(from);
    if (failCopies || bytes == nullptr) return false;
    files[ToLower(to)] = *bytes;
    return true;
  }

  [[nodiscard]] bool MakeFolder(std::u16string_view path) override {
    foldersMade.emplace_back(path);
    return !failFolders;
  }

  bool DeleteFile(std::u16string_view path) override {
    deletes.emplace_back(path);
    if (failDeletes) return !files.contains(ToLower(path));
    files.erase(ToLower(path));
    return true;
  }

 private:
  [[nodiscard]] const std::string* Readable(std::u16string_view path) const {
    const std::u16string key = ToLower(path);
    const auto file = files.find(key);
    return file == files.end() || unreadable.contains(key) ? nullptr : &file->second;
  }

  std::map<std::u16string, std::string> files;
  std::set<std::u16string> unreadable;
  std::set<std::u16string> unwritable;
  std::vector<std::function<void(TCFileSystem& disk)>> questions;
};

}  // namespace brevant
