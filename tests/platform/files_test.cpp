#include "platform/posix/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/encoding.h"
#include "platform/posix/clock.h"
#include "platform/posix/filenames.h"
#include "tests/platform/nativefolder.h"

namespace morlan {
namespace {

namespace fs = std::filesystem;

class PosixFilesTest : public testing::Test {
 protected:
  // The path of a name in the test's folder.
  std::string P(std::string_view name = "") const { return PathFromNative(folder.path.string()) + "\\" + std::string(name); }

  NativeFolder folder;
  PosixFiles files;
};

TEST_F(PosixFilesTest, ReadsBytesAsTheyAre) {
  folder.Put("a.html", std::string("a\0\r\n\xFF", 5));
  EXPECT_EQ(files.Read(P("a.html")), std::string("a\0\r\n\xFF", 5));
  EXPECT_EQ(files.Size(P("a.html")), 5u);
  folder.Put("pusty", "");
  EXPECT_EQ(files.Read(P("pusty")), "");
}

TEST_F(PosixFilesTest, MapsBytesAsTheyWereWhenTheFileIsReplaced) {
  folder.Put("Slownik.pol", std::string("a\0b", 3));
  const auto mapped = files.Map(P("slownik.POL"));
  ASSERT_TRUE(mapped) << "found in any letter case, as all files are";
  EXPECT_TRUE(files.Write(P("Slownik.pol"), "nowy"));
  EXPECT_EQ(mapped->Bytes(), std::string_view("a\0b", 3));
  folder.Put("pusty", "");
  ASSERT_TRUE(files.Map(P("pusty")));
  EXPECT_EQ(files.Map(P("pusty"))->Bytes(), "");
}

TEST_F(PosixFilesTest, WhatIsNoRegularFileIsNotReadAndNotWaitedFor) {
  ASSERT_EQ(::mkfifo((folder.path / "rura").c_str(), 0600), 0);
  fs::create_directory(folder.path / "katalog");
  for (const std::string& path : {P("rura"), P("katalog"), P("katalog\\"), P("brak"), std::string("c:\\dev\\zero"), std::string()}) {
    EXPECT_EQ(files.Read(path), std::nullopt) << path;
    EXPECT_EQ(files.Map(path), nullptr) << path;
    EXPECT_EQ(files.Size(path), std::nullopt) << path;
  }
  for (const std::string& path : {P("rura"), P("katalog"), std::string("c:\\dev\\null"), std::string()}) {
    EXPECT_FALSE(files.Write(path, "x")) << path;
    EXPECT_FALSE(files.WriteInPlace(path, "x")) << path;
    EXPECT_FALSE(files.Append(path, "x")) << path;
  }
  EXPECT_TRUE(fs::is_fifo(folder.path / "rura"));
}

TEST_F(PosixFilesTest, OtherDrivesAndNulDoNotExist) {
  folder.Put("a", "1");
  std::string other = P("a");
  other[0] = 'd';
  EXPECT_FALSE(files.Size(other));
  EXPECT_FALSE(files.Write(other, "x"));
  EXPECT_FALSE(files.Size(P(std::string_view("a\0", 2))));
  other[0] = 'C';
  EXPECT_TRUE(files.Size(other));
}

TEST_F(PosixFilesTest, BothSeparatorsAndRepeatedOnesPartAPath) {
  fs::create_directories(folder.path / "x/y");
  folder.Put("x/y/a", "1");
  EXPECT_EQ(files.Read(P("x/y\\\\a")), "1");
  EXPECT_EQ(files.Read(P("x\\.\\brak\\..\\y\\a")), "1");
  EXPECT_FALSE(files.Read(P("x\\y\\a\\"))) << "a file is no directory";
}

TEST_F(PosixFilesTest, LookUpIgnoresCaseInEveryPart) {
  fs::create_directories(folder.path / "Strony/Zdjęcia");
  folder.Put("Strony/Zdjęcia/Żółw.GIF", "1");
  EXPECT_EQ(files.Read(P("STRONY\\zDJĘCIA\\żółw.gif"_pl)), "1");
  EXPECT_TRUE(files.DirectoryExists(P("strony\\ZDJĘCIA\\"_pl)));
  EXPECT_EQ(files.ToNative(P("strony\\ZDJĘCIA\\ŻÓŁW.gif"_pl)), (folder.path / "Strony/Zdjęcia/Żółw.GIF").string());
  EXPECT_FALSE(files.Read(P("stron\\zdjęcia\\żółw.gif"_pl)));
}

TEST_F(PosixFilesTest, TheExactNameWinsThenTheFirstOfTheCandidates) {
  folder.Put("b.html", "small");
  folder.Put("B.HTML", "large");
  EXPECT_EQ(files.Read(P("b.html")), "small");
  EXPECT_EQ(files.Read(P("B.HTML")), "large");
  EXPECT_EQ(files.Read(P("B.html")), "large");
}

TEST_F(PosixFilesTest, WritingToANameThatExistsInOtherLettersWritesThatFile) {
  folder.Put("Tags.lst", "old");
  EXPECT_TRUE(files.Write(P("TAGS.LST"), "new"));
  EXPECT_TRUE(files.Append(P("tags.lst"), "er"));
  EXPECT_EQ(folder.Get("Tags.lst"), "newer");
  EXPECT_FALSE(folder.Has("TAGS.LST"));
}

TEST_F(PosixFilesTest, NewFilesAreMadeInTheExistingDirectoryInTheGivenSpelling) {
  fs::create_directory(folder.path / "Moje");
  EXPECT_TRUE(files.Write(P("MOJE\\Nowy.html"), "1"));
  EXPECT_TRUE(folder.Has("Moje/Nowy.html"));
  EXPECT_FALSE(files.Write(P("brak\\nowy.html"), "1"));
}

TEST_F(PosixFilesTest, EscapedNamesReachTheirFiles) {
  folder.Put("a→b\\c.html", "1");
  const std::vector<DirectoryEntry> entries = files.List(P());
  ASSERT_EQ(entries.size(), 1u);
  EXPECT_EQ(entries[0].name, "a¤E2¤86¤92b¤5Cc.html"_pl);
  EXPECT_EQ(files.Read(P(entries[0].name)), "1");
  EXPECT_TRUE(files.Write(P(entries[0].name), "2"));
  EXPECT_EQ(folder.Get("a→b\\c.html"), "2");
}

TEST_F(PosixFilesTest, WriteKeepsThePermissionsAndLeavesNothingElse) {
  folder.Put("a", "old");
  ASSERT_EQ(::chmod((folder.path / "a").c_str(), 0640), 0);
  EXPECT_TRUE(files.Write(P("a"), "new"));
  EXPECT_EQ(folder.Get("a"), "new");
  EXPECT_EQ(fs::status(folder.path / "a").permissions(), fs::perms(0640));
  EXPECT_EQ(std::distance(fs::directory_iterator(folder.path), {}), 1);
}

TEST_F(PosixFilesTest, ANewFileHasTheRightsThatTheUsersMaskLeaves) {
  const mode_t mask = ::umask(027);
  EXPECT_TRUE(files.Write(P("a"), "1"));
  ::umask(mask);
  EXPECT_EQ(fs::status(folder.path / "a").permissions(), fs::perms(0640));
}

TEST_F(PosixFilesTest, WriteFollowsLinksAndLeavesThem) {
  fs::create_directory(folder.path / "prawdziwe");
  folder.Put("prawdziwe/a", "old");
  fs::create_symlink("prawdziwe/a", folder.path / "link");
  fs::create_symlink("prawdziwe/nowy", folder.path / "pusty");
  fs::create_symlink("petla", folder.path / "petla");
  EXPECT_TRUE(files.Write(P("link"), "new"));
  EXPECT_TRUE(files.Write(P("pusty"), "made"));
  EXPECT_FALSE(files.Write(P("petla"), "x"));
  EXPECT_TRUE(fs::is_symlink(folder.path / "link"));
  EXPECT_EQ(folder.Get("prawdziwe/a"), "new");
  EXPECT_EQ(folder.Get("prawdziwe/nowy"), "made");
}

TEST_F(PosixFilesTest, AReaderThatHasTheOldFileOpenKeepsItsBytes) {
  folder.Put("a", "old bytes");
  std::ifstream reader(folder.path / "a");
  EXPECT_TRUE(files.Write(P("a"), "x"));
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), "old bytes");
}

