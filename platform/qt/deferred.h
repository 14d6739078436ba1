// Work that many changes ask for and that is done once, when the event loop comes round.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <functional>
#include <utility>

namespace morlan {

class Deferred {
 public:
  explicit Deferred(std::function<void()> work) : work_(std::move(work)) {}
  void Ask() {
    if (asked_) return;
    asked_ = true;
    QMetaObject::invokeMethod(
        &context_, [this] { DoNow(); }, Qt::QueuedConnection);
  }
  // Does what was asked for, if anything was.
  void DoNow() {
    if (!asked_) return;
    asked_ = false;
    work_();
  }

 private:
  QObject context_;  // takes waiting calls with it when it goes
  std::function<void()> work_;
  bool asked_ = false;
};

}  // namespace morlan
