#include "platform/posix/profile.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <cstdlib>
#include <filesystem>
#include <string_view>

#include "platform/posix/nativeio.h"

namespace morlan {
namespace {

namespace fs = std::filesystem;

constexpr const char* kIniName = "/Morlan7.ini";
constexpr const char* kDefinitions[] = {"/Morlan7.tpf",           "/CharSets.Def",          "/SLOWNIKI/morlan7s.pol",
                                        "/SLOWNIKI/morlan7i.pol", "/SLOWNIKI/morlan7s.ang", "/SLOWNIKI/morlan7i.ang"};
constexpr std::string_view kIcons = "icons";

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string HomeFolder() {
  std::string home = Variable("HOME");
  if (home.starts_with('/')) return home;
  const passwd* user = ::getpwuid(::getuid());
  return user && user->pw_dir ? user->pw_dir : "/";
}

// A folder of the desktop's conventions, which count only when they are absolute.
std::string BaseFolder(const char* variable, const char* belowHome) {
  std::string folder = Variable(variable);
  return folder.starts_with('/') ? folder : HomeFolder() + belowHome;
}

// Only what every shipped tree holds tells it from any folder called "data".
bool IsShippedTree(const std::string& folder) { return !folder.empty() && native::IsDirectory(folder + "/Listy"); }

// Copies folders and regular files; the copies belong to the user, whatever the rights of the originals.
bool CopyTree(const fs::path& from, const fs::path& to) {
  std::error_code error;
  bool copied = true;
  for (fs::recursive_directory_iterator entry(from, error), end; !error && entry != end; entry.increment(error)) {
    const fs::path target = to / entry->path().lexically_relative(from);
    if (entry.depth() == 0 && entry->path().filename() == kIcons) {
      entry.disable_recursion_pending();
    } else if (entry->is_directory(error)) {
      copied = ::mkdir(target.c_str(), 0755) == 0 && copied;
    } else if (const auto bytes = native::Read(entry->path().native())) {
      copied = native::WriteInPlace(target.native(), *bytes) && copied;
    }
  }
  return copied && !error;
}

// A folder that an older version has made lacks definitions that came later.
bool AddDefinitions(const std::string& program, const std::string& shippedData) {
  bool added = true;
  for (const char* name : kDefinitions) {
    if (shippedData.empty() || native::Status(program + name)) continue;
    const auto bytes = native::Read(shippedData + name);
    const bool hasFolder = bytes && native::MakeDirectories(native::DirectoryOf(program + name));
    added = (!bytes || (hasFolder && native::Replace(program + name, *bytes))) && added;
  }
  return added;
}

bool FillProgramFolder(const std::string& program, const std::string& shippedData) {
  if (native::Status(program)) return AddDefinitions(program, shippedData);
  if (!IsShippedTree(shippedData) || !native::MakeDirectories(native::DirectoryOf(program))) return false;
  std::string fresh = program + "-XXXXXX";
  if (!::mkdtemp(fresh.data())) return false;
  const bool filled = CopyTree(shippedData, fresh) && native::RenameToNew(fresh, program);
  std::error_code ignored;
  if (!filled) fs::remove_all(fresh, ignored);
  // Another program that starts at this moment may have been quicker.
  return filled || native::IsDirectory(program);
}

bool FillWindowsFolder(const std::string& windows, const std::string& program, const std::string& shippedData) {
  if (!native::MakeDirectories(windows)) return false;
  if (native::Status(windows + kIniName)) return true;
  auto settings = native::Read(program + kIniName);
  if (!settings) settings = native::Read(shippedData + kIniName);
  return settings && native::Replace(windows + kIniName, *settings);
}

}  // namespace

ProfileFolders UserFolders() {
  const std::string temp = Variable("temp");
  return {BaseFolder("XDG_CONFIG_HOME", "/.config") + "/morlan7", BaseFolder("XDG_DATA_HOME", "/.local/share") + "/morlan7",
          temp.starts_with('/') && native::IsDirectory(temp) ? temp : ""};
}

std::string UserStateFolder() {
  const std::string folder = BaseFolder("XDG_STATE_HOME", "/.local/state") + "/morlan7";
  // One that was made with wider rights is closed, since it holds whole texts.
  return native::MakeDirectories(folder) && ::chmod(folder.c_str(), S_IRWXU) == 0 ? folder : "";
}

ProfileFolders FoldersBelow(const std::string& profile) { return {profile + "/windows", profile + "/program", profile + "/temp"}; }

std::string NativeExecutableDirectory() {
  std::string path(PATH_MAX, '\0');
  const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
  path.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
  return native::DirectoryOf(path);
}

std::optional<std::string> FindShippedData(const std::string& installed) {
  const std::string here = NativeExecutableDirectory();
  const std::array<std::string, 4> places = {Variable("MORLAN7_DATA"), here + "/../share/morlan7", here + "/share/morlan7", installed};
  for (const std::string& place : places)
    if (IsShippedTree(place)) return place;
  return std::nullopt;
}

bool FillProfile(const ProfileFolders& folders, const std::string& shippedData) {
  const bool program = FillProgramFolder(folders.program, shippedData);
  const bool windows = FillWindowsFolder(folders.windows, folders.program, shippedData);
  const bool temp = folders.temp.empty() || native::MakeDirectories(folders.temp);
  return program && windows && temp;
}

PrivateFolder::PrivateFolder() {
  for (const std::string& parent : {Variable("XDG_RUNTIME_DIR"), Variable("TMPDIR"), std::string("/tmp")}) {
    std::string folder = parent + "/morlan7-XXXXXX";
    if (!parent.starts_with('/') || !::mkdtemp(folder.data())) continue;
    path_ = folder;
    return;
  }
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

}  // namespace morlan
