// A whole program over a throw-away folder, with services that record what they are asked for.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/defs.h"
#include "core/document.h"
#include "core/morlan.h"
#include "platform/posix/files.h"
#include "tests/support/recordingplatform.h"

namespace morlan {

// A folder that is removed with everything in it at the end.
class ThrowAwayFolder {
 public:
  ThrowAwayFolder();
  ~ThrowAwayFolder();
  const std::filesystem::path path;  // native
};

class TestProgram {
 public:
  enum class Start { No, Yes };
  // The profile has windows\, program\ and temp\, a Morlan7.ini that is installed, and the lists that the test writes before
  // StartUp. The current directory is work\, which is empty.
  explicit TestProgram(Start start = Start::Yes);

  ThrowAwayFolder folder;
  Record record;
  PosixFiles files;
  TestEnvironment environment;
  TestRegistry registry;
  RecordingProcesses processes{record};
  StoppedClock clock;
  TestClipboard clipboard;
  RecordingPrinter printer{record};
  RecordingWindows windows{record};
  RecordingFrontEnd frontEnd{record};
  Program program;

  // Paths below the folder, in the program's form: Path("work\\a.html").
  std::string Path(std::string_view relative) const;
  void Write(std::string_view relative, std::string_view bytes);
  std::string Read(std::string_view relative);  // fails the test when there is no such file
  bool Exists(std::string_view relative);

  // A document with that text, as if it had been opened from work\NAME; it is the active one.
  TEditor& OpenText(std::string_view text, std::string_view name = "strona.html");
  std::string Text() const;  // of the active editor
  Morlan& frame() { return program.frame(); }
  // The record since the last call, without the documents' comings and goings.
  Record Asked();

 private:
  std::string root_;
};

}  // namespace morlan
