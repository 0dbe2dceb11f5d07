// A sound server of the test's own: PulseAudio with a sink that goes nowhere, on a private socket, needing no
// desktop. What is played into it can be recorded; it can be frozen, killed and started again.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "support/child_process.h"

namespace brevant {

class TCPulseServer {
 public:
  static constexpr int kRate = 44100;

  TCPulseServer() {
    std::string pattern = (std::filesystem::temp_directory_path() / "pulse-XXXXXX").string();
    folder = mkdtemp(pattern.data());
  }
  ~TCPulseServer() {
    recorder.reset();
    server.reset();
    std::filesystem::remove_all(folder);
  }

  // For the variable PULSE_SERVER, or pulsesink's `server`.
  [[nodiscard]] std::string Address() const { return "unix:" + Socket(); }

  // True once the server answers.
  bool Start() {
    std::filesystem::remove(Socket());
    server = std::make_unique<TCChildProcess>(
        std::vector<std::string>{
            "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1",
            "--disable-shm=yes",
            // Without norewinds the position stands still for a second at the start of a song.
            "--load=module-null-sink sink_name=out norewinds=1 rate=44100",
            "--load=module-native-protocol-unix auth-anonymous=1 socket=" + Socket()},
        Environment(), "");
    return Within(10.0, [this] {
      TCChildProcess question({"pactl", "info"}, Environment(), (folder / "info").string());
      while (question.Runs()) std::this_thread::yield();
      std::error_code error;
      return std::filesystem::file_size(folder / "info", error) > 0 && !error;
    });
  }
  void Kill() { server.reset(); }
  void Freeze() const { server->Signal(SIGSTOP); }
  void Thaw() const { server->Signal(SIGCONT); }

  // Records the sink's monitor from now on, one channel. True once the recording runs.
  bool Record() {
    recorder = std::make_unique<TCChildProcess>(
        std::vector<std::string>{"parec", "--raw", "--format=s16le", "--rate=44100", "--channels=1",
                                 "--latency-msec=20", "--device=out.monitor"},
        Environment(), RecordingFile());
    return Within(10.0, [this] { return !Recording().empty(); });
  }
  void StopRecording() { recorder.reset(); }

  [[nodiscard]] std::vector<double> Recording() const {
    std::ifstream file(RecordingFile(), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    std::vector<double> samples;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
      const auto low = static_cast<std::uint8_t>(bytes[i]);
      const auto high = static_cast<std::uint8_t>(bytes[i + 1]);
      samples.push_back(static_cast<std::int16_t>(low | high << 8) / 32768.0);
    }
    return samples;
  }

 private:
  [[nodiscard]] std::string Socket() const { return (folder / "socket").string(); }
  [[nodiscard]] std::string RecordingFile() const { return (folder / "recording").string(); }

  // Nothing of the user's own: no configuration, no running server.
  [[nodiscard]] std::vector<std::string> Environment() const {
    const char* path = std::getenv("PATH");
    return {std::string("PATH=") + (path == nullptr ? "/usr/bin:/bin" : path),
            "HOME=" + folder.string(),
            "XDG_RUNTIME_DIR=" + folder.string(),
            "PULSE_RUNTIME_PATH=" + folder.string(),
            "PULSE_SERVER=" + Address(),
            "LANG=C"};
  }

  static bool Within(double seconds, const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::duration<double>(seconds);
    while (!condition()) {
      if (std::chrono::steady_clock::now() >= deadline) return false;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
  }

  std::filesystem::path folder;
  std::unique_ptr<TCChildProcess> server;
  std::unique_ptr<TCChildProcess> recorder;
};

}  // namespace brevant
