#include "platform/posix/processes.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>
#include <thread>

#include "platform/encoding.h"
#include "platform/files.h"
#include "platform/posix/commandline.h"

namespace morlan {
namespace {

constexpr std::size_t kMostJoined = 32;  // arguments that one path with blanks may have been split into

bool IsDrivePath(std::string_view text) {
  return text.size() >= 3 && (text[0] == 'c' || text[0] == 'C') && text[1] == ':' && (text[2] == '\\' || text[2] == '/');
}
bool IsPath(std::string_view text) { return text.find_first_of("\\/") != std::string_view::npos; }

bool IsAddress(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || colon < 2) return false;
  return std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(colon),
                     [](unsigned char c) { return c < 0x80 && (std::isalnum(c) || c == '+' || c == '-' || c == '.'); });
}

bool Exists(Files& files, std::string_view path) { return files.Size(path) || files.DirectoryExists(path); }

// How many arguments from `first` on make one existing path when they are joined by blanks; 1 when none do. The shortest
// file wins, then the shortest folder: "c:\my pages\a.html" is not the folder "c:\my" and a rest.
std::size_t PathPieces(Files& files, const std::vector<std::string>& arguments, std::size_t first) {
  std::string path = arguments[first];
  const std::size_t most = std::min(arguments.size() - first, kMostJoined);
  std::size_t folder = 0;
  for (std::size_t count = 1; count <= most; ++count) {
    if (count > 1) path += " " + arguments[first + count - 1];
    if (files.Size(path)) return count;
    if (folder == 0 && files.DirectoryExists(path)) folder = count;
  }
  return std::max<std::size_t>(folder, 1);
}

std::vector<std::string> NativeArguments(Files& files, const std::vector<std::string>& arguments) {
  std::vector<std::string> nativeArguments;
  for (std::size_t i = 0; i < arguments.size();) {
    const bool isPath = i == 0 ? IsPath(arguments[i]) : IsDrivePath(arguments[i]);
    const std::size_t count = isPath ? PathPieces(files, arguments, i) : 1;
    std::string argument = arguments[i];
    for (std::size_t k = 1; k < count; ++k) argument += " " + arguments[i + k];
    nativeArguments.push_back(isPath ? files.ToNative(argument) : ToUtf8(argument));
    i += count;
  }
  return nativeArguments;
}

// What posix_spawn is told, freed at the end.
class SpawnSettings {
 public:
  explicit SpawnSettings(const std::string& directory) {
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, directory.c_str());
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    posix_spawnattr_init(&attributes);
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
  }
  ~SpawnSettings() {
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
  }
  SpawnSettings(const SpawnSettings&) = delete;
  SpawnSettings& operator=(const SpawnSettings&) = delete;

  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
};

// Takes the exit of a child when it comes, so that none stays behind as a zombie.
void Reap(pid_t child) {
  try {
    std::thread([child] { ::waitpid(child, nullptr, 0); }).detach();
  } catch (const std::system_error&) {  // no thread to be had: the child is taken over when this process ends
  }
}

bool Spawn(const std::vector<std::string>& arguments, const std::string& directory) {
  std::vector<char*> pointers;
  for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
  pointers.push_back(nullptr);
  const SpawnSettings settings(directory);
  pid_t child = 0;
  if (::posix_spawnp(&child, pointers[0], &settings.actions, &settings.attributes, pointers.data(), ::environ) != 0) return false;
  Reap(child);
  return true;
}

}  // namespace

namespace {

// The file name of a process's program, also where that file has been replaced meanwhile; empty when there is no such process.
std::string ProgramOf(std::uint64_t process) {
  std::error_code error;
  const auto link = std::filesystem::read_symlink("/proc/" + std::to_string(process) + "/exe", error);
  if (error) return "";
  constexpr std::string_view kReplaced = " (deleted)";
  std::string name = link.filename().string();
  if (name.ends_with(kReplaced)) name.resize(name.size() - kReplaced.size());
  return name;
}

// The system gives the same ids again and again, so the number has the id in its lowest 22 bits and above them 41 bits made of the
// moments when the machine and the process were started. 0 when there is no such process.
constexpr int kIdBits = 22;
constexpr std::uint64_t kLargestId = (std::uint64_t{1} << kIdBits) - 1, kLargestMark = (std::uint64_t{1} << 41) - 1;

std::uint64_t NumberOf(std::uint64_t id) {
  constexpr int kFieldsBetween = 19;  // of the line, from the ")" behind the program's name to the time of its start
  std::ifstream file("/proc/" + std::to_string(id) + "/stat"), boot("/proc/sys/kernel/random/boot_id");
  std::string mark, line, time;
  std::getline(boot, mark);
  std::getline(file, line);
  const std::size_t name = line.rfind(')');
  if (name == std::string::npos) return 0;
  std::istringstream fields(line.substr(name + 1));
  for (int i = 0; i <= kFieldsBetween; ++i) fields >> time;
  if (!fields) return 0;
  std::uint64_t hash = 14695981039346656037u;
  for (const char character : mark + time) hash = (hash ^ static_cast<unsigned char>(character)) * 1099511628211u;
  return (hash & kLargestMark) << kIdBits | id;
}

}  // namespace

std::uint64_t OwnProcess() {
  const auto id = static_cast<std::uint64_t>(::getpid());
  const std::uint64_t number = NumberOf(id);
  return number != 0 ? number : id;  // where the system does not tell of its processes
}

bool IsRunningMorlan7(std::uint64_t process) {
  const std::uint64_t id = process & kLargestId;
  return process != 0 && NumberOf(id) == process && ProgramOf(id) == ProgramOf(static_cast<std::uint64_t>(::getpid()));
}

PosixProcesses::PosixProcesses(Files& files) : files_(files) {}

bool PosixProcesses::Start(std::string_view commandLine, int) {
  if (commandLine.find('\0') != std::string_view::npos) return false;
  const std::vector<std::string> arguments = SplitCommandLine(commandLine);
  if (arguments.empty() || arguments[0].empty()) return false;
  return Spawn(NativeArguments(files_, arguments), files_.ToNative(files_.CurrentDirectory()));
}

bool PosixProcesses::Open(std::string_view path) {
  if (path.find('\0') != std::string_view::npos) return false;
  const bool isAddress = IsAddress(path);
  if (!isAddress && !Exists(files_, path)) return false;
  return Spawn({"xdg-open", isAddress ? ToUtf8(path) : files_.ToNative(path)}, files_.ToNative(files_.CurrentDirectory()));
}

}  // namespace morlan
