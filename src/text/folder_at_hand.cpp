#include "text/folder_at_hand.h"

namespace brevant {

std::optional<TCFolderAtHand> TCFolderAtHand::Open(const std::string& native) {
  TCFolderAtHand atHand;
  atHand.folder.reset(opendir(native.c_str()));
  if (!atHand.folder) return std::nullopt;
  atHand.names = TCFolderNames::Read(atHand.folder.get());
  if (!atHand.names.Complete()) return std::nullopt;
  return atHand;
}

}  // namespace brevant
