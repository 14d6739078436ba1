#include "platform/posix/profile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/encoding.h"
#include "platform/posix/environment.h"
#include "platform/posix/filenames.h"
#include "tests/platform/nativefolder.h"

namespace morlan {
namespace {

namespace fs = std::filesystem;

// Sets a variable of the environment for the time of one test; null takes it away.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const char* value) : name_(name) {
    if (const char* old = std::getenv(name)) old_ = old;
    Set(value);
  }
  ~ScopedVariable() { Set(old_ ? old_->c_str() : nullptr); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void Set(const char* value) const { value ? ::setenv(name_, value, 1) : ::unsetenv(name_); }
  const char* name_;
  std::optional<std::string> old_;
};

class ProfileTest : public testing::Test {
 protected:
  ProfileTest() : folders(FoldersBelow((folder.path / "profil").string())), shipped((folder.path / "data").string()) {
    fs::create_directories(folder.path / "data/Listy");
    fs::create_directories(folder.path / "data/icons");
    fs::create_directories(folder.path / "data/STYLE");
    folder.Put("data/Morlan7.ini", "[Setup]\r\nInstallation=ok\r\n");
    folder.Put("data/Listy/Tags.lst", "<B>..</B>\r\n");
    folder.Put("data/icons/open.svg", "<svg/>");
  }
  NativeFolder folder;
  ProfileFolders folders;
  std::string shipped;
};

TEST_F(ProfileTest, AFirstStartCopiesTheTreeWithoutItsIcons) {
  EXPECT_TRUE(FillProfile(folders, shipped));
  EXPECT_EQ(folder.Get("profil/program/Listy/Tags.lst"), "<B>..</B>\r\n");
  EXPECT_EQ(folder.Get("profil/program/Morlan7.ini"), "[Setup]\r\nInstallation=ok\r\n");
  EXPECT_EQ(folder.Get("profil/windows/Morlan7.ini"), "[Setup]\r\nInstallation=ok\r\n");
  EXPECT_TRUE(folder.Has("profil/program/STYLE"));
  EXPECT_TRUE(folder.Has("profil/temp"));
  EXPECT_FALSE(folder.Has("profil/program/icons"));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path / "profil"), {}), 3) << "no temporary copy stays behind";
}

TEST_F(ProfileTest, WhatTheUserHasIsNeverTouched) {
  ASSERT_TRUE(FillProfile(folders, shipped));
  folder.Put("profil/program/Listy/Tags.lst", "mine");
  folder.Put("profil/windows/Morlan7.ini", "mine");
  fs::remove(folder.path / "profil/program/Morlan7.ini");
  EXPECT_TRUE(FillProfile(folders, shipped));
  EXPECT_EQ(folder.Get("profil/program/Listy/Tags.lst"), "mine");
  EXPECT_EQ(folder.Get("profil/windows/Morlan7.ini"), "mine");
  EXPECT_FALSE(folder.Has("profil/program/Morlan7.ini"));
}

TEST_F(ProfileTest, AFolderWithoutDefinitionsGetsThemAndItsOwnStay) {
  ASSERT_TRUE(FillProfile(folders, shipped));
  fs::create_directory(folder.path / "data/SLOWNIKI");
  for (const char* name : {"Morlan7.tpf", "CharSets.Def", "SLOWNIKI/morlan7i.pol", "SLOWNIKI/morlan7s.ang"}) {
    const std::string own = std::string("profil/program/") + name;
    EXPECT_FALSE(folder.Has(own));
    folder.Put(std::string("data/") + name, "new");
    EXPECT_TRUE(FillProfile(folders, shipped));
    EXPECT_EQ(folder.Get(own), "new");
    folder.Put(own, "mine");
    EXPECT_TRUE(FillProfile(folders, shipped));
    EXPECT_EQ(folder.Get(own), "mine");
  }
}

