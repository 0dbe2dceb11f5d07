#include "app/panes/pane_set.h"

#include <QApplication>
#include <QChildEvent>
#include <QTabBar>
#include <algorithm>
#include <chrono>
#include <utility>

#include "app/kept_state.h"
#include "app/panes/accessible_pane.h"
#include "app/part_of.h"
#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr QSize kPaneSize(400, 200);
constexpr int kManagerWidth = 400;
// Of a narrow window the pane beside the playlist has no more than a third.
constexpr int kManagerShare = 3;
// By then a window manager has maximised a window that was to be.
constexpr std::chrono::milliseconds kSettleTime(1000);

struct TCPaneRow {
  TCCommandId id;
  TCTextId title;
};

// In the order of their creation, which is also that of live view.
constexpr std::array kPanes = {
    TCPaneRow{TCCommandId::PlaylistManagerPane, TCTextId::PlaylistManagerPaneTitle},
    TCPaneRow{TCCommandId::PropertiesPane, TCTextId::PropertiesPaneTitle},
    TCPaneRow{TCCommandId::PlayerPane, TCTextId::PlayerPaneTitle},
    TCPaneRow{TCCommandId::MessagePane, TCTextId::MessagePaneTitle},
};

QString LayoutName() {
  return QStringLiteral("NormalLayout");
}

// kPanes.size() for a command that is no pane's.
std::size_t IndexOf(TCCommandId command) {
  const auto row = std::ranges::find(kPanes, command, &TCPaneRow::id);
  return static_cast<std::size_t>(row - kPanes.begin());
}

// The toolkit gives a tab the title of its pane as it stands, and a tab's "&" marks a key: here it is a word.
class TCTabTexts final : public QObject {
 public:
  explicit TCTabTexts(QWidget& window) : QObject(&window) { window.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ChildPolished) {
      QObject* child = static_cast<QChildEvent*>(event)->child();
      if (qobject_cast<QTabBar*>(child) != nullptr) child->installEventFilter(this);
    } else if (event->type() == QEvent::Paint) {
      // Tabs come and go without a word; before it is painted nobody has seen one.
      if (auto* tabs = qobject_cast<QTabBar*>(watched)) Mend(*tabs);
    }
    return false;
  }

 private:
  static void Mend(QTabBar& tabs) {
    for (int tab = 0; tab < tabs.count(); ++tab) {
      QString text = tabs.tabText(tab);
      text.replace(QStringLiteral("&&"), QStringLiteral("&")).replace(u'&', QStringLiteral("&&"));
      if (text != tabs.tabText(tab)) tabs.setTabText(tab, text);
    }
  }
};

}  // namespace

TCPaneSet::TCPaneSet(QWidget* frame) : QMainWindow(frame) {
  // By itself a main window is always a window of its own, whatever its parent.
  setWindowFlags(Qt::Widget);
  setObjectName(QStringLiteral("Panes"));
  CallPanesByTheirTitles();
  setAccessibleName(QStringLiteral("Playlist and panes"));
  setContextMenuPolicy(Qt::NoContextMenu);
  new TCTabTexts(*this);
  settled.setSingleShot(true);
  connect(&settled, &QTimer::timeout, this, [this] { restored.reset(); });
}

TCPaneSet::~TCPaneSet() {
  // The panes go with the toolkit's part of this window and tell of it, when nobody is left to be told.
  for (QDockWidget* pane : panes) {
    if (pane != nullptr) pane->disconnect(this);
  }
}

void TCPaneSet::Fill(const TCContents& contents, QSize window) {
  setCentralWidget(&contents.playlist);
  AddPane(TCCommandId::PlaylistManagerPane, contents.manager);
  AddPane(TCCommandId::PropertiesPane, contents.properties);
  AddPane(TCCommandId::PlayerPane, contents.player);
  AddPane(TCCommandId::MessagePane, contents.messages);
  ArrangeFor(window);
}

