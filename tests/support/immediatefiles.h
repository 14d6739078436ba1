// Background changes that take place at once.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/services.h"

namespace morlan {

class ImmediateFiles : public BackgroundFiles {
 public:
  explicit ImmediateFiles(Files& files) : files_(files) {}
  void Write(std::string_view path, std::string bytes) override { files_.Write(path, bytes); }
  void Delete(std::string_view path) override { files_.Delete(path); }
  bool Finish(int) override { return true; }

 private:
  Files& files_;
};

}  // namespace morlan
