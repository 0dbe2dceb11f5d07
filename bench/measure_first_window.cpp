// brevant_measure_first_window RUNS COMMAND [ARGUMENT...]: starts the command RUNS times and prints, in
// milliseconds from the start of the process, when its first window stood on the screen, when something was
// painted in it, and the processor time that all its threads had taken by then, which a busy machine does not
// stretch. Wants a display with a window manager and nothing else on it; scripts/measure_first_window makes
// one.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "medians.h"

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr int kLookedAt = 64;  // pixels from the upper edge down
constexpr milliseconds kStep(2);
constexpr milliseconds kPatience(30000);  // for a window to come
constexpr milliseconds kFarewell(5000);   // for the program to end when it is asked to

double MillisecondsSince(Clock::time_point begin) {
  return std::chrono::duration<double, std::milli>(Clock::now() - begin).count();
}

// A window can go at any moment, between the list that names it and the question about it: not an error here.
int IgnoreError(Display*, XErrorEvent*) {
  return 0;
}

class TCStage {
 public:
  explicit TCStage(Display* opened) : display(opened), root(DefaultRootWindow(opened)) {}

  // What the window manager manages: no splash screens drawn past it, no menus, no tips.
  [[nodiscard]] std::vector<Window> Windows() const { return Longs(root, "_NET_CLIENT_LIST", XA_WINDOW); }

  [[nodiscard]] bool IsShownMainWindow(Window window) const {
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display, window, &attributes) == 0 || attributes.map_state != IsViewable)
      return false;
    const std::vector<unsigned long> types = Longs(window, "_NET_WM_WINDOW_TYPE", XA_ATOM);
    const Atom normal = XInternAtom(display, "_NET_WM_WINDOW_TYPE_NORMAL", False);
    return types.empty() || std::find(types.begin(), types.end(), normal) != types.end();
  }

  // True when its upper part, where titles, menus and bars are, is no longer of one colour all over. The
  // whole of a large window is megabytes, and the display would copy them while the program waits to draw on
  // it.
  [[nodiscard]] bool IsPainted(Window window) const {
    XWindowAttributes attributes{};
    if (XGetWindowAttributes(display, window, &attributes) == 0) return false;
    const int height = std::min(attributes.height, kLookedAt);
    XImage* image = XGetImage(display, window, 0, 0, static_cast<unsigned>(attributes.width),
                              static_cast<unsigned>(height), AllPlanes, ZPixmap);
    if (image == nullptr) return false;
    const unsigned long first = XGetPixel(image, 0, 0);
    bool painted = false;
    for (int y = 0; y < height && !painted; ++y) {
      for (int x = 0; x < attributes.width && !painted; ++x) painted = XGetPixel(image, x, y) != first;
    }
    XDestroyImage(image);
    return painted;
  }

 private:
  [[nodiscard]] std::vector<unsigned long> Longs(Window window, const char* property, Atom type) const {
    Atom actualType = None;
    int format = 0;
    unsigned long count = 0;
    unsigned long left = 0;
    unsigned char* data = nullptr;
    const int status = XGetWindowProperty(display, window, XInternAtom(display, property, False), 0, 1024,
                                          False, type, &actualType, &format, &count, &left, &data);
    std::vector<unsigned long> values;
    if (status == Success && data != nullptr && format == 32) {
      const auto* longs = reinterpret_cast<const unsigned long*>(data);
      values.assign(longs, longs + count);
    }
    if (data != nullptr) XFree(data);
    return values;
  }

  Display* display = nullptr;
  Window root = 0;
};

// The command in a process group of its own, which ends with this object.
class TCProgram {
 public:
  explicit TCProgram(char** command) : process(fork()) {
    if (process != 0) return;
    setpgid(0, 0);
    execvp(command[0], command);
    std::perror(command[0]);
    _exit(127);
  }
  TCProgram(const TCProgram&) = delete;
  TCProgram& operator=(const TCProgram&) = delete;
  ~TCProgram() {
    if (process <= 0) return;
    kill(-process, SIGTERM);
    const Clock::time_point begin = Clock::now();
    while (!HasEnded() && Clock::now() - begin < kFarewell) std::this_thread::sleep_for(kStep);
    kill(-process, SIGKILL);
    if (!ended) waitpid(process, nullptr, 0);
  }

  // Milliseconds.
  [[nodiscard]] double ProcessorTime() const {
    double nanoseconds = 0.0;
    std::error_code ignored;
    const std::string threads = "/proc/" + std::to_string(process) + "/task";
    for (const auto& thread : std::filesystem::directory_iterator(threads, ignored)) {
      double onProcessor = 0.0;
      std::ifstream(thread.path() / "schedstat") >> onProcessor;
      nanoseconds += onProcessor;
    }
    return nanoseconds / 1e6;
  }

  [[nodiscard]] bool HasEnded() {
    ended = ended || waitpid(process, nullptr, WNOHANG) == process;
    return ended;
  }

 private:
  pid_t process = -1;
  bool ended = false;
};

struct FirstWindow {
  double mapped = 0.0;
  double painted = 0.0;
  double processor = 0.0;
};

std::optional<FirstWindow> Measure(const TCStage& stage, char** command) {
  const Clock::time_point begin = Clock::now();
  TCProgram program(command);
  FirstWindow found;
  while (Clock::now() - begin < kPatience && !program.HasEnded()) {
    for (const Window window : stage.Windows()) {
      if (!stage.IsShownMainWindow(window)) continue;
      if (found.mapped == 0.0) found.mapped = MillisecondsSince(begin);
      if (!stage.IsPainted(window)) continue;
      found.painted = MillisecondsSince(begin);
      found.processor = program.ProcessorTime();
      return found;
    }
    std::this_thread::sleep_for(kStep);
  }
  return std::nullopt;
}

}  // namespace

int main(int argc, char** argv) {
  const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
  if (runs < 1) {
    std::fprintf(stderr, "usage: %s RUNS COMMAND [ARGUMENT...]\n", argv[0]);
    return 2;
  }
  Display* display = XOpenDisplay(nullptr);
  if (display == nullptr) {
    std::fprintf(stderr, "there is no display\n");
    return 1;
  }
  XSetErrorHandler(IgnoreError);
  const TCStage stage(display);

  std::vector<double> mapped;
  std::vector<double> painted;
  std::vector<double> processor;
  for (int run = 0; run < runs; ++run) {
    const std::optional<FirstWindow> found = Measure(stage, argv + 2);
    if (!found) {
      std::fprintf(stderr, "%s: no painted window came\n", argv[2]);
      return 1;
    }
    std::printf("window %7.0f ms, painted %7.0f ms, processor %7.0f ms\n", found->mapped, found->painted,
                found->processor);
    mapped.push_back(found->mapped);
    painted.push_back(found->painted);
    processor.push_back(found->processor);
    while (!stage.Windows().empty()) std::this_thread::sleep_for(kStep);
  }
  std::printf("median of %d: window %.0f ms, painted %.0f ms, processor %.0f ms\n", runs,
              brevant::Median(mapped), brevant::Median(painted), brevant::Median(processor));
  XCloseDisplay(display);
  return 0;
}
