// A scripted session over a throw-away folder, run inside the test.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/script/scripthost.h"
#include "tests/support/testprogram.h"

namespace morlan {

class ScriptedSession {
 public:
  // The folder has windows\ with a small Morlan7.ini, program\, temp\ and an empty work\, which is the current directory.
  ScriptedSession();
  ~ScriptedSession();

  // Registers forms and the like, behind the assembly of the program.
  std::function<void(Program&)> prepare;
  std::optional<DateTime> stoppedAt = DateTime{1998, 5, 4, 12, 30, 0, 1};
  // Called when the script fails inside a question; empty: the program hears "cancel".
  std::function<void()> onAbandoned;

  // Runs a script, UTF-8, against a fresh program. The transcript behind the start-up, in UTF-8, with "<folder>" for
  // the work folder; status lines are left out unless they are wanted.
  enum class StatusLines { Leave, Keep };
  std::vector<std::string> Run(std::string_view script, StatusLines statusLines = StatusLines::Leave);
  bool CarriedOut() const { return carriedOut_; }

  Program& program() { return *program_; }
  // A file below work\.
  void Write(std::string_view name, std::string_view bytes);
  std::string Read(std::string_view name);

 private:
  std::string WorkPath(std::string_view name) const;

  ThrowAwayFolder folder_;
  PosixFiles files_;
  TestEnvironment environment_;
  TestRegistry registry_;
  StoppedClock clock_;
  std::unique_ptr<ScriptHost> host_;
  std::unique_ptr<Program> program_;
  bool carriedOut_ = false;
};

using Lines = std::vector<std::string>;

}  // namespace morlan
