#include "app/bar_set.h"

#include <QMenuBar>
#include <algorithm>

#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr QSize kPictureSize(24, 24);

}  // namespace

TCBarSet::TCBarSet(QMainWindow& mainWindow, TCPlayControlsBar& playControls)
    : window(mainWindow), playBar(playControls), barMenu(new QMenu(&mainWindow)) {
  window.setIconSize(kPictureSize);
  window.menuBar()->setAccessibleName(ToQString(TextOf(TCTextId::MainToolbar)));
  OpenMenuOn(*window.menuBar());
  for (const TCCommandBar& plan : CommandBars()) {
    if (plan.name == TCTextId::MainToolbar) continue;
    const QString name = ToQString(TextOf(plan.name));
    const bool isPlayBar = plan.name == TCTextId::PlayControlsToolbar;
    bars.push_back({&plan, isPlayBar ? &playBar : new QToolBar(name, &window)});
    Dock(bars.back());
  }
}

void TCBarSet::Dock(const TCBar& made) {
  QToolBar& bar = *made.bar;
  // Saved states know the bar by this name.
  bar.setObjectName(bar.windowTitle());
  bar.setAccessibleName(bar.windowTitle());
  const bool onTheRight = made.plan->dock == TCBarDock::RightEdge;
  window.addToolBar(onTheRight ? Qt::RightToolBarArea : Qt::TopToolBarArea, &bar);
  OpenMenuOn(bar);
  barMenu->addAction(bar.toggleViewAction());
  connect(&bar, &QToolBar::visibilityChanged, this, &TCBarSet::shownBarsChanged);
}

void TCBarSet::OpenMenuOn(QWidget& widget) {
  widget.setContextMenuPolicy(Qt::CustomContextMenu);
  connect(&widget, &QWidget::customContextMenuRequested, this,
          [this, &widget](QPoint place) { barMenu->popup(widget.mapToGlobal(place)); });
}

void TCBarSet::Fill(const TCCommandActions& commandActions) {
  for (const TCBar& bar : bars) FillBar(bar, commandActions);
  FitRows();
}

void TCBarSet::FillBar(const TCBar& made, const TCCommandActions& commandActions) {
  // A separator goes in only between buttons that are there.
  bool separatorDue = false;
  for (const TCCommandId item : made.plan->items) {
    QAction* action = IsTimeField(item) ? &playBar.FieldAction(item) : commandActions.ActionOf(item);
    if (action == nullptr) {
      separatorDue = separatorDue || item == TCCommandId::None;
      continue;
    }
    if (separatorDue && !made.bar->actions().isEmpty()) made.bar->addSeparator();
    separatorDue = false;
    made.bar->addAction(action);
  }
}

QToolBar* TCBarSet::BarOf(TCTextId name) const {
  const auto found = std::ranges::find_if(bars, [name](const TCBar& bar) { return bar.plan->name == name; });
  return found == bars.end() ? nullptr : found->bar;
}

void TCBarSet::FitRows() {
  int used = 0;
  for (const TCBar& made : bars) {
    if (made.plan->dock == TCBarDock::RightEdge) continue;
    window.removeToolBarBreak(made.bar);
    const int width = made.bar->sizeHint().width();
    if (used > 0 && used + width > window.width()) {
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
