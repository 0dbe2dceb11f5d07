#include "views/wmp_host.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPalette>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include "text/path_parts.h"
#include "text/time_text.h"
#include "views/player_notice_text.h"
#include "views/row_colours.h"
#include "views/text_conversion.h"

namespace brevant {

namespace {

constexpr int kPollPeriod = 100;        // milliseconds
constexpr double kTenths = 10.0;        // the seek slider's steps in a second
constexpr double kLongestSong = 1.0e6;  // seconds; a broken header may claim anything
constexpr int kButtonIconSide = 20;
constexpr int kVolumeIconSide = 16;

constexpr TCRgb kNoticeOnDark = 0xFFBF00;
constexpr TCRgb kNoticeOnLight = 0x9A3B00;

QString TimeText(double seconds) {
  return ToQString(FormatTime(static_cast<std::int32_t>(seconds)));
}

double Sensible(double seconds) {
  return std::isfinite(seconds) ? std::clamp(seconds, 0.0, kLongestSong) : 0.0;
}

// A song that is stopped has no place to be moved to: its position is 0 until it sounds.
bool CanSeek(const TCPlayerSnapshot& snapshot) {
  const bool sounding = snapshot.phase == TCPlayerPhase::Playing || snapshot.phase == TCPlayerPhase::Paused;
  return sounding && Sensible(snapshot.durationSeconds) > 0.0;
}

void ReserveFor(QLabel& label, const QString& widestText) {
  label.setMinimumWidth(label.fontMetrics().horizontalAdvance(widestText) + 2);
}

}  // namespace

CWMPHost::CWMPHost(TCPlayer* playerToWork, const TCPlayerMonitor* monitorToRead, QWidget* parent)
    : QWidget(parent), player(playerToWork), monitor(monitorToRead) {
  Build();
  FollowPalette();

  connect(&playButton, &QToolButton::clicked, this, &CWMPHost::playWanted);
  connect(&pauseButton, &QToolButton::clicked, this, &CWMPHost::pauseWanted);
  connect(&stopButton, &QToolButton::clicked, this, &CWMPHost::stopWanted);
  connect(&seekSlider, &TCJumpSlider::dragged, this,
          [this](int tenths) { elapsedLabel.setText(TimeText(tenths / kTenths)); });
  connect(&seekSlider, &TCJumpSlider::picked, this, &CWMPHost::Seek);
  connect(&volumeSlider, &TCJumpSlider::dragged, this, &CWMPHost::ChangeVolume);
  connect(&pollTimer, &QTimer::timeout, this, &CWMPHost::Refresh);
  pollTimer.setObjectName(QStringLiteral("pollTimer"));

  const bool works = player != nullptr && monitor != nullptr;
  for (QWidget* control : {static_cast<QWidget*>(&playButton), static_cast<QWidget*>(&pauseButton),
                           static_cast<QWidget*>(&stopButton), static_cast<QWidget*>(&volumeSlider),
                           static_cast<QWidget*>(&volumeLabel), static_cast<QWidget*>(&volumeValueLabel)}) {
    control->setEnabled(works);
  }
  Refresh();
}

void CWMPHost::Refresh() {
  const TCPlayerSnapshot snapshot = monitor != nullptr ? monitor->Snapshot() : TCPlayerSnapshot{};
  if (snapshot.url != shownUrl || !CanSeek(snapshot)) {
    // The song under the handle is gone: where the user lets go means nothing for the next one.
    seekSlider.CancelDrag();
    heldPosition.Release();
  }
  shownUrl = snapshot.url;
  ShowSong(snapshot);
  ShowTimes(snapshot);
  ShowVolume(snapshot);
}

void CWMPHost::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  Refresh();
  pollTimer.start(kPollPeriod);
}

void CWMPHost::hideEvent(QHideEvent* event) {
  pollTimer.stop();
  QWidget::hideEvent(event);
}

void CWMPHost::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) FollowPalette();
}

