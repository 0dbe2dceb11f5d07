#include "app/bars/bar_set.h"

#include <QEvent>
#include <QMenuBar>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include "app/bars/customised_bars_store.h"
#include "app/kept_state.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

QString StateName() {
  return QStringLiteral("CommandBars");
}

Qt::ToolBarArea AreaOf(const TCCommandBar& plan) {
  return plan.dock == TCBarDock::RightEdge ? Qt::RightToolBarArea : Qt::TopToolBarArea;
}

}  // namespace

TCBarSet::TCBarSet(QMainWindow& mainWindow, TCPlayControlsBar& playControls)
    : window(mainWindow), playBar(playControls), barMenu(new QMenu(&mainWindow)) {
  window.menuBar()->setAccessibleName(ToQString(TextOf(TCTextId::MainToolbar)));
  OpenMenuOn(*window.menuBar());
  for (const TCCommandBar& plan : CommandBars()) {
    if (plan.name == TCTextId::MainToolbar) continue;
    const QString name = ToQString(TextOf(plan.name));
    const bool isPlayBar = plan.name == TCTextId::PlayControlsToolbar;
    TCBar& made = bars.emplace_back();
    made.plan = &plan;
    made.bar = isPlayBar ? &playBar : new QToolBar(name, &window);
    Dock(made);
  }
}

void TCBarSet::Dock(const TCBar& made) {
  QToolBar& bar = *made.bar;
  // Saved states know the bar by this name.
  bar.setObjectName(bar.windowTitle());
  bar.setAccessibleName(bar.windowTitle());
  window.addToolBar(AreaOf(*made.plan), &bar);
  OpenMenuOn(bar);
  barMenu->addAction(bar.toggleViewAction());
  connect(&bar, &QToolBar::visibilityChanged, this, &TCBarSet::shownBarsChanged);
}

void TCBarSet::OpenMenuOn(QWidget& widget) {
  widget.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&widget, &QWidget::customContextMenuRequested, this,
          [this, &widget](QPoint place) { barMenu->popup(widget.mapToGlobal(place)); });
}

void TCBarSet::Fill(TCCommandActions& commandActions) {
  actions = &commandActions;
  ShowCustomised();
  FitRows();
}

void TCBarSet::Customise(TCCustomisedBars wanted) {
  const bool sizesChange = wanted.look.iconSize != customised.look.iconSize ||
                           wanted.look.textsUnderIcons != customised.look.textsUnderIcons;
  customised = std::move(wanted);
  if (actions == nullptr) return;
  ShowCustomised();
  if (sizesChange) FitRows();
}

void TCBarSet::ShowCustomised() {
  using Tips = TCCommandActions::TCTips;
  actions->Follow(customised.keys, customised.look.keysInToolTips ? Tips::WithKeys : Tips::WithoutKeys);
  window.setIconSize({customised.look.iconSize, customised.look.iconSize});
  window.setToolButtonStyle(customised.look.textsUnderIcons ? Qt::ToolButtonTextUnderIcon
                                                            : Qt::ToolButtonIconOnly);
  // First all that goes and then what comes: a time field can be on one bar only.
  std::vector<TCBar*> changed;
  for (TCBar& bar : bars) {
    if (bar.shown == customised.ItemsOf(bar.plan->name)) continue;
    ShowItems(bar, {});
    changed.push_back(&bar);
  }
  for (TCBar* bar : changed) ShowItems(*bar, customised.ItemsOf(bar->plan->name));
}

void TCBarSet::ShowItems(TCBar& made, TCBarItems items) {
  made.bar->clear();
  made.owned.clear();
  made.actions.clear();
  // A separator goes in only between buttons that are there.
  bool separatorDue = false;
  for (const TCBarItem& item : items) {
    QAction* action = ActionOf(item, made);
    made.actions.push_back(action);
    if (action == nullptr) {
      separatorDue = separatorDue || item.kind == TCBarItem::Kind::Separator;
      continue;
    }
    if (separatorDue && !made.bar->actions().isEmpty()) {
      auto separator = std::make_unique<QAction>();
      separator->setSeparator(true);
      made.bar->addAction(separator.get());
      made.owned.push_back(std::move(separator));
    }
    separatorDue = false;
    made.bar->addAction(action);
    auto* button = qobject_cast<QToolButton*>(made.bar->widgetForAction(action));
    if (button == nullptr) continue;
    button->installEventFilter(this);
    if (action->menu() != nullptr) button->setPopupMode(QToolButton::InstantPopup);
  }
  made.shown = std::move(items);
}