void TCPaneSet::AddPane(TCCommandId id, QWidget& content) {
  const std::size_t index = IndexOf(id);
  auto* pane = new QDockWidget(ToQString(TextOf(kPanes[index].title)), this);
  // Saved layouts know a pane by this name.
  pane->setObjectName(QStringLiteral("Pane%1").arg(static_cast<int>(id)));
  pane->setWidget(&content);
  pane->setWhatsThis(content.whatsThis());
  connect(pane, &QDockWidget::visibilityChanged, this,
          [this, pane](bool visible) { PaneShown(*pane, visible); });
  panes[index] = pane;
}

void TCPaneSet::ArrangeFor(QSize window) {
  const auto [manager, properties, player, messages] = panes;
  addDockWidget(Qt::LeftDockWidgetArea, manager);
  addDockWidget(Qt::BottomDockWidgetArea, properties);
  splitDockWidget(properties, player, Qt::Horizontal);
  splitDockWidget(player, messages, Qt::Horizontal);
  // On a small screen the playlist keeps the most of the width.
  resizeDocks({manager}, {std::min(kManagerWidth, window.width() / kManagerShare)}, Qt::Horizontal);
  constexpr int kEach = kPaneSize.width();
  resizeDocks({properties, player, messages}, {kEach, kEach, kEach}, Qt::Horizontal);
  resizeDocks({player}, {kPaneSize.height()}, Qt::Vertical);
}

void TCPaneSet::PaneShown(const QDockWidget& pane, bool visible) {
  // The toolkit would hand the keyboard to whatever comes next, a time field for one, which takes the stage
  // keys for typing.
  if (!visible && isVisible() && IsPartOf(pane, QApplication::focusWidget())) Q_EMIT keyboardFreed();
  Q_EMIT panesChanged();
}

bool TCPaneSet::IsPane(TCCommandId command) {
  return IndexOf(command) < kPanes.size();
}

QDockWidget* TCPaneSet::PaneOf(TCCommandId command) const {
  return IsPane(command) ? panes[IndexOf(command)] : nullptr;
}

bool TCPaneSet::IsOpen(TCCommandId command) const {
  // "Hidden" is what somebody asked for.
  const QDockWidget* pane = PaneOf(command);
  return pane != nullptr && !pane->isHidden();
}

void TCPaneSet::Toggle(TCCommandId command) {
  QDockWidget* pane = PaneOf(command);
  if (pane == nullptr) return;
  restored.reset();  // from here on it lies as the user says
  pane->setVisible(pane->isHidden());
  if (!pane->isHidden()) pane->raise();
}

void TCPaneSet::EnterLiveView() {
  // Hiding and showing them by itself would lose their widths.
  if (!normalLayout) normalLayout = restored ? *restored : saveState();
  restored.reset();
  for (QDockWidget* pane : panes) pane->hide();
}

void TCPaneSet::LeaveLiveView() {
  if (normalLayout) restoreState(*normalLayout);
  normalLayout.reset();
  for (QDockWidget* pane : panes) pane->show();
}

TCPaneSet::TCArrangement TCPaneSet::Arrangement() const {
  return {saveState(), normalLayout};
}

void TCPaneSet::Arrange(const TCArrangement& arrangement) {
  restoreState(arrangement.shown);
  normalLayout = arrangement.normalLayout;
}

void TCPaneSet::SaveLayout(QSettings& layout) const {
  KeepState(layout, LayoutName(), normalLayout ? *normalLayout : saveState());
}

void TCPaneSet::RestoreLayout(const QSettings& layout) {
  const QByteArray saved = KeptState(layout, LayoutName());
  if (restoreState(saved)) restored = saved;
}

void TCPaneSet::ExpectAnotherSize() {
  if (restored && isVisible()) settled.start(kSettleTime);
}

void TCPaneSet::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (!restored) return;
  // Not within its own effects.
  const QByteArray again = *std::exchange(restored, std::nullopt);
  restoreState(again);
  restored = again;
}

void TCPaneSet::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (restored && !settled.isActive()) settled.start(kSettleTime);
}

}  // namespace brevant
