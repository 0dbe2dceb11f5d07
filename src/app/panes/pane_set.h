// The playlist in the middle and the four panes around it, with what the user makes of their places: closed,
// floating, one behind the tab of another. A window inside the main window, so that the layout of the panes
// and that of the command bars can be kept and restored apart. TCMainFrame makes one and hands it the pane
// commands. User-interface thread only.
#pragma once

#include <QByteArray>
#include <QDockWidget>
#include <QMainWindow>
#include <QSettings>
#include <QTimer>
#include <array>
#include <optional>

#include "resources/command_id.h"

namespace brevant {

class TCPaneSet : public QMainWindow {
  Q_OBJECT

 public:
  explicit TCPaneSet(QWidget* frame);
  ~TCPaneSet() override;

  // Shown or not, they are all there: songs play and lines are kept while their panes are closed.
  struct TCContents {
    QWidget& playlist;
    QWidget& manager;
    QWidget& properties;
    QWidget& player;
    QWidget& messages;
  };

  // Once, before anything else: the places and sizes of a first start in a window of this size.
  void Fill(const TCContents& contents, QSize window);

  [[nodiscard]] static bool IsPane(TCCommandId command);
  // Closes an open pane and opens a closed one, in front of the others where they share tabs. `command` is a
  // pane's.
  void Toggle(TCCommandId command);
  // A pane behind another tab, or in a window that is not shown yet, is open. False for other commands.
  [[nodiscard]] bool IsOpen(TCCommandId command) const;

  // Closes all panes and keeps how they lay.
  void EnterLiveView();
  // All of them lie as they did, and those that were closed are opened as well.
  void LeaveLiveView();

  // How the panes lie at the moment, live view or not, to come back to within this run.
  struct TCArrangement {
    QByteArray shown;
    std::optional<QByteArray> normalLayout;  // in live view
  };
  [[nodiscard]] TCArrangement Arrangement() const;
  void Arrange(const TCArrangement& arrangement);

  // Under "NormalLayout"; in live view what leaving it would bring back.
  void SaveLayout(QSettings& layout) const;
  // A layout that is none changes nothing. Before the window is shown; a window that gets another size on its
  // way to the screen, because it is maximised, gets the layout again.
  void RestoreLayout(const QSettings& layout);
  // The window is about to get the size that the layout was restored for.
  void ExpectAnotherSize();

 Q_SIGNALS:
  // A pane was opened or closed.
  void panesChanged();
  // The pane that had the keyboard is not to be seen any more.
  void keyboardFreed();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void AddPane(TCCommandId id, QWidget& content);
  void ArrangeFor(QSize window);
  void PaneShown(const QDockWidget& pane, bool visible);
  [[nodiscard]] QDockWidget* PaneOf(TCCommandId command) const;

  std::array<QDockWidget*, 4> panes{};     // in the order of their creation; the toolkit owns them
  std::optional<QByteArray> normalLayout;  // while live view hides it
  std::optional<QByteArray> restored;      // until the window has settled
  QTimer settled;
};

}  // namespace brevant
