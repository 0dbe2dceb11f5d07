// Prints the user guide's page of keys:  brevant_key_table > docs/user/keys.md
#include <cstdio>

#include "resources/key_page.h"

int main() {
  const std::string page = brevant::KeyPage();
  return std::fwrite(page.data(), 1, page.size(), stdout) == page.size() ? 0 : 1;
}
