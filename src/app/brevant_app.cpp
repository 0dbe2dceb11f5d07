#include "app/brevant_app.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QItemSelectionModel>
#include <QMenuBar>
#include <utility>
#include <vector>

#include "app/commands/command_menus.h"
#include "app/commands/tree_keys.h"
#include "app/dialogs/about_box.h"
#include "app/dialogs/refused_name.h"
#include "app/look/picture_icon.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

TCAppRecord LoadRecord(const TCSettingsFile& settingsFile) {
  TCAppRecord record;
  settingsFile.LoadSettings(record);
  // A face chosen in an earlier run does not come back; the sizes do.
  record.settings.playListFontTypeName = kDefaultFontFace;
  record.settings.lyricsFontTypeName = kDefaultFontFace;
  return record;
}

// Without a settings file it is a first start, whatever else is left from an earlier one.
bool RestoresWindow(const TCSettings& settings) {
  return settings.loadLastWindowState && settings.settingsFileFound;
}

}  // namespace

TCBrevantApp::TCBrevantApp(const TCAppParts& parts)
    : files(parts.files),
      layout(parts.layoutFile, QSettings::IniFormat),
      recentFiles(layout),
      settingsFile(parts.files, parts.folders.settings),
      record(LoadRecord(settingsFile)),
      frame(record.settings, parts.player, parts.monitor),
      prompts(frame, record.setLists, parts.files, parts.paths),
      document({.record = record,
                .files = parts.files,
                .player = &parts.player,
                .playlistView = frame.PlaylistView(),
                .treeView = frame.Tree(),
                .messages = frame.MessageDisplay(),
                .frame = frame,
                .prompts = prompts,
                .folders = parts.folders,
                .lengthProbe = parts.lengthProbe,
                .repeatFields = &frame.PlayControls(),
                .properties = &frame.Properties(),
                .recentFiles = &recentFiles}),
      router(frame, document, help, recentFiles, parts.libraries),
      actions(router, frame),
      keyFilter(actions, frame),
      fileDrops(frame),
      closeGuard(frame, layout, settingsFile, record, document),
      playlistMenu(MakeContextMenu(TCContextMenu::Playlist, actions, frame)),
      treeMenu(MakeContextMenu(TCContextMenu::Tree, actions, frame)) {
  const bool restores = RestoresWindow(record.settings);
  if (restores) {
    frame.RestorePlacement(layout);
    frame.Bars().RestoreItems(layout);
  }
  FillMenuBar(*frame.menuBar(), actions);
  frame.Bars().Fill(actions);  // into the rows that the window's width asks for
  if (restores) frame.RestoreLayout(layout);
  ConnectParts();
  document.OnNewDocument();
}

void TCBrevantApp::ConnectPlaylist() {
  TCBrevantView& view = frame.PlaylistView();
  connect(&view, &TCBrevantView::pollDue, this, [this] { document.OnPlayTimerTick(); });
  connect(&view, &TCBrevantView::rowPicked, this, [this](int row) { document.PickRow(row); });
  connect(&view, &TCBrevantView::rowMoved, this, [this](int from, int to) { document.MoveRow(from, to); });
  connect(&view, &TCBrevantView::ctrlDragReleased, this, &TCBrevantApp::DropRowsAt);
  connect(&view, &TCBrevantView::contextMenuWanted, this,
          [this](QPoint position) { playlistMenu->popup(position); });
}

void TCBrevantApp::ConnectTree() {
  using TCTree = TCPlayListManagerTreeView;
  TCTree& tree = frame.Tree();
  connect(&tree, &TCTree::nodePressed, this, [this](TCTreeNode node) { document.PressNode(node); });
  connect(&tree, &TCTree::nodePicked, this, [this](TCTreeNode node) { document.PickNode(node); });
  connect(&tree, &TCTree::enterPressed, this, [this] { document.EnterOnNode(); });
  tree.SetRename(
      [this](TCTreeNode node, const QString& name) { return document.RenameNode(node, FromQString(name)); });
  connect(&tree, &TCTree::nodeMoved, this,
          [this](TCTreeNode source, TCTreeNode target) { document.MoveNode(source, target); });
  // Queued: the placing may ask for a name, and not inside the click. The mouse may have selected another
  // place by then.
  connect(
      &tree, &TCTree::placeWanted, this,
      [this, &tree](TCTreeNode at) {
        tree.SelectNode(at);
        document.PlacePendingFiles();
      },
      Qt::QueuedConnection);
  connect(&tree, &TCTree::contextMenuWanted, this, [this](QPoint position) { treeMenu->popup(position); });
  keyFilter.LetKeep(tree, [&tree](int key, Qt::KeyboardModifiers modifiers) {
    return TreeKeepsKey(key, modifiers, tree.SelectedKind());
  });
}

void TCBrevantApp::ConnectProperties() {
  TCPropertiesPane& pane = frame.Properties();
  connect(&pane, &TCPropertiesPane::built, this, [this] { document.RefreshProperties(); });
  connect(frame.PlaylistView().selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this] { document.RefreshProperties(); });
  keyFilter.LetKeep(pane, [&pane](int key, Qt::KeyboardModifiers modifiers) {
    return PropertiesKeepKey(key, modifiers, pane.SelectedRowIsEditable());
  });
}

