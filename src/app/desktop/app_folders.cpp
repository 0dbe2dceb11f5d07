#include "app/desktop/app_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <string_view>

#include "text/native_path.h"

namespace brevant {
namespace {

constexpr std::u16string_view kOurFolder = u"Korvel\\Brevant\\";

// Empty when the model cannot hold the path.
std::u16string FolderPath(const std::string& native) {
  std::u16string path = TCNativePaths::FromNative(native).value_or(std::u16string());
  if (!path.empty() && path.back() != u'\\') path += u'\\';
  return path;
}

// A relative folder in these variables is to be taken for none.
std::u16string BaseFolder(const std::string& variable, const std::string& home, std::string_view inHome) {
  const bool usable = !variable.empty() && variable.front() == '/';
  return FolderPath(usable ? variable : home + "/" + std::string(inHome));
}

// Of the running executable.
std::u16string ProgramFolder(const TCFolderHints& hints) {
  return FolderPath(hints.program);
}

std::string Native(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace

TCFolderHints AskSystemForFolders() {
  return {qgetenv("XDG_CONFIG_HOME").toStdString(), qgetenv("XDG_STATE_HOME").toStdString(),
          Native(QDir::homePath()), Native(QCoreApplication::applicationDirPath())};
}

TCProgramFolders FindProgramFolders(TCFileSystem& files, const TCFolderHints& hints) {
  TCProgramFolders folders;
  folders.program = ProgramFolder(hints);
  folders.settings = BaseFolder(hints.configHome, hints.home, ".config");
  if (!folders.settings.empty()) folders.settings += kOurFolder;
  if (folders.settings.empty() || !files.MakeFolder(folders.settings)) folders.settings = folders.program;

  folders.recovery = BaseFolder(hints.stateHome, hints.home, ".local/state");
  if (folders.recovery.empty()) folders.recovery = folders.settings;
  folders.recovery += kOurFolder;
  folders.recovery += u"recovery\\";
  return folders;
}

}  // namespace brevant
