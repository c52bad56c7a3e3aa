// Times a program from its start to its first mapped window, by the window system's own
// event, and tells the memory that is resident a second later.
//
//   first_window PROGRAM [RUNS]

#include <X11/Xlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

long ResidentKilobytes(pid_t process) {
  std::ifstream status("/proc/" + std::to_string(process) + "/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind("VmRSS:", 0) == 0) return std::strtol(line.c_str() + 6, nullptr, 10);
  }
  return -1;
}

/// Milliseconds until a top-level window larger than a helper window is mapped.
double Measure(Display* display, const char* program, long& residentKilobytes) {
  const auto start = Clock::now();
  const pid_t process = fork();
  if (process == 0) {
    execl(program, program, static_cast<char*>(nullptr));
    _exit(127);
  }
  for (;;) {
    XEvent event;
    XNextEvent(display, &event);
    if (event.type != MapNotify) continue;
    XWindowAttributes window;
    if (XGetWindowAttributes(display, event.xmap.window, &window) == 0 || window.width < 50) {
      continue;
    }
    break;
  }
  const std::chrono::duration<double, std::milli> took = Clock::now() - start;
  sleep(1);
  residentKilobytes = ResidentKilobytes(process);
  kill(process, SIGTERM);
  waitpid(process, nullptr, 0);
  XSync(display, True);
  return took.count();
}

int IgnoreError(Display*, XErrorEvent*) {
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  Display* display = XOpenDisplay(nullptr);
  if (argc < 2 || display == nullptr) {
    std::fprintf(stderr, "usage: first_window PROGRAM [RUNS], with a display\n");
    return 2;
  }
  XSetErrorHandler(IgnoreError);
  XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
  const int runs = argc > 2 ? std::atoi(argv[2]) : 10;
  std::vector<double> times;
  long resident = 0;
  for (int run = 0; run < runs; ++run) times.push_back(Measure(display, argv[1], resident));
  std::sort(times.begin(), times.end());
  std::printf("%-60s  first window: median %.1f ms, best %.1f ms;  resident %.1f MB\n", argv[1],
              times[times.size() / 2], times.front(), static_cast<double>(resident) / 1024);
  return 0;
}
