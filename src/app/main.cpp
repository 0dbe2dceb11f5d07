#include <QApplication>
#include <QFile>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <span>

#include "app/brevant_app.h"
#include "app/desktop/app_folders.h"
#include "app/desktop/bus_probe.h"
#include "app/desktop/command_line.h"
#include "app/desktop/drive_folders.h"
#include "app/desktop/running_program.h"
#include "app/desktop/session_end.h"
#include "app/desktop/sudden_exit.h"
#include "app/desktop/termination_signals.h"
#include "app/look/stage_style.h"
#include "playback/gst/gst_length_probe.h"
#include "playback/gst/gst_player.h"
#include "playback/gst/library_versions.h"
#include "text/disk_files.h"

namespace {

using namespace brevant;

TCCommandLine CommandLineOf(int argc, char** argv) {
  const std::span<char*> all(argv, static_cast<std::size_t>(argc));
  return ReadCommandLine({all.begin() + (all.empty() ? 0 : 1), all.end()});
}

std::string WorkingFolder() {
  std::error_code ignored;
  return std::filesystem::current_path(ignored).native();
}

TCStartFile StartFileOf(const TCCommandLine& line) {
  if (!line.file) return {};
  return {true, *line.file, ModelPathOf(*line.file, WorkingFolder())};
}

// What a second start leaves with; empty when the first one has ended instead, and this one is to go on.
std::optional<int> HandOver(TCRunningProgram& first, const TCCommandLine& line,
                            const QVariantMap& platformData) {
  std::optional<std::string> file;
  if (line.file) file = AbsoluteNameOf(*line.file, WorkingFolder());
  switch (first.HandOver(file, platformData)) {
    case TCRunningProgram::TCHandOver::Done:
      return 0;
    case TCRunningProgram::TCHandOver::DialogOpen:
      std::fputs("brevant: the running program has a dialog open, and opened nothing\n", stderr);
      return 1;
    case TCRunningProgram::TCHandOver::Gone:
      return {};
    case TCRunningProgram::TCHandOver::NoAnswer:
      break;
  }
  std::fputs("brevant: the running program does not answer\n", stderr);
  return 1;
}

QStringList LibraryNames() {
  QStringList names{QStringLiteral("Qt %1").arg(QString::fromLatin1(qVersion()))};
  for (const std::string& name : LibraryVersions()) names.append(QString::fromStdString(name));
  return names;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName(QStringLiteral("Brevant"));
  QCoreApplication::setApplicationVersion(QStringLiteral(BREVANT_VERSION));

  // Before the toolkit looks for a display: these answers need none.
  const TCLaunchWish wish = CommandLineOf(argc, argv).wish;
  if (wish == TCLaunchWish::ShowHelp) return std::fputs(UsageText().data(), stdout) < 0 ? 1 : 0;
  if (wish == TCLaunchWish::ShowVersion) return std::puts("Brevant " BREVANT_VERSION) < 0 ? 1 : 0;

  LeaveOutASilentBus();
  const QVariantMap platformData = TCRunningProgram::PlatformData();
  // The desktop finds the entry of a window by this name.
  QGuiApplication::setDesktopFileName(QStringLiteral("org.korvel.Brevant"));
  // Takes the toolkit's own options out of the arguments.
  QApplication toolkit(argc, argv);
  const TCCommandLine commandLine = CommandLineOf(argc, argv);
  if (commandLine.wish == TCLaunchWish::Refuse) {
    std::fputs(UsageText().data(), stderr);
    return 2;
  }
  TCRunningProgram running;  // is known by the time the window is built
  QApplication::setStyle(new TCStageStyle);

  TCDiskFiles ownFiles{TCNativePaths()};
  const TCProgramFolders folders = FindProgramFolders(ownFiles, AskSystemForFolders());
  const TCNativePaths paths(ReadDriveFolders(ownFiles, folders.settings));
  TCDiskFiles files(paths);
  TCGstPlayer player(paths);
  TCGstLengthProbe lengthProbe(paths);

  const QString layoutFile = QFile::decodeName(paths.ToNative(folders.settings + u"Layout.ini").c_str());
  TCBrevantApp program({files, player, player, paths, folders, layoutFile, LibraryNames(), &lengthProbe});
  if (running.Standing() == TCRunningProgram::TCStanding::Second) {
    if (const auto status = HandOver(running, commandLine, platformData)) return *status;
  }
  running.Serve(program);
  TCTerminationSignals terminationSignals;
  QObject::connect(&terminationSignals, &TCTerminationSignals::endWanted, &program,
                   &TCBrevantApp::EndSession);
  TCSessionEnd sessionEnd(toolkit);
  QObject::connect(&sessionEnd, &TCSessionEnd::endWanted, &program, &TCBrevantApp::EndSession);
  const TCSuddenExit suddenExit([&program] {
    program.Document().KeepUnsavedChanges();
    program.Document().FinishSaves();
  });
  program.InitInstance(StartFileOf(commandLine));
  const int status = QApplication::exec();
  player.Stop();
  program.Document().FinishSaves();
  return status;
}
