// Writes and deletes files on a thread of its own, so that a large text never holds the window up.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "platform/files.h"
#include "platform/services.h"

namespace morlan {

class PosixBackgroundFiles : public BackgroundFiles {
 public:
  // `files` only turns paths into the machine's own, on the caller's thread.
  explicit PosixBackgroundFiles(Files& files);
  // What waits is still done.
  ~PosixBackgroundFiles() override;

  void Write(std::string_view path, std::string bytes) override;
  void Delete(std::string_view path) override;
  bool Finish(int milliseconds) override;

 private:
  struct Change {
    std::string path;                  // native
    std::optional<std::string> bytes;  // nothing: the file goes
  };
  void Add(Change change);
  void Work();

  Files& files_;
  std::mutex mutex_;
  std::condition_variable added_, done_;
  std::deque<Change> waiting_;
  bool busy_ = false, ending_ = false;
  std::thread thread_;
};

}  // namespace morlan
