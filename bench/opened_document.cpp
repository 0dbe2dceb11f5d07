#include "opened_document.h"

#include <cstdio>
#include <filesystem>

namespace brevant {

std::u16string DocumentArgument(int argc, char** argv) {
  if (argc < 2) {
    std::fprintf(stderr, "usage: %s DOCUMENT.brv\n", argv[0]);
    return {};
  }
  const std::string native = std::filesystem::absolute(argv[1]).string();
  const std::u16string path = TCNativePaths::FromNative(native).value_or(std::u16string());
  if (TCOpenedDocument().Open(path)) return path;
  std::fprintf(stderr, "%s: cannot be opened\n", native.c_str());
  return {};
}

}  // namespace brevant