// Root is refused nothing, so these run as a user without rights.
class PlainUserFilesTest : public PosixFilesTest {
 protected:
  static constexpr uid_t kNobody = 65534;
  void SetUp() override {
    if (::geteuid() != 0) return;
    ASSERT_EQ(::chown(folder.path.c_str(), kNobody, kNobody), 0);
    ASSERT_EQ(::seteuid(kNobody), 0);
  }
  void TearDown() override { ASSERT_EQ(::seteuid(::getuid()), 0); }
};

TEST_F(PlainUserFilesTest, AReadOnlyFileIsNotReplaced) {
  folder.Put("a", "old");
  ASSERT_EQ(::chmod((folder.path / "a").c_str(), 0444), 0);
  EXPECT_FALSE(files.Write(P("a"), "new"));
  EXPECT_EQ(folder.Get("a"), "old");
}

TEST_F(PlainUserFilesTest, AFileInAReadOnlyDirectoryIsRewrittenWhereItLies) {
  fs::create_directory(folder.path / "d");
  folder.Put("d/a", "a long old text");
  ASSERT_EQ(::chmod((folder.path / "d").c_str(), 0555), 0);
  EXPECT_TRUE(files.Write(P("d\\a"), "new"));
  EXPECT_FALSE(files.Write(P("d\\b"), "new"));
  EXPECT_EQ(folder.Get("d/a"), "new");
  ASSERT_EQ(::chmod((folder.path / "d").c_str(), 0755), 0);
}

