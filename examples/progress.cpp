#include "progress.h"
#include <cstdio>
#include <unistd.h>

Progress::Progress(bool atOnce)
    : first(Clock::now() + std::chrono::seconds(atOnce ? 0 : 1)), next(first), terminal(isatty(STDERR_FILENO) == 1) {}

void Progress::start(const char* what) {
  work = what;
  next = first;
  at(0, 1);
}

void Progress::at(std::size_t done, std::size_t all) {
  if (!terminal || Clock::now() < next)
    return;
  next = Clock::now() + std::chrono::milliseconds(100);
  written = true;
  std::fprintf(stderr, "\r%s: %3.0f %%\033[K", work, 100 * double(done) / double(all));
  std::fflush(stderr);
}

void Progress::clear() {
  if (written)
    std::fputs("\r\033[K", stderr);
  written = false;
}
