// Starts other programs without a shell.
#pragma once

#include <cstdint>

#include "platform/services.h"

namespace morlan {

class Files;

// A number for this process that no other has had, nor will have after the machine was started again.
std::uint64_t OwnProcess();
// Whether the process of that number is this program, started by anyone, and still runs.
bool IsRunningMorlan7(std::uint64_t process);

class PosixProcesses : public Processes {
 public:
  explicit PosixProcesses(Files& files);

  // The line is split as commandline.h tells. A program or an argument that is a path of the program's form ("c:\...") is
  // handed over as the machine's own; where such a path stands without quotes and holds blanks, the shortest stretch that
  // names an existing file is taken, or else the shortest that names a folder. A program without a path is looked for in
  // PATH. It starts in the program's current directory, in a session of its own, with no input and no output. The window
  // style is left to the desktop.
  bool Start(std::string_view commandLine, int windowStyle) override;

  // Through xdg-open. An address is anything that starts with a scheme of two letters or more; a file must exist.
  bool Open(std::string_view path) override;

 private:
  Files& files_;
};

}  // namespace morlan