QAction* TCBarSet::ActionOf(const TCBarItem& item, TCBar& made) {
  switch (item.kind) {
    case TCBarItem::Kind::Command:
      return IsTimeField(item.command) ? &playBar.FieldAction(item.command) : actions->ActionOf(item.command);
    case TCBarItem::Kind::Separator:
      return nullptr;
    case TCBarItem::Kind::BuiltInMenu:
      for (QAction* title : window.menuBar()->actions()) {
        if (title->text() == ToQString(MenuTitle(item.menu))) return title;
      }
      return nullptr;
    case TCBarItem::Kind::NewMenu:
      break;
  }
  auto menu = std::make_unique<QMenu>();
  menu->setTitle(ToQString(item.title).replace(QLatin1Char('&'), QStringLiteral("&&")));
  for (const TCCommandId entry : item.entries) {
    if (QAction* action = actions->ActionOf(entry)) menu->addAction(action);
  }
  QAction* title = menu->menuAction();
  made.owned.push_back(std::move(menu));
  return title;
}

bool TCBarSet::eventFilter(QObject* /*receiver*/, QEvent* event) {
  return event->type() == QEvent::ToolTip && !customised.look.toolTips;
}

void TCBarSet::Reset() {
  Customise({});
  for (const TCBar& made : bars) {
    window.addToolBar(AreaOf(*made.plan), made.bar);
    made.bar->show();
  }
  hiddenTogether.clear();
  FitRows();
}

void TCBarSet::Save(QSettings& layout) const {
  KeepState(layout, StateName(), window.saveState());
  SaveCustomisedBars(customised, layout);
}

void TCBarSet::RestoreItems(const QSettings& layout) {
  Customise(LoadCustomisedBars(layout));
}

void TCBarSet::RestorePlaces(const QSettings& layout) {
  window.restoreState(KeptState(layout, StateName()));
}

std::optional<TCBarSet::TCPlace> TCBarSet::PlaceAt(QPoint globalPosition) const {
  for (const TCBar& made : bars) {
    const QToolBar& bar = *made.bar;
    const QPoint position = bar.mapFromGlobal(globalPosition);
    if (!bar.isVisible() || !bar.rect().contains(position)) continue;
    const bool upright = bar.orientation() == Qt::Vertical;
    TCPlace place{made.plan->name, made.actions.size(), {}};
    int end = 0;
    for (std::size_t i = 0; i < made.actions.size(); ++i) {
      const QWidget* button = made.actions[i] == nullptr ? nullptr : bar.widgetForAction(made.actions[i]);
      if (button == nullptr) continue;
      // From here on the bar is too short: behind what is seen is in front of what is not.
      const bool cutOff = !button->isVisible();
      const QRect box = button->geometry();
      const bool before = upright ? position.y() < box.center().y() : position.x() < box.center().x();
      if (cutOff || before) {
        place.index = i;
        if (!cutOff) end = upright ? box.top() : box.left();
        break;
      }
      end = upright ? box.bottom() + 1 : box.right() + 1;
    }
    const QRect gap = upright ? QRect(0, end - 1, bar.width(), 3) : QRect(end - 1, 0, 3, bar.height());
    place.gap = QRect(bar.mapToGlobal(gap.topLeft()), gap.size());
    return place;
  }
  return std::nullopt;
}

QToolBar* TCBarSet::BarOf(TCTextId name) const {
  const auto found = std::ranges::find_if(bars, [name](const TCBar& bar) { return bar.plan->name == name; });
  return found == bars.end() ? nullptr : found->bar;
}

void TCBarSet::FitRows() {
  int used = 0;
  for (const TCBar& made : bars) {
    // Not what the user has put elsewhere.
    if (window.toolBarArea(made.bar) != Qt::TopToolBarArea || made.bar->isFloating()) continue;
    window.removeToolBarBreak(made.bar);
    const int width = made.bar->sizeHint().width();
    if (used + width > window.width()) {
      window.insertToolBarBreak(made.bar);
      used = 0;
    }
    used += width;
  }
}

bool TCBarSet::AnyShown() const {
  // "Hidden" is what somebody asked for; in a window that is not yet shown nothing is visible.
  return std::ranges::any_of(bars, [](const TCBar& made) { return !made.bar->isHidden(); });
}

void TCBarSet::Toggle() {
  std::vector<QToolBar*> shown;
  for (const TCBar& made : bars) {
    if (!made.bar->isHidden()) shown.push_back(made.bar);
  }
  if (shown.empty()) {
    for (const TCBar& made : bars) {
      const bool wanted = hiddenTogether.empty() || std::ranges::count(hiddenTogether, made.bar) > 0;
      made.bar->setVisible(wanted);
    }
    hiddenTogether.clear();
    return;
  }
  for (QToolBar* bar : shown) bar->hide();
  hiddenTogether = std::move(shown);
}

}  // namespace brevant
