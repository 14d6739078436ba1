#include "platform/posix/environment.h"

#include <cstdlib>
#include <utility>

#include "platform/encoding.h"
#include "platform/lettercase.h"
#include "platform/posix/filenames.h"

namespace morlan {

PosixEnvironment::PosixEnvironment(ProfileFolders folders, std::string_view commandLine)
    : folders_(std::move(folders)), commandLine_(commandLine) {}

std::string PosixEnvironment::Variable(std::string_view name) {
  if (!EqualNoCase(name, "temp")) {
    const char* value = std::getenv(ToUtf8(name).c_str());
    return value ? FromUtf8(value) : "";
  }
  if (folders_.temp.empty()) folders_.temp = privateTemp_.emplace().Path();
  return folders_.temp.empty() ? "" : PathFromNative(folders_.temp);
}

std::string PosixEnvironment::WindowsDirectory() { return PathFromNative(folders_.windows); }
std::string PosixEnvironment::SystemDirectory() { return WindowsDirectory(); }
std::string PosixEnvironment::UserDataDirectory() { return PathFromNative(folders_.program); }
std::string PosixEnvironment::ExecutableDirectory() { return PathFromNative(NativeExecutableDirectory()); }

}  // namespace morlan
