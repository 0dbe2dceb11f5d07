// A helper program that a test starts and is sure to end.
#pragma once

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace brevant {

class TCChildProcess {
 public:
  // `environment`: NAME=value lines, and nothing else of ours. `output`: the file that takes what it writes;
  // empty throws it away.
  TCChildProcess(std::vector<std::string> command, std::vector<std::string> environment,
                 const std::string& output) {
    posix_spawn_file_actions_t files;
    posix_spawn_file_actions_init(&files);
    const char* target = output.empty() ? "/dev/null" : output.c_str();
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, target, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    posix_spawn_file_actions_addopen(&files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    if (posix_spawnp(&process, command.front().c_str(), &files, nullptr, Pointers(command).data(),
                     Pointers(environment).data()) != 0) {
      process = -1;
    }
    posix_spawn_file_actions_destroy(&files);
  }
  ~TCChildProcess() { Kill(); }

  TCChildProcess(const TCChildProcess&) = delete;
  TCChildProcess& operator=(const TCChildProcess&) = delete;

  [[nodiscard]] bool Runs() const { return process > 0 && ::waitpid(process, nullptr, WNOHANG) == 0; }
  void Signal(int signal) const {
    if (process > 0) ::kill(process, signal);
  }
  void Kill() {
    if (process <= 0) return;
    Signal(SIGKILL);
    ::waitpid(process, nullptr, 0);
    process = -1;
  }

 private:
  static std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
  }

  pid_t process = -1;
};

}  // namespace brevant
