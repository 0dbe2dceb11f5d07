// Shows what the player does, and lets the mouse work it: song, times, seek slider, play, pause and stop,
// volume, and a line for what sound system or file have to say. Asks the player's monitor ten times a second
// while it can be seen. User-interface thread only.
#pragma once

#include <QLabel>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include "playback/player.h"
#include "playback/player_monitor.h"
#include "views/elided_label.h"
#include "views/held_value.h"
#include "views/jump_slider.h"
#include "views/player_icons.h"

namespace brevant {

class CWMPHost final : public QWidget {
  Q_OBJECT

 public:
  // Either may be null: the controls are disabled then. Both outlive this.
  CWMPHost(TCPlayer* player, const TCPlayerMonitor* monitor, QWidget* parent = nullptr);

  void SetIcons(const TCPlayerIcons& playerIcons);

  // Shows what the monitor says now.
  void Refresh();

 Q_SIGNALS:
  // The buttons: whoever listens runs the transport's commands. Slider and volume go to the player directly.
  void playWanted();
  void pauseWanted();
  void stopWanted();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void Build();
  void FollowPalette();
  void ShowSong(const TCPlayerSnapshot& snapshot);
  void ShowTimes(const TCPlayerSnapshot& snapshot);
  void ShowVolume(const TCPlayerSnapshot& snapshot);
  void Seek(int tenths);
  void ChangeVolume(int volume);

  TCPlayer* player = nullptr;
  const TCPlayerMonitor* monitor = nullptr;

  TCElidedLabel songLabel;
  QLabel phaseLabel;
  TCElidedLabel noticeLabel;
  QLabel elapsedLabel;
  TCJumpSlider seekSlider{TCWheel::Ignored};  // tenths of a second
  QLabel totalLabel;
  QToolButton playButton;
  QToolButton pauseButton;
  QToolButton stopButton;
  QLabel volumeLabel;  // the picture
  TCJumpSlider volumeSlider{TCWheel::Moves};
  QLabel volumeValueLabel;

  QIcon volumeIcon;
  std::u16string shownUrl;
  TCHeldValue heldPosition{1.0};  // seconds
  TCHeldValue heldVolume{0.5};
  QTimer pollTimer{this};
};

}  // namespace brevant