void CWMPHost::Build() {
  QFont songFont = font();
  songFont.setBold(true);
  if (songFont.pointSize() > 0) songFont.setPointSize(songFont.pointSize() + 2);
  songLabel.setFont(songFont);
  songLabel.setAccessibleDescription(QStringLiteral("Song"));
  phaseLabel.setTextFormat(Qt::PlainText);
  phaseLabel.setAccessibleDescription(QStringLiteral("What the player does"));
  noticeLabel.setAccessibleDescription(QStringLiteral("Notice of the player"));
  elapsedLabel.setAccessibleDescription(QStringLiteral("Elapsed time"));
  totalLabel.setAccessibleDescription(QStringLiteral("Total time"));
  totalLabel.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  volumeValueLabel.setAccessibleDescription(QStringLiteral("Volume"));
  volumeValueLabel.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // So that the sliders keep their place while the numbers change.
  ReserveFor(elapsedLabel, QStringLiteral("00:00"));
  ReserveFor(totalLabel, QStringLiteral("00:00"));
  ReserveFor(volumeValueLabel, QStringLiteral("100"));

  setWhatsThis(
      QStringLiteral("The player: the song that is loaded, what the player does with it, and what the sound "
                     "system has to say."));
  songLabel.setWhatsThis(QStringLiteral("The song that is loaded into the player."));
  phaseLabel.setWhatsThis(QStringLiteral("What the player does with the song."));
  noticeLabel.setWhatsThis(QStringLiteral("What the sound system or the song's file has to say."));
  elapsedLabel.setWhatsThis(QStringLiteral("How much of the song has been played."));
  totalLabel.setWhatsThis(QStringLiteral("How long the song is; --:-- while that is not known."));
  volumeValueLabel.setWhatsThis(QStringLiteral("The volume, from 0 to 100."));
  seekSlider.setWhatsThis(QStringLiteral(
      "Where the song is. Press where you want to be, or drag the handle; it works while a song plays or is "
      "paused."));
  volumeSlider.setWhatsThis(
      QStringLiteral("The program's own volume, from 0 to 100. F8 and F9 and the mouse wheel turn it, too."));

  seekSlider.setAccessibleName(QStringLiteral("Song position"));
  seekSlider.setSingleStep(static_cast<int>(kTenths));
  volumeSlider.setAccessibleName(QStringLiteral("Volume"));
  volumeSlider.setRange(0, 100);
  volumeSlider.setSingleStep(1);
  volumeSlider.setPageStep(10);

  const auto describe = [](QToolButton& button, const QString& name, const QString& tip,
                           const QString& says) {
    button.setAccessibleName(name);
    button.setToolTip(tip);
    button.setWhatsThis(says);
    button.setAutoRaise(true);
    button.setFocusPolicy(Qt::NoFocus);
    button.setIconSize({kButtonIconSide, kButtonIconSide});
  };
  describe(playButton, QStringLiteral("Play"), QStringLiteral("Play"),
           QStringLiteral("Plays the green song from its beginning."));
  describe(pauseButton, QStringLiteral("Pause"), QStringLiteral("Pause - Continue"),
           QStringLiteral("Pauses the song, and lets it go on."));
  describe(stopButton, QStringLiteral("Stop"), QStringLiteral("Stop"), QStringLiteral("Stops the song."));

  auto* songRow = new QHBoxLayout;
  songRow->addWidget(&songLabel, 1);
  songRow->addWidget(&phaseLabel);
  auto* seekRow = new QHBoxLayout;
  seekRow->addWidget(&elapsedLabel);
  seekRow->addWidget(&seekSlider, 1);
  seekRow->addWidget(&totalLabel);
  auto* controlRow = new QHBoxLayout;
  controlRow->setSpacing(4);
  controlRow->addWidget(&playButton);
  controlRow->addWidget(&pauseButton);
  controlRow->addWidget(&stopButton);
  controlRow->addStretch(1);
  controlRow->addWidget(&volumeLabel);
  volumeSlider.setMinimumWidth(50);
  volumeSlider.setMaximumWidth(140);
  controlRow->addWidget(&volumeSlider, 2);
  controlRow->addWidget(&volumeValueLabel);

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(10, 6, 10, 6);
  rows->setSpacing(4);
  rows->addStretch(1);
  rows->addLayout(songRow);
  rows->addLayout(seekRow);
  rows->addLayout(controlRow);
  rows->addWidget(&noticeLabel);
  rows->addStretch(1);
}

void CWMPHost::FollowPalette() {
  // A label keeps what was drawn; the buttons draw anew by themselves.
  volumeLabel.setPixmap(volumeIcon.pixmap(QSize(kVolumeIconSide, kVolumeIconSide), devicePixelRatioF()));
  const bool dark = palette().color(QPalette::Window).lightness() < 128;
  QPalette noticeColours = noticeLabel.palette();
  noticeColours.setColor(QPalette::WindowText, ToQColor(dark ? kNoticeOnDark : kNoticeOnLight));
  noticeLabel.setPalette(noticeColours);
}

void CWMPHost::SetIcons(const TCPlayerIcons& playerIcons) {
  playButton.setIcon(playerIcons.play);
  pauseButton.setIcon(playerIcons.pause);
  stopButton.setIcon(playerIcons.stop);
  volumeIcon = playerIcons.volume;
  FollowPalette();
}

void CWMPHost::ShowSong(const TCPlayerSnapshot& snapshot) {
  QString song = ToQString(FileNamePart(snapshot.url));
  if (song.isEmpty()) song = monitor != nullptr ? QStringLiteral("No song") : QStringLiteral("No player");
  songLabel.ShowText(song);
  phaseLabel.setText(PhaseText(snapshot.phase));
  const bool hasNotice = snapshot.notice != TCPlayerNotice::None;
  noticeLabel.ShowText(NoticeText(snapshot.notice),
                       hasNotice ? QString::fromStdString(snapshot.detail) : QString());
}

void CWMPHost::ShowTimes(const TCPlayerSnapshot& snapshot) {
  const double duration = Sensible(snapshot.durationSeconds);
  const double position = Sensible(heldPosition.Shown(snapshot.positionSeconds));
  totalLabel.setText(duration > 0.0 ? TimeText(duration) : QStringLiteral("--:--"));
  seekSlider.setEnabled(player != nullptr && CanSeek(snapshot));
  if (seekSlider.isSliderDown()) return;
  seekSlider.ShowRange(static_cast<int>(duration * kTenths));
  seekSlider.ShowValue(static_cast<int>(position * kTenths));
  elapsedLabel.setText(TimeText(position));
}

void CWMPHost::ShowVolume(const TCPlayerSnapshot& snapshot) {
  const int volume = static_cast<int>(heldVolume.Shown(snapshot.volume));
  volumeSlider.ShowValue(volume);
  volumeValueLabel.setText(QString::number(volumeSlider.value()));
}

void CWMPHost::Seek(int tenths) {
  if (player == nullptr) return;
  const double seconds = tenths / kTenths;
  player->SetPosition(seconds);
  heldPosition.Hold(seconds);
  elapsedLabel.setText(TimeText(seconds));
}

void CWMPHost::ChangeVolume(int volume) {
  if (player == nullptr) return;
  player->SetVolume(volume);
  heldVolume.Hold(volume);
  volumeValueLabel.setText(QString::number(volume));
}

}  // namespace brevant