// What is under the mouse decides, although the mouse stays with the playlist until it is released.
void TCBrevantApp::DropRowsAt(QPoint globalPosition) {
  const QWidget* target = QApplication::widgetAt(globalPosition);
  if (target == nullptr) return;
  if (target == &frame.Tree() || frame.Tree().isAncestorOf(target)) {
    document.DropRowsOnTree();
  } else if (target == &frame.PlaylistView() || frame.PlaylistView().isAncestorOf(target)) {
    document.DropRowsOnPlaylist();
  }
}

void TCBrevantApp::OnDropFiles(const QList<QByteArray>& nativeNames) {
  std::vector<std::u16string> paths;
  std::u16string refused;
  for (const QByteArray& name : nativeNames) {
    if (std::optional<std::u16string> path = TCNativePaths::FromNative(name.toStdString())) {
      paths.push_back(std::move(*path));
    } else {
      refused = RefusedNameText(name.toStdString());
    }
  }
  document.DropFiles(std::move(paths));
  if (!refused.empty()) frame.ShowStatus(refused);
}

void TCBrevantApp::ConnectParts() {
  ConnectPlaylist();
  ConnectTree();
  ConnectProperties();
  connect(&help, &TCHelp::windowMade, this, [this](QWidget& window) { keyFilter.PerformIn(window); });
  connect(&fileDrops, &TCFileDrops::filesDropped, this, &TCBrevantApp::OnDropFiles);

  TCWMPPaneContainer& pane = frame.PlayerPane();
  connect(&pane, &TCWMPPaneContainer::playWanted, this, [this] { router.OnCommand(TCCommandId::Play); });
  connect(&pane, &TCWMPPaneContainer::pauseWanted, this,
          [this] { router.OnCommand(TCCommandId::PauseContinue); });
  connect(&pane, &TCWMPPaneContainer::stopWanted, this, [this] { router.OnCommand(TCCommandId::Stop); });

  if (QAction* command = actions.ActionOf(TCCommandId::RecentFile)) {
    recentFileMenu.emplace(*command, *frame.menuBar(), recentFiles);
    connect(&*recentFileMenu, &TCRecentFileMenu::openWanted, this,
            [this](const std::u16string& path) { document.OpenDocumentFile(path); });
  }

  connect(&frame, &TCMainFrame::marksChanged, &actions, &TCCommandActions::RefreshChecks);
}

void TCBrevantApp::InitInstance(const TCStartFile& startFile) {
  frame.show();
  frame.PlaylistView().TakeFocus();
  firstFile = startFile;
  firstPaint.emplace(frame, [this] {
    QApplication::setWindowIcon(ProgramIcon());  // drawn in many sizes, so not before
    OpenFirstDocument();
    RestoreWindow();
    closeGuard.StartIsOver();
    fileDrops.Accept();
    router.OnAppAbout();
  });
}

void TCBrevantApp::RestoreWindow() {
  if (!RestoresWindow(record.settings)) return;
  frame.RestorePlacement(layout);
  if (record.settings.liveViewMode) frame.EnterLiveView();
}

void TCBrevantApp::OpenFirstDocument() {
  firstDocumentOpened = true;
  if (firstFile.named) {
    OpenNamed(firstFile);
  } else if (record.settings.loadLastFileOnProgramRun) {
    LoadLastFile();
  }
}

void TCBrevantApp::OpenNamed(const TCStartFile& file) {
  if (file.modelPath) {
    document.OpenDocumentFile(*file.modelPath);
  } else {
    frame.ShowStatus(RefusedNameText(file.native));
  }
}

void TCBrevantApp::ComeForward() {
  frame.setWindowState(frame.windowState() & ~Qt::WindowMinimized);
  frame.show();
  frame.raise();
  QWidget* dialog = QApplication::activeModalWidget();
  if (dialog != nullptr) dialog->raise();
  (dialog != nullptr ? dialog : &frame)->activateWindow();
}

bool TCBrevantApp::IsHeldByDialog(const std::string& nativeName) {
  if (QApplication::activeModalWidget() == nullptr) return false;
  frame.ShowStatus(u"Not opened while a dialog is open: " +
                   FromQString(QFileInfo(QFile::decodeName(nativeName.c_str())).fileName()));
  return true;
}

bool TCBrevantApp::OpenFromOutside(const std::string& nativeName) {
  const TCStartFile wanted{true, nativeName, TCNativePaths::FromNative(nativeName)};
  if (!firstDocumentOpened) {
    firstFile = wanted;
    return true;
  }
  TCAboutBox::Close(frame);  // it asks nothing
  ComeForward();
  if (IsHeldByDialog(nativeName)) return false;
  // Not inside the call: the user may be asked something, and whoever called waits for an answer.
  QMetaObject::invokeMethod(
      this,
      [this, wanted] {
        if (!IsHeldByDialog(wanted.native)) OpenNamed(wanted);
      },
      Qt::QueuedConnection);
  return true;
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
