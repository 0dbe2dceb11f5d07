// Questions to a disk that may have stopped answering. Whoever asks waits for a moment and goes on; an answer
// that comes later is looked for by a tick.
#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

#include "text/file_system.h"

namespace brevant {

// What a command waits for a disk: longer than one in order takes, too short for a stall to be noticed.
inline constexpr std::chrono::milliseconds kDiskPatience(100);

// What `question`, a function of the file system that it is given, says: at once, later, or never. The
// question owns what it uses, as TCFileSystem::Ask has it. Neither the call nor the end of what is returned
// waits for anything.
template <typename Question>
[[nodiscard]] auto AskDisk(TCFileSystem& files, Question question) {
  using Answer = std::invoke_result_t<Question&, TCFileSystem&>;
  const auto task = std::make_shared<std::packaged_task<Answer(TCFileSystem&)>>(std::move(question));
  std::future<Answer> answer = task->get_future();
  files.Ask([task](TCFileSystem& disk) { (*task)(disk); });
  return answer;
}

// Waits for the answer for as long as `patience`; 0 does not wait.
template <typename Future>
[[nodiscard]] bool HasCome(const Future& answer, std::chrono::milliseconds patience) {
  return answer.wait_for(patience) == std::future_status::ready;
}

}  // namespace brevant
