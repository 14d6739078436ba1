#include "platform/posix/processes.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <thread>

#include "platform/encoding.h"
#include "platform/posix/filenames.h"
#include "platform/posix/files.h"
#include "tests/platform/nativefolder.h"

namespace morlan {
namespace {

class PosixProcessesTest : public testing::Test {
 protected:
  PosixProcessesTest() : processes(files) {
    files.ChangeDirectory(P());
    // Writes its arguments, one a line, then where it runs.
    PutProgram("Program.sh", "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\"; done > out.tmp\npwd >> out.tmp\nmv out.tmp out\n");
  }

  std::string P(std::string_view name = "") const { return PathFromNative(folder.path.string()) + "\\" + std::string(name); }
  std::string Native(const std::string& name = "") const { return name.empty() ? folder.path.string() : (folder.path / name).string(); }
  void PutProgram(const std::string& name, const std::string& text) { ::chmod(folder.Put(name, text).c_str(), 0755); }

  // What the program wrote; waits for it.
  std::string Output() const {
    for (int i = 0; i < 500 && !folder.Has("out"); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return folder.Get("out");
  }

  NativeFolder folder;
  PosixFiles files;
  PosixProcesses processes;
};

TEST_F(PosixProcessesTest, StartsAProgramInTheCurrentDirectory) {
  EXPECT_TRUE(processes.Start(P("Program.sh") + " a \"b c\" $HOME ;ls", 1));
  EXPECT_EQ(Output(), "a\nb c\n$HOME\n;ls\n" + Native() + "\n");
}

TEST_F(PosixProcessesTest, TheProgramIsFoundWithoutRegardToCase) {
  EXPECT_TRUE(processes.Start(P("PROGRAM.SH"), 1));
  EXPECT_EQ(Output(), Native() + "\n");
}

TEST_F(PosixProcessesTest, PathsOfTheDriveBecomeNative) {
  EXPECT_TRUE(processes.Start(P("Program.sh") + " " + P("ż.html"_pl) + " a\\b", 3));
  EXPECT_EQ(Output(), Native("ż.html") + "\na\\b\n" + Native() + "\n");
}

TEST_F(PosixProcessesTest, UnquotedPathsWithBlanksAreTakenAsFarAsAFileOfThatNameExists) {
  PutProgram("moj program.sh", "#!/bin/sh\nexec ./Program.sh \"$@\"\n");
  folder.Put("moja strona.html", "");
  EXPECT_TRUE(processes.Start(P("moj program.sh") + " " + P("moja strona.html") + " " + P("nie ma"), 1));
  EXPECT_EQ(Output(), Native("moja strona.html") + "\n" + Native("nie") + "\nma\n" + Native() + "\n");
}

TEST_F(PosixProcessesTest, AFileInAFolderWithBlanksWinsOverAFolderOfTheFirstWord) {
  for (const char* name : {"moje", "moje strony"}) std::filesystem::create_directory(folder.path / name);
  folder.Put("moje strony/a.html", "");
  EXPECT_TRUE(processes.Start(P("Program.sh") + " " + P("moje strony\\a.html"), 3));
  EXPECT_EQ(Output(), Native("moje strony/a.html") + "\n" + Native() + "\n");
}

TEST_F(PosixProcessesTest, AMissingProgramIsAFailure) {
  EXPECT_FALSE(processes.Start(P("brak.sh"), 1));
  EXPECT_FALSE(processes.Start("morlan7-no-such-program", 1));
  EXPECT_FALSE(processes.Start("", 1));
  EXPECT_FALSE(processes.Start("\"\"", 1));
}

TEST_F(PosixProcessesTest, NoZombieStaysBehind) {
  PutProgram("Pid.sh", "#!/bin/sh\necho $$ > out.tmp\nmv out.tmp out\n");
  EXPECT_TRUE(processes.Start(P("Pid.sh"), 0));
  const std::string process = "/proc/" + std::to_string(std::stoi(Output()));
  for (int i = 0; i < 500 && std::filesystem::exists(process); ++i) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  EXPECT_FALSE(std::filesystem::exists(process));
}

class OpenTest : public PosixProcessesTest {
 protected:
  OpenTest() : path_(std::getenv("PATH")) {
    PutProgram("xdg-open", "#!/bin/sh\nexec ./Program.sh \"$@\"\n");
    ::setenv("PATH", (Native() + ":" + path_).c_str(), 1);
  }
  ~OpenTest() override { ::setenv("PATH", path_.c_str(), 1); }

 private:
  std::string path_;
};

TEST_F(OpenTest, FilesAreOpenedByTheirNativePath) {
  folder.Put("a b.html", "");
  EXPECT_TRUE(processes.Open("A B.html"));
  EXPECT_EQ(Output(), Native("a b.html") + "\n" + Native() + "\n");
}

TEST_F(OpenTest, AddressesAreHandedOverAsTheyStand) {
  EXPECT_TRUE(processes.Open("http://example.org/a?b=c&d"));
  EXPECT_EQ(Output(), "http://example.org/a?b=c&d\n" + Native() + "\n");
}

TEST_F(OpenTest, AMissingFileIsAFailure) { EXPECT_FALSE(processes.Open(P("brak.html"))); }

}  // namespace
}  // namespace morlan
