// The signals that ask a program to end, told in the event loop.
#pragma once

#include <array>
#include <functional>
#include <memory>

class QSocketNotifier;

namespace morlan {

// One of a process.
class Termination {
 public:
  Termination();
  ~Termination();
  Termination(const Termination&) = delete;
  Termination& operator=(const Termination&) = delete;

  // From now on `onSignal` is called when SIGTERM, SIGHUP or SIGINT arrives.
  void Watch(std::function<void()> onSignal);

 private:
  std::array<int, 2> pipe_{-1, -1};
  std::unique_ptr<QSocketNotifier> notifier_;
  std::function<void()> onSignal_;
};

}  // namespace morlan
