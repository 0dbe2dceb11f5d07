#include "app/brevant_app.h"

#include <QApplication>
#include <QMenuBar>

#include "app/about_box.h"
#include "app/command_menus.h"
#include "app/picture_icon.h"
#include "app/refused_name.h"

namespace brevant {
namespace {

constexpr std::u16string_view kFontFace = u"Times New Roman";

TCAppRecord LoadRecord(const TCSettingsFile& settingsFile) {
  TCAppRecord record;
  settingsFile.LoadSettings(record);
  // A face chosen in an earlier run does not come back; the sizes do.
  record.settings.playListFontTypeName = kFontFace;
  record.settings.lyricsFontTypeName = kFontFace;
  return record;
}

}  // namespace

TCBrevantApp::TCBrevantApp(const TCAppParts& parts)
    : files(parts.files),
      libraries(parts.libraries),
      layout(parts.layoutFile, QSettings::IniFormat),
      settingsFile(parts.files, parts.folders.settings),
      record(LoadRecord(settingsFile)),
      frame(record.settings, parts.player, parts.monitor),
      prompts(frame, record.setLists, parts.paths),
      document({.record = record,
                .files = parts.files,
                .player = &parts.player,
                .playlistView = frame.PlaylistView(),
                .messages = frame.MessageDisplay(),
                .frame = frame,
                .prompts = prompts,
                .folders = parts.folders,
                .lengthProbe = parts.lengthProbe,
                .repeatFields = &frame.PlayControls()}),
      router(frame, document, libraries),
      actions(router, frame),
      keyFilter(actions, frame),
      closeGuard(frame, layout, settingsFile, record, document),
      playlistMenu(MakeContextMenu(TCContextMenu::Playlist, actions, frame)) {
  if (record.settings.loadLastWindowState) frame.RestoreLayout(layout);
  FillMenuBar(*frame.menuBar(), actions);
  frame.PlayControls().Fill(actions);
  ConnectParts();
  document.OnNewDocument();
}

void TCBrevantApp::ConnectParts() {
  TCBrevantView& view = frame.PlaylistView();
  connect(&view, &TCBrevantView::pollDue, this, [this] { document.OnPlayTimerTick(); });
  connect(&view, &TCBrevantView::rowPicked, this, [this](int row) { document.PickRow(row); });
  connect(&view, &TCBrevantView::contextMenuWanted, this,
          [this](QPoint position) { playlistMenu->popup(position); });

  TCWMPPaneContainer& pane = frame.PlayerPane();
  connect(&pane, &TCWMPPaneContainer::playWanted, this, [this] { router.OnCommand(TCCommandId::Play); });
  connect(&pane, &TCWMPPaneContainer::pauseWanted, this,
          [this] { router.OnCommand(TCCommandId::PauseContinue); });
  connect(&pane, &TCWMPPaneContainer::stopWanted, this, [this] { router.OnCommand(TCCommandId::Stop); });

  connect(&frame, &TCMainFrame::marksChanged, &actions, &TCCommandActions::RefreshChecks);
}

void TCBrevantApp::InitInstance(const TCStartFile& startFile) {
  frame.show();
  frame.PlaylistView().TakeFocus();
  firstPaint.emplace(frame, [this, startFile] {
    QApplication::setWindowIcon(ProgramIcon());  // drawn in many sizes, so not before
    OpenFirstDocument(startFile);
    TCAboutBox::Open(libraries, frame);
  });
}

void TCBrevantApp::OpenFirstDocument(const TCStartFile& startFile) {
  if (!startFile.named) {
    if (record.settings.loadLastFileOnProgramRun) LoadLastFile();
  } else if (startFile.modelPath) {
    document.OpenDocumentFile(*startFile.modelPath);
  } else {
    frame.ShowStatus(RefusedNameText(startFile.native));
  }
}

void TCBrevantApp::LoadLastFile() {
  const std::u16string path = settingsFile.LastLoadedFileName();
  if (!path.empty() && files.FileExists(path)) document.OnOpenDocument(path);
}

void TCBrevantApp::EndSession() {
  closeGuard.EndSession();
  // Not quit(): that would ask the window first, and the window would ask the user.
  QCoreApplication::exit(0);
}

}  // namespace brevant
