#include "core/safetystore.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "core/text.h"
#include "platform/encoding.h"
#include "tests/support/immediatefiles.h"
#include "tests/support/memoryfiles.h"
#include "tests/support/recordingplatform.h"

namespace morlan {
namespace {

class SafetyStoreTest : public testing::Test {
 protected:
  SafetyStoreTest() { files.CreateDirectory("c:\\stan"); }
  // The store of another program over the same directory.
  SafetyStore Other(std::uint64_t number) { return MakeStore(number); }
  SafetyStore MakeStore(std::uint64_t number) {
    return {"c:\\stan", files, clock, background, {number, [this](std::uint64_t session) { return running.contains(session); }}};
  }
  void NextSecond() { clock.now.second += 1; }
  static std::vector<std::string> PathsOf(const std::vector<KeptText>& kept) {
    std::vector<std::string> paths;
    for (const KeptText& each : kept) paths.push_back(each.path);
    return paths;
  }

  MemoryFiles files;
  StoppedClock clock;
  ImmediateFiles background{files};
  std::set<std::uint64_t> running{1};
  SafetyStore store = MakeStore(1);
};

TEST_F(SafetyStoreTest, GivesBackWhatWasKept) {
  const std::string bytes("a\0\r\n\xFF", 5);
  store.KeepLoaded("c:\\żółw.html"_pl, bytes);
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0].kind, KeptKind::Loaded);
  EXPECT_EQ(all[0].path, "c:\\żółw.html"_pl);
  EXPECT_EQ(all[0].size, 5u);
  EXPECT_EQ(all[0].moment.year, 1998);
  EXPECT_EQ(all[0].moment.minute, 30);
  EXPECT_EQ(store.Read(all[0]), bytes);
}

TEST_F(SafetyStoreTest, TheNewestComesFirst) {
  store.KeepLoaded("c:\\a.html", "1");
  NextSecond();
  store.KeepLoaded("c:\\b.html", "2");
  EXPECT_EQ(PathsOf(store.All()), (std::vector<std::string>{"c:\\b.html", "c:\\a.html"}));
}

TEST_F(SafetyStoreTest, ALoadedTextGivesWayToTheNextOfItsDocument) {
  store.KeepLoaded("c:\\a.html", "1");
  NextSecond();
  store.KeepLoaded("c:\\A.HTML", "2");
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(store.Read(all[0]), "2");
}

TEST_F(SafetyStoreTest, TheLastTenReplacedTextsStay) {
  for (int i = 1; i <= 12; ++i) {
    store.KeepReplaced("c:\\a.html", std::to_string(i));
    NextSecond();
  }
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 10u);
  EXPECT_EQ(store.Read(all.front()), "12");
  EXPECT_EQ(store.Read(all.back()), "3");
}

TEST_F(SafetyStoreTest, SavesWithinASecondKeepTheirOrder) {
  store.KeepReplaced("c:\\a.html", "1");
  store.KeepReplaced("c:\\a.html", "2");
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(store.Read(all[0]), "2");
}

TEST_F(SafetyStoreTest, AnUnsavedTextIsKeptOnceADocument) {
  store.KeepUnsaved("BezTytułu.html"_pl, "1");
  store.KeepUnsaved("BezTytułu.html"_pl, "2");
  store.KeepUnsaved("BezTytułu1.html"_pl, "3");
  ASSERT_EQ(store.All().size(), 2u);
  store.ForgetUnsavedBut({std::string("BezTytułu.html"_pl)});
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(store.Read(all[0]), "2");
}

TEST_F(SafetyStoreTest, OnlyUnsavedTextsOfProgramsThatRunNoLongerAreLeftBehind) {
  store.KeepUnsaved("c:\\moje.html", "1");
  running = {1, 2};
  Other(2).KeepUnsaved("c:\\zywe.html", "2");
  SafetyStore dead = Other(3);
  dead.KeepUnsaved("c:\\zostawione.html", "3");
  dead.KeepLoaded("c:\\wczytane.html", "4");
  EXPECT_EQ(PathsOf(store.LeftBehind()), std::vector<std::string>{"c:\\zostawione.html"});
}

TEST_F(SafetyStoreTest, AnotherProgramsTextsAreNotForgotten) {
  Other(2).KeepUnsaved("c:\\a.html", "2");
  store.KeepUnsaved("c:\\a.html", "1");
  store.ForgetUnsavedBut({});
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0].session, 2u);
}

TEST_F(SafetyStoreTest, TheOldestGoWhenAllIsTooLarge) {
  const std::string half(SafetyStore::kMostBytes / 2, 'x');
  store.KeepLoaded("c:\\a.html", half);
  NextSecond();
  store.KeepLoaded("c:\\b.html", half);
  NextSecond();
  store.KeepLoaded("c:\\c.html", "mały"_pl.data());
  EXPECT_EQ(PathsOf(store.All()), (std::vector<std::string>{"c:\\c.html", "c:\\b.html"}));
}

TEST_F(SafetyStoreTest, TheOldestGoesWhenThereAreTooMany) {
  store.KeepLoaded("c:\\stary.html", "x");
  NextSecond();
  for (std::size_t i = 0; i < SafetyStore::kMostTexts; ++i) store.KeepLoaded(Concat({"c:\\", std::to_string(i), ".html"}), "x");
  const std::vector<std::string> paths = PathsOf(store.All());
  EXPECT_EQ(paths.size(), SafetyStore::kMostTexts);
  EXPECT_EQ(std::count(paths.begin(), paths.end(), "c:\\stary.html"), 0);
}

TEST_F(SafetyStoreTest, ARunIsKnownByItsWholeNumber) {
  constexpr std::uint64_t kRun = 0x7FFFFFFFFFFFFFFE;
  running = {1, kRun};
  Other(kRun).KeepUnsaved("c:\\zywe.html", "1");
  Other(kRun - 1).KeepUnsaved("c:\\zostawione.html", "2");
  EXPECT_EQ(PathsOf(store.LeftBehind()), std::vector<std::string>{"c:\\zostawione.html"});
}

TEST_F(SafetyStoreTest, WhatNobodyHasSavedStaysHoweverLarge) {
  const std::string half(SafetyStore::kMostBytes / 2 + 1, 'x');
  store.KeepUnsaved("c:\\a.html", half);
  NextSecond();
  store.KeepUnsaved("c:\\b.html", half);
  EXPECT_EQ(store.All().size(), 2u);
}

TEST_F(SafetyStoreTest, GarbledDescriptionsAreSkipped) {
  store.KeepLoaded("c:\\a.html", "1");
  files.Write("c:\\stan\\bez.tekst", "x");
  for (const char* about :
       {"", "rodzaj=X\r\nchwila=20260101000000\r\nplik=a", "rodzaj=L\r\nchwila=teraz\r\nplik=a", "rodzaj=L\r\nchwila=20260101000000"}) {
    files.Write("c:\\stan\\zly.tekst", "x");
    files.Write("c:\\stan\\zly.opis", about);
    EXPECT_EQ(store.All().size(), 1u) << about;
  }
}

TEST_F(SafetyStoreTest, ADirectoryThatIsGoneKeepsNothing) {
  SafetyStore lost("c:\\nie ma", files, clock, background, {1, [](std::uint64_t) { return false; }});
  lost.KeepUnsaved("c:\\a.html", "1");
  EXPECT_TRUE(lost.All().empty());
}

}  // namespace
}  // namespace morlan