TEST_F(PosixFilesTest, WriteInPlaceLeavesWhatLiesBehind) {
  folder.Put("a", "0123456789");
  EXPECT_TRUE(files.WriteInPlace(P("a"), "abc"));
  EXPECT_EQ(folder.Get("a"), "abc3456789");
  EXPECT_TRUE(files.WriteInPlace(P("a"), "0123456789+"));
  EXPECT_EQ(folder.Get("a"), "0123456789+");
  EXPECT_TRUE(files.WriteInPlace(P("nowy"), ""));
  EXPECT_EQ(folder.Get("nowy"), "");
}

TEST_F(PosixFilesTest, AppendMakesAFileOnlyWhenAsked) {
  EXPECT_FALSE(files.Append(P("a"), "1", false));
  EXPECT_FALSE(folder.Has("a"));
  EXPECT_TRUE(files.Append(P("a"), "1"));
  EXPECT_TRUE(files.Append(P("a"), "2", false));
  EXPECT_EQ(folder.Get("a"), "12");
}

TEST_F(PosixFilesTest, DeleteTakesFilesOnly) {
  folder.Put("a", "1");
  fs::create_directory(folder.path / "d");
  EXPECT_TRUE(files.Delete(P("A")));
  EXPECT_FALSE(files.Delete(P("a")));
  EXPECT_FALSE(files.Delete(P("d")));
  EXPECT_TRUE(folder.Has("d"));
}

TEST_F(PosixFilesTest, RenameRefusesATargetThatExistsInAnyLetterCase) {
  folder.Put("a", "1");
  folder.Put("Kopia.Bak", "2");
  EXPECT_FALSE(files.Rename(P("a"), P("Kopia.Bak")));
  EXPECT_FALSE(files.Rename(P("a"), P("kopia.bak")));
  EXPECT_FALSE(files.Rename(P("a"), P("a")));
  EXPECT_FALSE(files.Rename(P("brak"), P("b")));
  EXPECT_TRUE(files.Rename(P("a"), P("b")));
  EXPECT_EQ(folder.Get("b"), "1");
  EXPECT_EQ(folder.Get("Kopia.Bak"), "2");
}

TEST_F(PosixFilesTest, RenameMayChangeTheLetterCaseAlone) {
  folder.Put("strona.html", "1");
  EXPECT_TRUE(files.Rename(P("strona.html"), P("Strona.HTML")));
  EXPECT_TRUE(folder.Has("Strona.HTML"));
  EXPECT_FALSE(folder.Has("strona.html"));
}

TEST_F(PosixFilesTest, CopyReplacesItsTarget) {
  folder.Put("a", "1");
  folder.Put("b", "2");
  EXPECT_TRUE(files.Copy(P("a"), P("b")));
  EXPECT_EQ(folder.Get("b"), "1");
  EXPECT_FALSE(files.Copy(P("brak"), P("b")));
  EXPECT_EQ(folder.Get("b"), "1");
}

TEST_F(PosixFilesTest, ListsInTheOrderOfNamesWithoutRegardToCase) {
  folder.Put("b.html", "12");
  folder.Put("Ćma.html", "");
  folder.Put("C.html", "");
  fs::create_directory(folder.path / "A");
  fs::create_symlink("nikt", folder.path / "d");
  const std::vector<DirectoryEntry> entries = files.List(P());
  ASSERT_EQ(entries.size(), 5u);
  EXPECT_EQ(entries[0].name, "A");
  EXPECT_TRUE(entries[0].isDirectory);
  EXPECT_EQ(entries[1].name, "b.html");
  EXPECT_EQ(entries[1].size, 2u);
  EXPECT_EQ(entries[2].name, "C.html");
  EXPECT_EQ(entries[3].name, "d");
  EXPECT_EQ(entries[4].name, "Ćma.html"_pl);
  EXPECT_TRUE(files.List(P("brak")).empty());
  EXPECT_TRUE(files.List(P("b.html")).empty());
}

