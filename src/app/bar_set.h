// The tool bars of the main window, laid out as the command bar table says: where they dock, what they hold,
// and the menu that shows and hides them. The menu bar always stays. A member of the main frame;
// user-interface thread only.
#pragma once

#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <QToolBar>
#include <vector>

#include "app/command_actions.h"
#include "app/play_controls_bar.h"
#include "resources/command_bars.h"

namespace brevant {

class TCBarSet final : public QObject {
  Q_OBJECT

 public:
  // Makes the bars, still empty, and docks them in `mainWindow`, which owns them and `playControls`.
  TCBarSet(QMainWindow& mainWindow, TCPlayControlsBar& playControls);

  // Once. Gives every bar a button for each of its commands that somebody carries out.
  void Fill(const TCCommandActions& commandActions);

  // Null for the menu bar, which is no tool bar.
  [[nodiscard]] QToolBar* BarOf(TCTextId name) const;

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

 private:
  struct TCBar {
    const TCCommandBar* plan = nullptr;
    QToolBar* bar = nullptr;
  };

  void Dock(const TCBar& bar);
  void FillBar(const TCBar& bar, const TCCommandActions& commandActions);
  void OpenMenuOn(QWidget& widget);

  QMainWindow& window;
  TCPlayControlsBar& playBar;
  std::vector<TCBar> bars;
  std::vector<QToolBar*> hiddenTogether;  // by Toggle
  QMenu* barMenu = nullptr;
};

}  // namespace brevant
