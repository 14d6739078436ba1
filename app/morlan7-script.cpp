// The editor without a window: it carries out a script of commands and answers with a transcript.
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/assemble.h"
#include "core/defs.h"
#include "platform/posix/clock.h"
#include "platform/posix/environment.h"
#include "platform/posix/files.h"
#include "platform/posix/processes.h"
#include "platform/posix/profile.h"
#include "platform/posix/registry.h"
#include "platform/script/scripthost.h"

namespace morlan {
namespace {

constexpr int kCarriedOut = 0, kFailed = 1, kWrongUse = 2;

constexpr std::string_view kUsage =
    "usage: morlan7-script [--profile DIR] [--now YYYY-MM-DDTHH:MM:SS] [--real-processes] [SCRIPT]\n"
    "  SCRIPT            a file of commands, one a line; without it, or with -, the standard input\n"
    "  --profile DIR     the folder with all that belongs to the user; by default a fresh one, removed at the end\n"
    "  --now MOMENT      stops the clock there; only the command \"wait\" moves it\n"
    "  --real-processes  really starts outside programs\n";

struct Options {
  std::string profile, script = "-";
  std::optional<DateTime> now;
  bool realProcesses = false;
};

int ComplainOfUse(std::string_view complaint) {
  std::cerr << "morlan7-script: " << complaint << '\n' << kUsage;
  return kWrongUse;
}

// The value of "--name VALUE" or "--name=VALUE", where `i` stands; it moves onto the value. Nothing for another option.
std::optional<std::string_view> OptionValue(const std::vector<std::string_view>& arguments, std::size_t& i, std::string_view name) {
  const std::string_view argument = arguments[i];
  if (argument == name && i + 1 < arguments.size()) return arguments[++i];
  if (argument.starts_with(name) && argument.substr(name.size()).starts_with('=')) return argument.substr(name.size() + 1);
  return std::nullopt;
}

// What is wrong with the arguments; empty when nothing is.
std::string ReadOptions(const std::vector<std::string_view>& arguments, Options& options) {
  bool named = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (const auto profile = OptionValue(arguments, i, "--profile")) {
      if (profile->empty()) return "--profile needs a folder";
      options.profile = *profile;
    } else if (const auto now = OptionValue(arguments, i, "--now")) {
      options.now = ReadMoment(*now);
      if (!options.now) return "--now needs a moment such as 1998-05-04T12:30:00";
    } else if (argument == "--real-processes") {
      options.realProcesses = true;
    } else if (argument != "-" && argument.starts_with('-')) {
      return "wrong option: " + std::string(argument);
    } else if (named) {
      return "there is one script at the most";
    } else {
      options.script = argument;
      named = true;
    }
  }
  return "";
}

ProfileFolders MakeProfile(const std::string& folder) {
  const ProfileFolders folders = FoldersBelow(std::filesystem::absolute(folder).string());
  if (!FillProfile(folders, FindShippedData(MORLAN7_DATA_DIR).value_or("")))
    std::cerr << "morlan7-script: the profile could not be filled: " << folder << '\n';
  return folders;
}

int RunScript(const Options& options, std::istream& script) {
  auto privateFolder = options.profile.empty() ? std::make_unique<PrivateFolder>() : nullptr;
  if (privateFolder && privateFolder->Path().empty()) return ComplainOfUse("no private folder could be made");
  const ProfileFolders folders = MakeProfile(privateFolder ? privateFolder->Path() : options.profile);
  PosixFiles files;
  PosixEnvironment environment(folders);
  FileRegistry registry(folders.windows + "/registry");
  PosixClock clock;
  PosixProcesses processes(files);
  ScriptHost host({files, environment, registry, clock, options.realProcesses ? &processes : nullptr}, script, std::cout, options.now);
  // Nothing runs behind a failed command, not even the command inside of which it was read.
  host.session.onAbandoned = [&] {
    privateFolder.reset();
    std::_Exit(kFailed);
  };
  Program program(host.platform(), host.frontEnd());
  Assemble(program);
  return host.Run(program) ? kCarriedOut : kFailed;
}

int Main(const std::vector<std::string_view>& arguments) {
  Options options;
  const std::string complaint = ReadOptions(arguments, options);
  if (!complaint.empty()) return ComplainOfUse(complaint);
  // A reader of the transcript that goes away ends the output, not the cleaning up.
  std::signal(SIGPIPE, SIG_IGN);
  std::ios::sync_with_stdio(false);
  if (options.script == "-") return RunScript(options, std::cin);
  std::ifstream script(options.script, std::ios::binary);
  if (!script || std::filesystem::is_directory(options.script)) return ComplainOfUse("the script cannot be read: " + options.script);
  return RunScript(options, script);
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main({arguments + 1, arguments + count}); }
