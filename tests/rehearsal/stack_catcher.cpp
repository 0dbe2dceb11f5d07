#include "rehearsal/stack_catcher.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <execinfo.h>
#include <signal.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace brevant {

namespace {

constexpr int kDeepest = 60;
constexpr int kOwnFrames = 2;  // the handler and the kernel's way back from it
constexpr auto kPatience = std::chrono::milliseconds(50);

// A signal handler is given nothing, so what it fills stands here.
std::array<void*, kDeepest> caught;
std::atomic<int> depth{-1};

int Signal() {
  return SIGRTMIN + 5;
}

void NoteOwnStack(int /*signal*/) {
  const int keptError = errno;
  depth.store(backtrace(caught.data(), kDeepest), std::memory_order_release);
  errno = keptError;
}

std::string Plain(const char* text) {
  std::string plain;
  for (; *text != '\0'; ++text) {
    if (*text != '"' && *text != '\\') plain += *text;
  }
  return plain;
}

std::string NameOf(const char* symbol) {
  int failed = 0;
  const std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(symbol, nullptr, nullptr, &failed),
                                                    std::free);
  return Plain(failed == 0 ? name.get() : symbol);
}

std::string TextOf(void* address) {
  Dl_info place{};
  if (dladdr(address, &place) == 0 || place.dli_fname == nullptr) return "?";
  std::array<char, 24> offset{};
  std::snprintf(offset.data(), offset.size(), "+0x%zx ",
                static_cast<std::size_t>(static_cast<char*>(address) - static_cast<char*>(place.dli_fbase)));
  return Plain(place.dli_fname) + offset.data() + (place.dli_sname == nullptr ? "" : NameOf(place.dli_sname));
}

}  // namespace

TCStackCatcher::TCStackCatcher() {
  // The first call loads a library, which must not happen in a signal handler.
  void* nothing = nullptr;
  backtrace(&nothing, 1);
  struct sigaction action {};
  action.sa_handler = NoteOwnStack;
  action.sa_flags = SA_RESTART;
  sigaction(Signal(), &action, nullptr);
}

TCCaughtStack TCStackCatcher::Catch(pthread_t thread) {
  depth.store(-1, std::memory_order_relaxed);
  if (pthread_kill(thread, Signal()) != 0) return {};
  const auto deadline = std::chrono::steady_clock::now() + kPatience;
  while (depth.load(std::memory_order_acquire) < 0) {
    if (std::chrono::steady_clock::now() > deadline) return {};
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  const int found = depth.load(std::memory_order_acquire);
  if (found <= kOwnFrames) return {};
  // In parentheses: between braces the two ends would be its two elements.
  return TCCaughtStack(caught.begin() + kOwnFrames, caught.begin() + found);
}

std::string JsonOf(const TCCaughtStack& stack) {
  std::string list;
  for (void* const address : stack) {
    list += list.empty() ? "\"" : ",\"";
    list += TextOf(address) + "\"";
  }
  return "[" + list + "]";
}

}  // namespace brevant
