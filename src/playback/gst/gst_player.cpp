#include "playback/gst/gst_player.h"

#include <utility>

#include "playback/gst/gst_worker.h"

namespace brevant {

namespace {

void StartWorker(const std::shared_ptr<TCGstShared>& shared, TCPlayerDesk::Handover work) {
  shared->jobs.Start([shared, work = std::move(work)] { TCGstWorker(shared, work).Run(); });
}

}  // namespace

TCGstPlayer::TCGstPlayer(TCNativePaths paths, TCGstPlayerOptions options)
    : shared(std::make_shared<TCGstShared>(std::move(paths), options)) {
  StartWorker(shared, {shared->desk.FirstTicket(), TCPlayerMachine(options.limits)});
}

TCGstPlayer::~TCGstPlayer() {
  shared->desk.Close();
  shared->jobs.WaitUntilDone(shared->options.closeLimit);
}

void TCGstPlayer::KeepWorkerAlive() const {
  if (auto work = shared->desk.ReplaceWorkerIfStuck(shared->options.workerLimit)) {
    StartWorker(shared, std::move(*work));
  }
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
