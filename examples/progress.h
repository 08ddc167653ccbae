// A line that tells how far the work is.
#ifndef PROGRESS_H
#define PROGRESS_H

#include <chrono>
#include <cstddef>

/// Writes to standard error if that is a terminal, once the program has run for a second. A line is written over the
/// one before, and nothing is left of it at the end.
class Progress {
public:
  /// atOnce: from the first moment on.
  explicit Progress(bool atOnce);
  ~Progress() { clear(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// What is being done now; how much of it comes from at().
  void start(const char* work);
  /// From one thread at a time. Costs a look at the clock.
  void at(std::size_t done, std::size_t all);
  /// Takes the line away, before something else is written.
  void clear();

private:
  using Clock = std::chrono::steady_clock;
  const Clock::time_point first; // no line before this
  Clock::time_point next;        // nor before this, of the same work
  const char* work = "";
  bool terminal, written = false;
};

#endif
