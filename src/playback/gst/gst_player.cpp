#include "playback/gst/gst_player.h"

#include <utility>

#include "playback/gst/gst_worker.h"

namespace brevant {

TCGstPlayer::TCGstPlayer(TCNativePaths paths, const TCGstPlayerOptions& options)
    : shared(std::make_shared<TCGstShared>(std::move(paths), options)) {
  waitingWork = {shared->desk.FirstTicket(), TCPlayerMachine(options.limits)};
  StartWorker();
}

TCGstPlayer::~TCGstPlayer() {
  shared->desk.Close();
  shared->jobs.WaitUntilDone(shared->options.closeLimit);
}

void TCGstPlayer::StartWorker() const {
  const bool started =
      shared->jobs.Start([common = shared, work = *waitingWork] { TCGstWorker(common, work).Run(); });
  if (started) waitingWork.reset();
}

void TCGstPlayer::KeepWorkerAlive() const {
  if (auto work = shared->desk.ReplaceWorkerIfStuck(shared->options.workerLimit))
    waitingWork = std::move(work);
  if (waitingWork) StartWorker();
}

bool TCGstPlayer::LoadUrl(std::u16string_view path) {
  KeepWorkerAlive();
  shared->desk.Load(path);
  return true;
}

std::u16string TCGstPlayer::GetUrl() const {
  return shared->desk.Url();
}

int TCGstPlayer::GetDurationSeconds() const {
  KeepWorkerAlive();
  return shared->desk.DurationSeconds();
}

bool TCGstPlayer::Play() {
  KeepWorkerAlive();
  return shared->desk.Play();
}

void TCGstPlayer::Stop() {
  KeepWorkerAlive();
  shared->desk.Stop();
}

void TCGstPlayer::Pause() {
  KeepWorkerAlive();
  shared->desk.Pause();
}

std::optional<double> TCGstPlayer::GetPosition() const {
  KeepWorkerAlive();
  return shared->desk.Position();
}

void TCGstPlayer::SetPosition(double seconds) {
  KeepWorkerAlive();
  shared->desk.Seek(seconds);
}

int TCGstPlayer::GetVolume() const {
  return shared->desk.Volume();
}

void TCGstPlayer::SetVolume(int volume) {
  KeepWorkerAlive();
  shared->desk.SetVolume(volume);
}

TCPlayerSnapshot TCGstPlayer::Snapshot() const {
  KeepWorkerAlive();
  return shared->desk.Snapshot();
}

}  // namespace brevant
