// The desktop program as a user runs it, with the shipped data in a fresh profile, for the benchmarks.
#pragma once

#include <QApplication>
#include <string>

#include "app/assemble.h"
#include "core/documents.h"
#include "core/morlan.h"
#include "platform/posix/clock.h"
#include "platform/posix/environment.h"
#include "platform/posix/files.h"
#include "platform/posix/processes.h"
#include "platform/posix/profile.h"
#include "platform/posix/registry.h"
#include "platform/qt/desktop.h"
#include "platform/qt/mainwindow.h"

namespace morlan {

class RunningProgram {
 public:
  RunningProgram() {
    program_.frame().splashShown = true;
    desktop_.Start(program_);
    Paint();
  }
  ~RunningProgram() { desktop_.Finish(); }
  void Open(const std::string& nativePath) {
    OpenDocument(program_, files_.FromNative(nativePath));
    Paint();
  }
  void Close() {
    CloseActiveDocument(program_);
    do Paint();
    while (!program_.closedDocuments.empty());
  }
  std::string Folder() const { return folder_.Path(); }
  Program& program() { return program_; }
  MainWindow& Window() { return *desktop_.frontEnd().Window(); }
  // Handles the events that are waiting, until what has changed is on the screen.
  static void Paint() {
    for (int round = 0; round < 5; ++round) QApplication::processEvents();
  }

 private:
  static ProfileFolders Filled(const std::string& folder) {
    const ProfileFolders folders = FoldersBelow(folder);
    FillProfile(folders, FindShippedData().value_or(""));
    return folders;
  }

  PrivateFolder folder_;
  ProfileFolders folders_ = Filled(folder_.Path());
  PosixFiles files_;
  PosixEnvironment environment_{folders_};
  FileRegistry registry_{folders_.windows + "/registry"};
  PosixClock clock_;
  PosixProcesses processes_{files_};
  Desktop desktop_{{files_, environment_, registry_, processes_, clock_}};
  Program program_{desktop_.platform(), desktop_.frontEnd()};
  bool assembled_ = (Assemble(program_), true);
};

}  // namespace morlan
