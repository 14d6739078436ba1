// The editor in its window.
#include <QApplication>
#include <filesystem>
#include <iostream>
#include <string>

#include "app/assemble.h"
#include "core/defs.h"
#include "core/safetystore.h"
#include "platform/posix/backgroundfiles.h"
#include "platform/posix/clock.h"
#include "platform/posix/environment.h"
#include "platform/posix/files.h"
#include "platform/posix/processes.h"
#include "platform/posix/profile.h"
#include "platform/posix/registry.h"
#include "platform/qt/desktop.h"

namespace morlan {
namespace {

// All of the arguments as one path, in the program's form; empty when there are none.
std::string CommandLineOf(Files& files, const QStringList& arguments) {
  const std::string path = arguments.mid(1).join(QLatin1Char(' ')).toStdString();
  if (path.empty()) return "";
  // What cannot be read as a path of this machine stands as it is, and names no file.
  return files.FromNative(path.starts_with('/') ? path : (std::filesystem::current_path() / path).string());
}

int Main(int& count, char** arguments) {
  PrepareToolkit();
  QApplication application(count, arguments);
  SetUpToolkit();
  const ProfileFolders folders = UserFolders();
  if (!FillProfile(folders, FindShippedData(MORLAN7_DATA_DIR).value_or("")))
    std::cerr << "morlan7: the profile could not be filled: " << folders.program << '\n';
  PosixFiles files;
  PosixEnvironment environment(folders, CommandLineOf(files, QCoreApplication::arguments()));
  FileRegistry registry(folders.windows + "/registry");
  PosixClock clock;
  PosixProcesses processes(files);
  Desktop desktop({files, environment, registry, processes, clock});
  desktop.frontEnd().onEnd = [] { QCoreApplication::exit(0); };
  Program program(desktop.platform(), desktop.frontEnd());
  const std::string state = UserStateFolder();
  PosixBackgroundFiles background(files);
  SafetyStore safety(files.FromNative(state), files, clock, background, {OwnProcess(), IsRunningMorlan7});
  if (!state.empty()) program.safety = &safety;
  Assemble(program);
  desktop.Start(program);
  const int code = QApplication::exec();
  desktop.Finish();
  return code;
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main(count, arguments); }