TEST_F(PosixFilesTest, DirectoriesAreMadeOneLevelAtATime) {
  EXPECT_TRUE(files.CreateDirectory(P("x\\")));
  EXPECT_TRUE(files.DirectoryExists(P("X")));
  EXPECT_FALSE(files.CreateDirectory(P("x")));
  EXPECT_FALSE(files.CreateDirectory(P("y\\z")));
  EXPECT_TRUE(files.DirectoryExists("c:\\"));
  EXPECT_FALSE(files.DirectoryExists(""));
}

TEST_F(PosixFilesTest, TheCurrentDirectoryIsTheObjectsOwn) {
  const fs::path before = fs::current_path();
  EXPECT_EQ(files.CurrentDirectory(), PathFromNative(before.string()));
  fs::create_directory(folder.path / "Tam");
  folder.Put("Tam/a", "1");
  EXPECT_TRUE(files.ChangeDirectory(P("tam\\")));
  EXPECT_EQ(files.CurrentDirectory(), P("Tam"));
  EXPECT_EQ(files.Read("a"), "1");
  EXPECT_EQ(files.Read("c:a"), "1");
  EXPECT_TRUE(files.ChangeDirectory(".."));
  EXPECT_EQ(files.Read("TAM\\A"), "1");
  EXPECT_FALSE(files.ChangeDirectory("brak"));
  EXPECT_FALSE(files.ChangeDirectory("Tam\\a"));
  EXPECT_TRUE(files.ChangeDirectory("\\"));
  EXPECT_EQ(files.CurrentDirectory(), "c:\\");
  EXPECT_TRUE(files.ChangeDirectory("..\\.."));
  EXPECT_EQ(files.CurrentDirectory(), "c:\\");
  EXPECT_EQ(fs::current_path(), before);
}

TEST_F(PosixFilesTest, NativePathsAndBack) {
  ASSERT_TRUE(files.ChangeDirectory(P()));
  const std::string here = folder.path.string();
  EXPECT_EQ(files.ToNative("nowy\\ż.html"_pl), here + "/nowy/ż.html");
  EXPECT_EQ(files.ToNative("c:\\"), "/");
  EXPECT_EQ(files.ToNative("d:\\ż"_pl), "d:\\ż");
  EXPECT_EQ(files.ToNative(""), "");
  EXPECT_EQ(files.FromNative("/home/ala/ż.html"), "c:\\home\\ala\\ż.html"_pl);
  EXPECT_EQ(files.FromNative("c:\\home\\ż.html"), "c:\\home\\ż.html"_pl);
  EXPECT_EQ(files.FromNative("dom/ż.html"), "dom\\ż.html"_pl);
  EXPECT_EQ(files.FromNative("dom\\a.html"), "dom\\a.html");
  EXPECT_EQ(files.FromNative(""), "");
  EXPECT_EQ(files.Absolute("x\\..\\a.html"), P("a.html"));
}

TEST_F(PosixFilesTest, PathsOfAbsurdLengthAreRefused) {
  const std::string longName(5000, 'a');
  std::string deep = P();
  for (int i = 0; i < 100000; ++i) deep += "a\\";
  for (const std::string& path : {P(longName), deep}) {
    EXPECT_FALSE(files.Read(path));
    EXPECT_FALSE(files.Write(path, "x"));
    EXPECT_FALSE(files.DirectoryExists(path));
  }
}

TEST_F(PosixFilesTest, TellsWhenAFileChanged) {
  folder.Put("a.html", "a");
  const std::time_t noon = 889268400;  // the 7th of March 1998 at 11:00 in London
  const timespec times[2] = {{noon, 0}, {noon, 0}};
  ASSERT_EQ(::utimensat(AT_FDCWD, (folder.path / "a.html").c_str(), times, 0), 0);
  EXPECT_EQ(files.Modified(P("A.HTML")), LocalTime(noon));
  EXPECT_EQ(files.Modified(P("brak.html")), std::nullopt);
  EXPECT_EQ(files.Modified(P()), std::nullopt) << "a directory";
}

}  // namespace
}  // namespace morlan
