#include "platform/posix/backgroundfiles.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <sys/stat.h>

#include <cstdlib>

#include "platform/posix/filenames.h"
#include "platform/posix/files.h"
#include "platform/posix/processes.h"
#include "platform/posix/profile.h"
#include "tests/platform/nativefolder.h"

namespace morlan {
namespace {

constexpr int kPatience = 10000;

class BackgroundFilesTest : public testing::Test {
 protected:
  std::string P(std::string_view name) const { return PathFromNative(folder.path.string()) + "\\" + std::string(name); }
  NativeFolder folder;
  PosixFiles files;
};

TEST_F(BackgroundFilesTest, WritesAndDeletesInOrder) {
  PosixBackgroundFiles background(files);
  background.Write(P("a"), "1");
  background.Write(P("b"), "2");
  background.Delete(P("a"));
  background.Write(P("b"), "3");
  ASSERT_TRUE(background.Finish(kPatience));
  EXPECT_EQ(files.Read(P("a")), std::nullopt);
  EXPECT_EQ(files.Read(P("b")), "3");
}

TEST_F(BackgroundFilesTest, WhatWaitsIsDoneBeforeTheEnd) {
  {
    PosixBackgroundFiles background(files);
    for (int i = 0; i < 20; ++i) background.Write(P(std::to_string(i)), "x");
  }
  EXPECT_EQ(files.List(P("")).size(), 20u);
}

TEST_F(BackgroundFilesTest, AFolderThatIsMissingFailsSilently) {
  PosixBackgroundFiles background(files);
  background.Write(P("nie ma\\a"), "1");
  background.Delete(P("nie ma\\b"));
  EXPECT_TRUE(background.Finish(kPatience));
}

TEST(Processes, KnowThisProgramFromOthers) {
  EXPECT_TRUE(IsRunningMorlan7(OwnProcess()));
  EXPECT_FALSE(IsRunningMorlan7(1)) << "the machine's first process";
  EXPECT_FALSE(IsRunningMorlan7(999999999));
  EXPECT_FALSE(IsRunningMorlan7(0));
}

TEST(Processes, AnEarlierRunThatHadTheSameIdRunsNoMore) {
  constexpr std::uint64_t kMark = std::uint64_t{1} << 22;
  EXPECT_EQ(OwnProcess() % kMark, static_cast<std::uint64_t>(::getpid()));
  EXPECT_EQ(OwnProcess(), OwnProcess());
  EXPECT_FALSE(IsRunningMorlan7(static_cast<std::uint64_t>(::getpid())));
  EXPECT_FALSE(IsRunningMorlan7(OwnProcess() ^ kMark));
}

TEST_F(BackgroundFilesTest, TheStateFolderIsTheUsersAlone) {
  const std::string state = (folder.path / "stan").string();
  const char* before = std::getenv("XDG_STATE_HOME");
  const std::string old = before ? before : "";
  ::setenv("XDG_STATE_HOME", state.c_str(), 1);
  ::mkdir(state.c_str(), 0777);
  ::mkdir((state + "/morlan7").c_str(), 0777);
  EXPECT_EQ(UserStateFolder(), state + "/morlan7");
  struct stat status;
  ASSERT_EQ(::stat((state + "/morlan7").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700u);
  before ? ::setenv("XDG_STATE_HOME", old.c_str(), 1) : ::unsetenv("XDG_STATE_HOME");
}

}  // namespace
}  // namespace morlan
