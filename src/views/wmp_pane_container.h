// The content of the player pane: one player host that fills it. User-interface thread only.
#pragma once

#include <QWidget>

#include "playback/player.h"
#include "playback/player_monitor.h"
#include "views/player_icons.h"
#include "views/wmp_host.h"

namespace brevant {

class TCWMPPaneContainer final : public QWidget {
  Q_OBJECT

 public:
  // Either may be null: the controls are disabled then. Both outlive the pane.
  TCWMPPaneContainer(TCPlayer* player, const TCPlayerMonitor* monitor, QWidget* parent = nullptr);

  void SetIcons(const TCPlayerIcons& icons) { host.SetIcons(icons); }

  [[nodiscard]] QSize sizeHint() const override;
  [[nodiscard]] QSize minimumSizeHint() const override;

 Q_SIGNALS:
  // The buttons: whoever listens runs the transport's commands.
  void playWanted();
  void pauseWanted();
  void stopWanted();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  CWMPHost host;
};

}  // namespace brevant
