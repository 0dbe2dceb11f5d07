#include "app/main_frame.h"

#include <QApplication>
#include <QStatusTipEvent>
#include <algorithm>

#include "app/bars/customize_sheet.h"
#include "app/look/picture_icon.h"
#include "app/look/stage_palette.h"
#include "app/window_placement.h"
#include "resources/icons/icon_names.h"
#include "resources/string_table.h"
#include "views/row_colours.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr QSize kDefaultSize(1600, 1000);
constexpr std::int32_t kMessageLines = 1024;
constexpr int kFullVolume = 100;

}  // namespace

TCMainFrame::TCMainFrame(TCSettings& programSettings, TCPlayer& player, const TCPlayerMonitor& monitor)
    : settings(programSettings),
      panes(new TCPaneSet(this)),
      view(new TCBrevantView(panes)),
      tree(new TCPlayListManagerTreeView(panes)),
      properties(new TCPropertiesPane(panes)),
      playerPane(new TCWMPPaneContainer(&player, &monitor, panes)),
      messageDisplay(new TCGeneralReportsTab(panes)),
      playControls(new TCPlayControlsBar(this)),
      bars(*this, *playControls),
      statusLine(new TCStatusLine(this)) {
  OnCreate(player);
}

// Every part is there; here each gets its place and its first look.
void TCMainFrame::OnCreate(TCPlayer& player) {
  setObjectName(QStringLiteral("MainFrame"));
  setContextMenuPolicy(Qt::NoContextMenu);
  setStatusBar(statusLine);
  setCentralWidget(panes);
  PlaceOnScreen();
  panes->Fill({.playlist = *view,
               .manager = *tree,
               .properties = *properties,
               .player = *playerPane,
               .messages = *messageDisplay},
              size());

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
  panes->disconnect(this);
}

void TCMainFrame::ConnectViews() {
  connect(panes, &TCPaneSet::panesChanged, this, &TCMainFrame::marksChanged);
  connect(panes, &TCPaneSet::keyboardFreed, view, [this] { view->TakeFocus(); });
  connect(playControls, &TCPlayControlsBar::typingEnded, view, [this] { view->TakeFocus(); });
  connect(&bars, &TCBarSet::shownBarsChanged, this, &TCMainFrame::marksChanged);
  // The mouse stays with the playlist while songs are dragged out of it; the tree shows where they would go.
  connect(view, &TCBrevantView::ctrlDragMoved, tree, &TCPlayListManagerTreeView::FollowCtrlDrag);
  connect(view, &TCBrevantView::ctrlDragEnded, tree, &TCPlayListManagerTreeView::EndCtrlDrag);
}

void TCMainFrame::DressViews() {
  view->SetRowPicture(PictureIcon(kRowIcon));
  playerPane->SetIcons({.play = PictureIcon(IconName(TCCommandId::Play)),
                        .pause = PictureIcon(IconName(TCCommandId::PauseContinue)),
                        .stop = PictureIcon(IconName(TCCommandId::Stop)),
                        .volume = PictureIcon(kVolumeIcon)});
  TCSetListTreeModel::TCPictures pictures;
  std::ranges::transform(kTreeIcons, pictures.begin(), PictureIcon);
  tree->SetPictures(pictures);
  const TCStageCursors cursors{PictureCursor(kRowCursor), PictureCursor(kPressedCursor),
                               PictureCursor(kDragCursor), PictureCursor(kBusyCursor)};
  view->SetCursors(cursors);
  tree->SetCursors(cursors);
}

void TCMainFrame::SaveLayout(QSettings& layout) const {
  bars.Save(layout);
  panes->SaveLayout(layout);
  view->SaveColumnWidths(layout);
}

void TCMainFrame::RestoreLayout(const QSettings& layout) {
  bars.RestorePlaces(layout);
  panes->RestoreLayout(layout);
  view->LoadColumnWidths(layout);
}

void TCMainFrame::SavePlacement(QSettings& layout) const {
  brevant::SavePlacement(*this, layout);
}

void TCMainFrame::RestorePlacement(const QSettings& layout) {
  const std::optional<TCWindowPlacement> saved = SavedPlacement(layout);
  if (!saved) return;
  panes->ExpectAnotherSize();
  PlaceWindow(*this, *saved);
}

void TCMainFrame::PlaceOnScreen() {
  resize(SizeOnScreen(*this, kDefaultSize));
}

bool TCMainFrame::Handles(TCCommandId command) {
  return TCPaneSet::IsPane(command) || command == TCCommandId::LiveViewMode ||
         command == TCCommandId::ToolbarVisible || command == TCCommandId::Customize ||
         command == TCCommandId::StatusBarVisible || command == TCCommandId::Exit;
}

bool TCMainFrame::OnCommand(TCCommandId command) {
  if (TCPaneSet::IsPane(command)) {
    panes->Toggle(command);
  } else if (command == TCCommandId::LiveViewMode) {
    ToggleLiveView();
  } else if (command == TCCommandId::ToolbarVisible) {
    bars.Toggle();
  } else if (command == TCCommandId::Customize) {
    TCCustomizeSheet::Open(bars, *this);
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
  if (TCPaneSet::IsPane(command)) return panes->IsOpen(command);
  if (command == TCCommandId::LiveViewMode) return settings.liveViewMode;
  if (command == TCCommandId::ToolbarVisible) return bars.AnyShown();
  return command == TCCommandId::StatusBarVisible && !statusLine->isHidden();
}

void TCMainFrame::ToggleLiveView() {
  settings.liveViewMode = !settings.liveViewMode;
  if (settings.liveViewMode) {
    panes->EnterLiveView();
  } else {
    panes->LeaveLiveView();
  }
  Q_EMIT marksChanged();
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
  const QColor text = ToQColor(look.text);
  const QColor background = ToQColor(look.background);
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
