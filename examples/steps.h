// The steps from neighbours to curvatures, and the time that each takes.
#ifndef STEPS_H
#define STEPS_H

#include <array>
#include <chrono>

enum class Step { Gathering, Frames, Rows, NormalEquations, Solutions, Curvatures, Orientation };
constexpr std::array<const char*, 7> stepNames = {"gathering", "frames",     "points into frames", "normal equations",
                                                  "solutions", "curvatures", "orientation"};

inline double secondsNow() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// Times of a run on one thread.
class StepTimes {
public:
  std::array<double, stepNames.size()> seconds{};
  /// What has been done since the last call, or since start(), was this step.
  void done(Step step) {
    const double now = secondsNow();
    seconds[std::size_t(step)] += now - last;
    last = now;
  }
  void start() { last = secondsNow(); }

private:
  double last = 0;
};

#endif
