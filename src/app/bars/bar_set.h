// The tool bars of the main window: where they dock, what they hold, how they look, and the menu that shows
// and hides them. They begin as the command bar table says and follow what the user makes of them in the
// customise sheet. The menu bar always stays. A member of the main frame; user-interface thread only.
#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QSettings>
#include <QToolBar>
#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

#include "app/bars/play_controls_bar.h"
#include "app/commands/command_actions.h"
#include "resources/command_bars.h"
#include "resources/customised_bars.h"

namespace brevant {

class TCBarSet final : public QObject {
  Q_OBJECT

 public:
  // Makes the bars, still empty, and docks them in `mainWindow`, which owns them and `playControls`.
  TCBarSet(QMainWindow& mainWindow, TCPlayControlsBar& playControls);

  // Once, after the menu bar was filled. Gives every bar what the user has on it, as far as somebody carries
  // it out, and the commands the user's keys, and fits the rows.
  void Fill(TCCommandActions& commandActions);

  // The bars and keys as they are now.
  [[nodiscard]] const TCCustomisedBars& Customised() const { return customised; }
  // Shows these instead, and binds their keys, at once.
  void Customise(TCCustomisedBars wanted);
  // The delivered bars in their places, and the delivered keys.
  void Reset();
  // Once filled.
  [[nodiscard]] const TCCommandActions& Actions() const { return *actions; }

  // What the user made of the bars, and where they are, for the next start.
  void Save(QSettings& layout) const;
  // Before they are filled, or they would be twice.
  void RestoreItems(const QSettings& layout);
  // Once they are filled: in place of the rows that the window's width asks for.
  void RestorePlaces(const QSettings& layout);

  // Null for the menu bar, which is no tool bar.
  [[nodiscard]] QToolBar* BarOf(TCTextId name) const;

  // Where something that is let go of over a bar would go. Empty when `globalPosition` is over none.
  struct TCPlace {
    TCTextId bar = TCTextId::MainToolbar;
    std::size_t index = 0;  // in front of this item of the bar, or behind all; never out of sight
    QRect gap;              // global; a line between two buttons
  };
  [[nodiscard]] std::optional<TCPlace> PlaceAt(QPoint globalPosition) const;

  // Puts the top bars into as many rows as the window's width asks for, in the table's order.
  void FitRows();

  [[nodiscard]] bool AnyShown() const;
  // Hides the bars that are shown; if none is, shows those that were hidden here, or else all.
  void Toggle();

  // An entry for each bar. Opened by a click with the right button on a bar or the menu bar.
  [[nodiscard]] QMenu& BarMenu() { return *barMenu; }

 Q_SIGNALS:
  // A bar was shown or hidden, by whomever.
  void shownBarsChanged();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct TCBar {
    const TCCommandBar* plan = nullptr;
    QToolBar* bar = nullptr;
    std::optional<TCBarItems> shown;
    std::vector<QAction*> actions;                // of each item of `shown`; null where nobody carries it out
    std::vector<std::unique_ptr<QObject>> owned;  // separators, and menus of the user's own
  };

  void Dock(const TCBar& bar);
  void ShowItems(TCBar& bar, TCBarItems items);
  [[nodiscard]] QAction* ActionOf(const TCBarItem& item, TCBar& bar);
  void ShowCustomised();
  void OpenMenuOn(QWidget& widget);

  QMainWindow& window;
  TCPlayControlsBar& playBar;
  TCCommandActions* actions = nullptr;
  TCCustomisedBars customised;
  std::vector<TCBar> bars;
  std::vector<QToolBar*> hiddenTogether;  // by Toggle
  QMenu* barMenu = nullptr;
};

}  // namespace brevant
