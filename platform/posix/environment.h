// The environment of a POSIX process in the program's terms.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/posix/profile.h"
#include "platform/services.h"

namespace morlan {

class PosixEnvironment : public Environment {
 public:
  // `commandLine` is everything behind the program's name, as one text in Windows-1250.
  explicit PosixEnvironment(ProfileFolders folders, std::string_view commandLine = "");

  // "temp", in any letter case, is the profile's folder for temporary files as a path of the program; a private one, made
  // at the first question, where the profile has none. All others are the process's variables as they stand.
  std::string Variable(std::string_view name) override;
  std::string WindowsDirectory() override;
  std::string SystemDirectory() override;  // the Windows directory: this machine has no other that is the user's
  std::string UserDataDirectory() override;
  std::string ExecutableDirectory() override;
  std::string CommandLine() override { return commandLine_; }

 private:
  ProfileFolders folders_;
  std::string commandLine_;
  std::optional<PrivateFolder> privateTemp_;
};

}  // namespace morlan
