#include "app/main_frame.h"

#include <QApplication>
#include <QScreen>
#include <QStatusTipEvent>
#include <algorithm>

#include "app/picture_icon.h"
#include "app/stage_palette.h"
#include "resources/icons/icon_names.h"
#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr QSize kDefaultSize(1600, 1000);
// Kept free for the title bar and borders that a window manager adds.
constexpr QSize kWindowBorders(16, 48);
constexpr QSize kPaneSize(400, 200);
constexpr int kManagerWidth = 400;
// The panes below the playlist have a third of a tall window: three lyric lines of the usual size. The one
// beside it has a third of a narrow window.
constexpr int kPaneShare = 3;
constexpr std::int32_t kMessageLines = 1024;
constexpr int kFullVolume = 100;

}  // namespace

TCMainFrame::TCMainFrame(const TCSettings& programSettings, TCPlayer& player, const TCPlayerMonitor& monitor)
    : settings(programSettings),
      inner(new QMainWindow(this)),
      view(new TCBrevantView(inner)),
      tree(new TCPlayListManagerTreeView(inner)),
      properties(new TCPropertiesPane(inner)),
      playerPane(new TCWMPPaneContainer(&player, &monitor, inner)),
      messageDisplay(new TCGeneralReportsTab(inner)),
      playControls(new TCPlayControlsBar(this)),
      bars(*this, *playControls),
      statusLine(new TCStatusLine(this)) {
  setObjectName(QStringLiteral("MainFrame"));
  setContextMenuPolicy(Qt::NoContextMenu);
  setStatusBar(statusLine);
  // By itself a main window is always a window of its own, whatever its parent.
  inner->setWindowFlags(Qt::Widget);
  setCentralWidget(inner);
  inner->setAccessibleName(QStringLiteral("Playlist and panes"));
  inner->setContextMenuPolicy(Qt::NoContextMenu);
  inner->setCentralWidget(view);

  managerDock = AddPane(TCCommandId::PlaylistManagerPane, TCTextId::PlaylistManagerPaneTitle, *tree);
  propertiesDock = AddPane(TCCommandId::PropertiesPane, TCTextId::PropertiesPaneTitle, *properties);
  playerDock = AddPane(TCCommandId::PlayerPane, TCTextId::PlayerPaneTitle, *playerPane);
  messageDock = AddPane(TCCommandId::MessagePane, TCTextId::MessagePaneTitle, *messageDisplay);
  PlaceOnScreen();
  ArrangePanes();

  ConnectViews();
  DressViews();
  player.SetVolume(kFullVolume);
  messageDisplay->Enable(kMessageLines);
  ShowTitle({}, TCModifiedMark::Clean);
  ShowOptions();
  messageDisplay->AppendMessage(TCTextId::Banner);
}

TCMainFrame::~TCMainFrame() {
  // The panes go with the toolkit's part of this window and tell of it, when nobody is left to be told.
  for (QDockWidget* pane : {managerDock, propertiesDock, playerDock, messageDock}) pane->disconnect(this);
}

void TCMainFrame::ConnectViews() {
  connect(playControls, &TCPlayControlsBar::typingEnded, view, [this] { view->TakeFocus(); });
  connect(&bars, &TCBarSet::shownBarsChanged, this, &TCMainFrame::marksChanged);
  // The mouse stays with the playlist while songs are dragged out of it; the tree shows where they would go.
  connect(view, &TCBrevantView::ctrlDragMoved, tree, &TCPlayListManagerTreeView::FollowCtrlDrag);
  connect(view, &TCBrevantView::ctrlDragEnded, tree, &TCPlayListManagerTreeView::EndCtrlDrag);
}

void TCMainFrame::DressViews() {
  view->SetRowPicture(PictureIcon(kRowIcon));
  TCSetListTreeModel::TCPictures pictures;
  std::ranges::transform(kTreeIcons, pictures.begin(), PictureIcon);
  tree->SetPictures(pictures);
  const TCStageCursors cursors{PictureCursor(kRowCursor), PictureCursor(kPressedCursor),
                               PictureCursor(kDragCursor), PictureCursor(kBusyCursor)};
  view->SetCursors(cursors);
  tree->SetCursors(cursors);
}

void TCMainFrame::SaveLayout(QSettings& layout) const {
  view->SaveColumnWidths(layout);
}

void TCMainFrame::RestoreLayout(const QSettings& layout) {
  view->LoadColumnWidths(layout);
}

QDockWidget* TCMainFrame::AddPane(TCCommandId id, TCTextId title, QWidget& content) {
  auto* pane = new QDockWidget(ToQString(TextOf(title)), inner);
  // Saved layouts know a pane by this name.
  pane->setObjectName(QStringLiteral("Pane%1").arg(static_cast<int>(id)));
  pane->setWidget(&content);
  pane->setWhatsThis(content.whatsThis());
  connect(pane, &QDockWidget::visibilityChanged, this, &TCMainFrame::marksChanged);
  return pane;
}

