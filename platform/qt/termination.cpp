#include "platform/qt/termination.h"

#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace morlan {
namespace {

constexpr std::array kSignals = {SIGTERM, SIGHUP, SIGINT};

// A handler may do no more than write a byte somewhere, and nothing else can tell it where.
std::atomic<int> target = -1;

void Tell(int) {
  const int before = errno;
  const char byte = 1;
  [[maybe_unused]] const auto written = ::write(target, &byte, 1);
  errno = before;
}

}  // namespace

Termination::Termination() = default;

Termination::~Termination() {
  if (!notifier_) return;
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  target = -1;
  notifier_.reset();
  for (const int end : pipe_) ::close(end);
}

void Termination::Watch(std::function<void()> onSignal) {
  onSignal_ = std::move(onSignal);
  if (notifier_ || ::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
  target = pipe_[1];
  notifier_ = std::make_unique<QSocketNotifier>(pipe_[0], QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, notifier_.get(), [this] {
    char byte;
    if (::read(pipe_[0], &byte, 1) == 1) onSignal_();
  });
  for (const int signal : kSignals) std::signal(signal, Tell);
}

}  // namespace morlan
