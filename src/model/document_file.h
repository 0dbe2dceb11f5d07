// Document files (.brv). Two forms are read: the flat form, one line a song, which is also what is written,
// and the folder form, one group list file a line. Fills and reads the set-list store; user-interface thread
// only, but for the functions at the end.
#pragma once

#include <string_view>

#include "model/message_display.h"
#include "model/set_list_store.h"
#include "text/file_system.h"
#include "text/text_lines.h"

namespace brevant {

class TCDocumentFile {
 public:
  TCDocumentFile(TCFileSystem& fileSystem, TCSetListStore& setLists, TCMessageDisplay& messageDisplay);

  // Into a store that was cleared before. False when the file cannot be read; a file without lines is an
  // empty document. What could be read is kept, whatever is missing beside it.
  bool OpenSetListDocument(std::u16string_view path);

  // `bytes` are the whole file. A first line with "brvgl" anywhere in it makes a document of the folder form,
  // whose lines are looked for from the document's folder. Always true: what cannot be read stays empty.
  bool LoadFolderDocument(std::string_view bytes);
  // Always true: every line is a song.
  bool LoadFlatDocument(std::string_view bytes);

  // Makes `path` the document's; what is returned is for SaveSetListDocument.
  [[nodiscard]] TextLines PrepareSave(std::u16string_view path);

  // The lines that a save writes, in the order group, playlist, song.
  [[nodiscard]] TextLines FlatLines() const;

 private:
  void SetDocumentPath(std::u16string_view path);

  TCFileSystem& files;
  TCSetListStore& store;
  TCMessageDisplay& messages;
};

// When a save keeps what stood there before as "NAME.brv~".
enum class TCKeepOldFile {
  IfForeign,  // when this program could not have read it whole
  Always,
};

// Writes the flat form; knows nothing of the set lists, so any thread may do it with a file system of its
// own. False when that failed, and also when there is no line, which is no song, to write, or when what is to
// be kept cannot be: the file is then left as it was.
[[nodiscard]] bool SaveSetListDocument(TCFileSystem& files, std::u16string_view path, const TextLines& lines,
                                       TCKeepOldFile keep = TCKeepOldFile::IfForeign);

// True for the type of a document file, in any case.
[[nodiscard]] bool IsDocumentPath(std::u16string_view path);

// True when a document written from what was read says all that `bytes` say: UTF-16, every line ended,
// nothing but songs. The folder form says more: which group list files, also those that were missing.
[[nodiscard]] bool IsWholeDocument(std::string_view bytes);

}  // namespace brevant