TEST_F(ProfileTest, CopiesOfReadOnlyFilesCanBeWritten) {
  ASSERT_EQ(::chmod((shipped + "/Listy/Tags.lst").c_str(), 0444), 0);
  ASSERT_TRUE(FillProfile(folders, shipped));
  EXPECT_NE(fs::status(folder.path / "profil/program/Listy/Tags.lst").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(ProfileTest, WithoutAShippedTreeNothingIsFilled) {
  EXPECT_FALSE(FillProfile(folders, ""));
  EXPECT_FALSE(folder.Has("profil/program"));
}

TEST_F(ProfileTest, TheShippedTreeIsWhereTheEnvironmentTells) {
  const ScopedVariable data("MORLAN7_DATA", shipped.c_str());
  EXPECT_EQ(FindShippedData(), shipped);
}

TEST_F(ProfileTest, AFolderWithoutListsIsNoShippedTree) {
  fs::remove_all(folder.path / "data/Listy");
  const ScopedVariable data("MORLAN7_DATA", shipped.c_str());
  EXPECT_NE(FindShippedData(shipped), shipped);
}

TEST(UserFolders, FollowTheConventionsOfTheDesktop) {
  const ScopedVariable home("HOME", "/home/ala"), config("XDG_CONFIG_HOME", "/c"), data("XDG_DATA_HOME", "wzgledny");
  const ScopedVariable temp("temp", nullptr);
  EXPECT_EQ(UserFolders().windows, "/c/morlan7");
  EXPECT_EQ(UserFolders().program, "/home/ala/.local/share/morlan7");
  EXPECT_EQ(UserFolders().temp, "");
}

TEST(UserFolders, TempIsTheEnvironmentsWhenItIsAFolder) {
  const ScopedVariable good("temp", "/tmp");
  EXPECT_EQ(UserFolders().temp, "/tmp");
  const ScopedVariable bad("temp", "/nie/ma");
  EXPECT_EQ(UserFolders().temp, "");
}

TEST(PrivateFolder, IsForTheUserAloneAndGoesWithTheObject) {
  fs::path path;
  {
    const PrivateFolder folder;
    path = folder.Path();
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
    fs::create_directory(path / "x");
    std::ofstream(path / "x/a") << "1";
  }
  EXPECT_FALSE(fs::exists(path));
}

TEST(PrivateFolder, IsMadeElsewhereWhereTheRunTimeFolderIsOfNoUse) {
  const ScopedVariable runtime("XDG_RUNTIME_DIR", "/nie/ma");
  const PrivateFolder folder;
  EXPECT_TRUE(fs::is_directory(folder.Path()));
  EXPECT_FALSE(folder.Path().starts_with("/nie"));
}

TEST(PosixEnvironment, NamesTheProfilesFoldersInTheProgramsForm) {
  PosixEnvironment environment(FoldersBelow("/home/ala/p"), "c:\\a.html");
  EXPECT_EQ(environment.WindowsDirectory(), "c:\\home\\ala\\p\\windows");
  EXPECT_EQ(environment.SystemDirectory(), "c:\\home\\ala\\p\\windows");
  EXPECT_EQ(environment.UserDataDirectory(), "c:\\home\\ala\\p\\program");
  EXPECT_EQ(environment.Variable("TEMP"), "c:\\home\\ala\\p\\temp");
  EXPECT_EQ(environment.CommandLine(), "c:\\a.html");
  EXPECT_TRUE(environment.ExecutableDirectory().starts_with("c:\\"));
}

TEST(PosixEnvironment, TempDefaultsToAPrivateFolderThatIsRemovedAtTheEnd) {
  std::string temp;
  {
    PosixEnvironment environment({"/w", "/p", ""});
    temp = environment.Variable("temp");
    EXPECT_EQ(environment.Variable("temp"), temp);
    EXPECT_TRUE(temp.starts_with("c:\\"));
  }
  std::string native = temp.substr(2);
  for (char& c : native)
    if (c == '\\') c = '/';
  EXPECT_FALSE(fs::exists(native));
}

TEST(PosixEnvironment, OtherVariablesComeAsTheyStandAndMissingOnesEmpty) {
  const ScopedVariable set("MORLAN7_TEST", "żaba");
  PosixEnvironment environment(FoldersBelow("/p"));
  EXPECT_EQ(environment.Variable("MORLAN7_TEST"), "żaba"_pl);
  EXPECT_EQ(environment.Variable("MORLAN7_NONE"), "");
}

}  // namespace
}  // namespace morlan
