#include "platform/posix/backgroundfiles.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/posix/nativeio.h"

namespace morlan {

PosixBackgroundFiles::PosixBackgroundFiles(Files& files) : files_(files), thread_([this] { Work(); }) {}

PosixBackgroundFiles::~PosixBackgroundFiles() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  added_.notify_one();
  thread_.join();
}

void PosixBackgroundFiles::Write(std::string_view path, std::string bytes) { Add({files_.ToNative(path), std::move(bytes)}); }
void PosixBackgroundFiles::Delete(std::string_view path) { Add({files_.ToNative(path), std::nullopt}); }

void PosixBackgroundFiles::Add(Change change) {
  {
    const std::lock_guard lock(mutex_);
    std::erase_if(waiting_, [&](const Change& earlier) { return earlier.path == change.path; });
    waiting_.push_back(std::move(change));
  }
  added_.notify_one();
}

bool PosixBackgroundFiles::Finish(int milliseconds) {
  std::unique_lock lock(mutex_);
  return done_.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return waiting_.empty() && !busy_; });
}

void PosixBackgroundFiles::Work() {
  std::unique_lock lock(mutex_);
  for (;;) {
    added_.wait(lock, [this] { return ending_ || !waiting_.empty(); });
    if (waiting_.empty()) return;
    const Change change = std::move(waiting_.front());
    waiting_.pop_front();
    busy_ = true;
    lock.unlock();
    if (change.bytes)
      native::Replace(change.path, *change.bytes);
    else
      ::unlink(change.path.c_str());
    lock.lock();
    busy_ = false;
    done_.notify_all();
  }
}

}  // namespace morlan
