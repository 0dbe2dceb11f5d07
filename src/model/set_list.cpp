#include "model/set_list.h"

#include "resources/string_table.h"
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

std::u16string TCPlayListItem::FullPath() const {
  std::u16string path;
  path.reserve(folder.str().size() + fileName.size());
  path += folder.str();
  path += fileName;
  return path;
}

void TCPlayListItem::SetPath(std::u16string_view path, const TCPlayListItem* neighbour) {
  fileName = FileNamePart(path);
  extension = ExtensionPart(path);
  std::u16string ownFolder = FolderPart(path);
  if (neighbour != nullptr && neighbour->folder.str() == ownFolder) {
    folder = neighbour->folder;
  } else {
    folder = std::move(ownFolder);
  }
}

}  // namespace brevant
