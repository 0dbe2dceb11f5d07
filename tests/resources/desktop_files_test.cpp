#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "resources/string_table.h"

namespace brevant {
namespace {

namespace fs = std::filesystem;

const fs::path kFiles = fs::path(BREVANT_DESKTOP_FILES);

std::string ReadFile(const fs::path& path) {
  std::ifstream file(path);
  EXPECT_TRUE(file.is_open()) << path;
  return {std::istreambuf_iterator<char>(file), {}};
}

// What stands between `before` and `after`; empty when either is missing.
std::string Between(const std::string& text, const std::string& before, const std::string& after) {
  const std::size_t start = text.find(before);
  if (start == std::string::npos) return {};
  const std::size_t end = text.find(after, start + before.size());
  if (end == std::string::npos) return {};
  return text.substr(start + before.size(), end - start - before.size());
}

TEST(DesktopFiles, OpenTheDocumentTypeThatTheMimeFileDeclares) {
  const std::string type = Between(ReadFile(kFiles / "brevant.xml"), "<mime-type type=\"", "\"");
  EXPECT_EQ(type, "application/x-brevant-document");
  EXPECT_EQ(Between(ReadFile(kFiles / "org.korvel.Brevant.desktop"), "\nMimeType=", ";\n"), type);
}

TEST(DesktopFiles, KnowADocumentByTheExtensionThatTheProgramSavesUnder) {
  const std::u16string_view extension = TextOf(TCTextId::DocumentExtension);
  EXPECT_EQ(Between(ReadFile(kFiles / "brevant.xml"), "<glob pattern=\"*.", "\""),
            std::string(extension.begin(), extension.end()));
}

TEST(DesktopFiles, NameIconsThatAreInstalled) {
  const std::string documentIcon = Between(ReadFile(kFiles / "brevant.xml"), "<icon name=\"", "\"");
  EXPECT_TRUE(fs::exists(kFiles / (documentIcon + ".svg"))) << documentIcon;
  const std::string programIcon = Between(ReadFile(kFiles / "org.korvel.Brevant.desktop"), "\nIcon=", "\n");
  EXPECT_TRUE(fs::exists(fs::path(BREVANT_ICONS) / (programIcon + ".svg"))) << programIcon;
}

TEST(DesktopFiles, GoByTheNameThatTheProgramHasOnTheBus) {
  const std::string name = "org.korvel.Brevant";
  EXPECT_NE(ReadFile(kFiles / (name + ".desktop")).find("\nDBusActivatable=true\n"), std::string::npos);
  EXPECT_EQ(Between(ReadFile(kFiles / (name + ".service.in")), "\nName=", "\n"), name);
  const std::string program = ReadFile(fs::path(BREVANT_SOURCES) / "app" / "desktop" / "running_program.cpp");
  EXPECT_NE(program.find("QStringLiteral(\"" + name + "\")"), std::string::npos);
  EXPECT_NE(program.find("QStringLiteral(\"/org/korvel/Brevant\")"), std::string::npos);
}

}  // namespace
}  // namespace brevant
