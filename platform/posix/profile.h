// The folders that hold what belongs to the user, and their filling at a first start. Paths are native.
#pragma once

#include <optional>
#include <string>

namespace morlan {

struct ProfileFolders {
  std::string windows;  // settings
  std::string program;  // the program's data: lists, templates, macros, ...
  std::string temp;     // empty: a private one, made when it is asked for and removed at the end
};

// $XDG_STATE_HOME/morlan7 or its place below the home folder, which only the user can enter: for texts kept against loss. It is
// made where it is missing; empty when that cannot be.
std::string UserStateFolder();

// $XDG_CONFIG_HOME/morlan7 and $XDG_DATA_HOME/morlan7, or their places below the home folder. "temp" is the environment's
// variable of that name, if it names a folder.
ProfileFolders UserFolders();

// "windows", "program" and "temp" below one folder.
ProfileFolders FoldersBelow(const std::string& profile);

// The folder in which the program's file lies.
std::string NativeExecutableDirectory();

// The tree of data that comes with the program: $MORLAN7_DATA, share/morlan7 beside the program's folder or, as in a build
// folder, below it, and at last `installed`. Nothing when none of them is one.
std::optional<std::string> FindShippedData(const std::string& installed = "");

// Makes the folders that are missing. A missing program folder gets a copy of the shipped tree, without its icons, in one
// go; a missing Morlan7.ini of the Windows folder, Morlan7.tpf and CharSets.Def of the program folder come from there too. What
// exists is never touched. False when something could not be made.
bool FillProfile(const ProfileFolders& folders, const std::string& shippedData);

// A fresh folder that only the user can enter, removed with all that it holds when the object goes.
class PrivateFolder {
 public:
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;
  const std::string& Path() const { return path_; }  // empty when none could be made

 private:
  std::string path_;
};

}  // namespace morlan
