// What the program needs of the machine besides files and windows. Texts are Windows-1250.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/datetime.h"

namespace morlan {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual DateTime Now() = 0;  // local time
  // Milliseconds from an arbitrary moment, never going back.
  virtual std::uint64_t Milliseconds() = 0;
};

class Environment {
 public:
  virtual ~Environment() = default;
  // Empty when the variable is missing.
  virtual std::string Variable(std::string_view name) = 0;
  virtual std::string WindowsDirectory() = 0;     // without a trailing "\"
  virtual std::string SystemDirectory() = 0;      // without a trailing "\"
  virtual std::string UserDataDirectory() = 0;    // where the program's data goes on a first start; without a trailing "\"
  virtual std::string ExecutableDirectory() = 0;  // without a trailing "\"
  virtual std::string CommandLine() = 0;          // everything behind the program's name, as one text
};

// Keys are paths such as "htmlfile\shell\Morlan7" below the root of classes; the default value has the empty name.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual bool SetString(std::string_view key, std::string_view name, std::string_view value) = 0;
  virtual std::optional<std::string> GetString(std::string_view key, std::string_view name) = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;
  // Starts a program and does not wait. The styles are those of the first window: 0 hidden, 1 normal, 2 and 6 minimised,
  // 3 maximised, 4 and 7 without taking the focus. False when nothing could be started.
  virtual bool Start(std::string_view commandLine, int windowStyle) = 0;
  // The desktop's "open" action for a file or an address.
  virtual bool Open(std::string_view path) = 0;
};

// Changes of files that nobody waits for.
class BackgroundFiles {
 public:
  virtual ~BackgroundFiles() = default;
  // Like Files::Write and Files::Delete, soon, and in the order of the calls; a call takes the place of an earlier one for
  // the same path that still waits. Failures are silent.
  virtual void Write(std::string_view path, std::string bytes) = 0;
  virtual void Delete(std::string_view path) = 0;
  // Waits until all is done; false when that took longer.
  virtual bool Finish(int milliseconds) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  // Nothing when the clipboard holds no text.
  virtual std::optional<std::string> Text() = 0;
  virtual void SetText(std::string_view text) = 0;
};

// A printer that takes texts one after the other.
class LinePrinter {
 public:
  virtual ~LinePrinter() = default;
  virtual void Print(std::string_view item) = 0;
  // Ends the page and sends what was printed. False when it could not be sent.
  virtual bool EndDocument() = 0;
};

}  // namespace morlan
