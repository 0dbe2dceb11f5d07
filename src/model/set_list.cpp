#include "model/set_list.h"

#include "text/path_parts.h"

namespace brevant {

std::u16string_view StatusText(TCSongStatus status) {
  switch (status) {
    case TCSongStatus::Found:
      return TextOf(TCTextId::Found);
    case TCSongStatus::NotFound:
      return TextOf(TCTextId::NotFound);
    case TCSongStatus::Pending:
      break;
  }
  return TextOf(TCTextId::Pending);
}

const TCSharedText& DefaultOption1() {
  static const TCSharedText kText = u"30";
  return kText;
}

const TCSharedText& DefaultOption2() {
  static const TCSharedText kText{std::u16string(TextOf(TCTextId::Yes))};
  return kText;
}

std::u16string TCPlayListItem::FullPath() const {
  std::u16string path;
  path.reserve(folder.str().size() + fileName.size());
  path += folder.str();
  path += fileName;
  return path;
}

void TCPlayListItem::SetPath(std::u16string_view path) {
  fileName = FileNamePart(path);
  folder = FolderPart(path);
  extension = ExtensionPart(path);
}

void TCPlayListItem::SetPath(std::u16string_view path, TCSongTexts& texts) {
  fileName = FileNamePart(path);
  folder = texts.folders.Share(FolderPart(path));
  extension = texts.extensions.Share(ExtensionPart(path));
}

}  // namespace brevant
