// Settings of the process that the browser engine reads when its first page is made.
#pragma once

#include <QByteArray>

namespace morlan {

// Set while it lives: what other programs inherit stays as it was.
class EngineStart {
 public:
  EngineStart();
  ~EngineStart();
  EngineStart(const EngineStart&) = delete;
  EngineStart& operator=(const EngineStart&) = delete;

 private:
  QByteArray flags_;
  bool hadFlags_;
};

}  // namespace morlan
