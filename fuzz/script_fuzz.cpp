// Any bytes as a script: the reader and the commands over a whole program with its files in memory.
#include <algorithm>
#include <cstdint>
#include <sstream>
#include <string>
#include <string_view>

#include "app/assemble.h"
#include "core/defs.h"
#include "core/text.h"
#include "platform/script/scripthost.h"
#include "tests/support/memoryfiles.h"

namespace morlan {
namespace {

// Enough for every command inside a few others; more lines only make each run slower.
constexpr std::ptrdiff_t kLines = 64;

class FixedEnvironment : public Environment {
 public:
  std::string Variable(std::string_view name) override { return name == "temp" ? "c:\\temp" : ""; }
  std::string WindowsDirectory() override { return "c:\\windows"; }
  std::string SystemDirectory() override { return "c:\\windows"; }
  std::string UserDataDirectory() override { return "c:\\program"; }
  std::string ExecutableDirectory() override { return "c:\\bin"; }
  std::string CommandLine() override { return ""; }
};

class NoRegistry : public Registry {
 public:
  bool SetString(std::string_view, std::string_view, std::string_view) override { return false; }
  std::optional<std::string> GetString(std::string_view, std::string_view) override { return std::nullopt; }
};

class NoClock : public Clock {
 public:
  DateTime Now() override { return {}; }
  std::uint64_t Milliseconds() override { return 0; }
};

struct File {
  std::string_view path, bytes;
};
constexpr File kFiles[] = {
    {"c:\\windows\\Morlan7.ini",
     "[Orvil Dantrel's - MORLAN - INI File (C)1997]\r\n[Setup]\r\nInstallation=ok\r\n[Document]\r\nCreateBackup=True\r\n"
     "[AutoSave]\r\nAutoSaveActivated=True\r\nAutoSaveTime=1\r\n[Colorize]\r\nUseColorize=True\r\nGlobalColor=000000\r\n"
     "TagsColor=0000FF\r\nLinksColor=FF0000\r\nCommentsColor=008000\r\n"},
    {"c:\\program\\Listy\\Tags.lst", "<B>..</B>\r\n<IMG SRC=\"\">\r\n"},
    {"c:\\program\\SZABLONY\\Strona.hst", "<HTML><HEAD></HEAD><BODY></BODY></HTML>\r\n"},
    {"c:\\work\\a.html", "<html><body><a name=\"x\">ala</a><!-- new --><img src=b.gif></body></html>\r\n"},
    {"c:\\work\\k.cdf", "<CHANNEL>\r\n</CHANNEL>\r\n"},
};

void FillFiles(MemoryFiles& files) {
  for (const char* directory : {"c:\\windows", "c:\\temp", "c:\\program", "c:\\program\\Listy", "c:\\program\\SZABLONY", "c:\\work"})
    files.CreateDirectory(directory);
  for (const File& file : kFiles) files.Write(file.path, file.bytes);
  files.ChangeDirectory("c:\\work");
}

std::string FirstLines(std::string_view script) {
  std::ptrdiff_t left = kLines;
  const auto end = std::find_if(script.begin(), script.end(), [&](char c) { return c == '\n' && --left == 0; });
  return {script.begin(), end};
}

void RunScript(std::string_view script) {
  MemoryFiles files;
  FillFiles(files);
  FixedEnvironment environment;
  NoRegistry registry;
  NoClock clock;
  std::istringstream in(FirstLines(script));
  std::ostringstream out;
  ScriptHost host({files, environment, registry, clock}, in, out, DateTime{1998, 5, 4, 12, 30, 0, 1});
  Program program(host.platform(), host.frontEnd());
  Assemble(program);
  host.Run(program);
}

}  // namespace
}  // namespace morlan

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  morlan::RunScript({reinterpret_cast<const char*>(data), size});
  return 0;
}