void TCMainFrame::ArrangePanes() {
  inner->addDockWidget(Qt::LeftDockWidgetArea, managerDock);
  inner->addDockWidget(Qt::BottomDockWidgetArea, propertiesDock);
  inner->splitDockWidget(propertiesDock, playerDock, Qt::Horizontal);
  inner->splitDockWidget(playerDock, messageDock, Qt::Horizontal);
  // On a small screen the playlist keeps the most of the width.
  inner->resizeDocks({managerDock}, {std::min(kManagerWidth, width() / kPaneShare)}, Qt::Horizontal);
  constexpr int kEach = kPaneSize.width();
  inner->resizeDocks({propertiesDock, playerDock, messageDock}, {kEach, kEach, kEach}, Qt::Horizontal);
  inner->resizeDocks({playerDock}, {std::max(kPaneSize.height(), height() / kPaneShare)}, Qt::Vertical);
}

void TCMainFrame::PlaceOnScreen() {
  resize(kDefaultSize.boundedTo(screen()->availableSize() - kWindowBorders));
}

bool TCMainFrame::Handles(TCCommandId command) {
  switch (command) {
    case TCCommandId::PlaylistManagerPane:
    case TCCommandId::PropertiesPane:
    case TCCommandId::PlayerPane:
    case TCCommandId::MessagePane:
    case TCCommandId::ToolbarVisible:
    case TCCommandId::StatusBarVisible:
    case TCCommandId::Exit:
      return true;
    default:
      return false;
  }
}

bool TCMainFrame::OnCommand(TCCommandId command) {
  if (QDockWidget* pane = PaneOf(command)) {
    pane->setVisible(pane->isHidden());
  } else if (command == TCCommandId::ToolbarVisible) {
    bars.Toggle();
  } else if (command == TCCommandId::StatusBarVisible) {
    statusLine->setVisible(statusLine->isHidden());
  } else if (command == TCCommandId::Exit) {
    close();
  } else {
    return false;
  }
  return true;
}

bool TCMainFrame::IsChecked(TCCommandId command) const {
  // "Hidden" is what somebody asked for; a pane behind another tab or in a window not yet shown is open.
  if (const QDockWidget* pane = PaneOf(command)) return !pane->isHidden();
  if (command == TCCommandId::ToolbarVisible) return bars.AnyShown();
  return command == TCCommandId::StatusBarVisible && !statusLine->isHidden();
}

QDockWidget* TCMainFrame::PaneOf(TCCommandId command) const {
  switch (command) {
    case TCCommandId::PlaylistManagerPane:
      return managerDock;
    case TCCommandId::PropertiesPane:
      return propertiesDock;
    case TCCommandId::PlayerPane:
      return playerDock;
    case TCCommandId::MessagePane:
      return messageDock;
    default:
      return nullptr;
  }
}

void TCMainFrame::ShowTitle(std::u16string_view name, TCModifiedMark modified) {
  const QString program = ToQString(DocumentTemplateText(TCDocumentTemplateField::WindowTitle));
  // "[*]" is where the toolkit puts the modified mark; doubled it is a part of the file's name.
  const QString mark = QStringLiteral("[*]");
  const QString shownName = ToQString(name).replace(mark, QString(mark + mark));
  const QString title = shownName.isEmpty() ? QString(program + mark)
                                            : QString(shownName + mark + QStringLiteral(" - ") + program);
  setWindowTitle(title);
  setWindowModified(modified == TCModifiedMark::Modified);
}

void TCMainFrame::ShowOptions() {
  // Whatever is set is drawn anew, the same value too, and a window that flickers at every option distracts
  // on a stage.
  const TCShownLook look{settings.textColour, settings.backgroundColour, settings.whiteOnBlack};
  const TCShownType playlistType{settings.playListFontTypeName, settings.playListFontSize};
  const TCShownType lyricType{settings.lyricsFontTypeName, settings.lyricsFontSize};
  const bool lookChanged = shownLook != look;
  const QColor text = ToColour(look.text);
  const QColor background = ToColour(look.background);
  if (lookChanged) {
    // Of the application, not of this window alone: menus and dialogs are windows of their own.
    QApplication::setPalette(StagePalette(look.text, look.background));
    QApplication::setPalette(MenuPalette(look.text, look.background), "QMenu");
    view->SetBackground(text, background);
    messageDisplay->SetLook(look.whiteOnBlack ? TCPaneLook::WhiteOnBlack : TCPaneLook::BlackOnWhite);
  }
  if (shownPlaylistType != playlistType) view->SetDisplayFont(playlistType.face, playlistType.points);
  if (lookChanged || shownLyricType != lyricType)
    messageDisplay->SetDisplayFont(ToQString(lyricType.face), lyricType.points, text, background);
  shownLook = look;
  shownPlaylistType = playlistType;
  shownLyricType = lyricType;
  Q_EMIT marksChanged();
}

void TCMainFrame::ShowStatus(std::u16string_view text) {
  statusLine->ShowMessage(ToQString(text));
}

void TCMainFrame::ShowPlacing(TCPlacing placing, std::u16string_view hint) {
  view->SetPlacing(placing);
  tree->SetPlacing(placing);
  statusLine->ShowStanding(placing == TCPlacing::Waiting ? ToQString(hint) : QString());
}

bool TCMainFrame::event(QEvent* event) {
  // The toolkit would show what a menu entry does in a way that no screen reader sees.
  if (event->type() == QEvent::StatusTip) {
    statusLine->ShowHint(static_cast<QStatusTipEvent*>(event)->tip());
    return true;
  }
  return QMainWindow::event(event);
}

}  // namespace brevant
