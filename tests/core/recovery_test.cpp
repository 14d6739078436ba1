#include "core/recovery.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/paths.h"
#include "core/text.h"
#include "tests/support/immediatefiles.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class RecoveryTest : public testing::Test {
 protected:
  RecoveryTest() {
    test.files.CreateDirectory(test.Path("stan"));
    test.program.safety = &store;
  }
  ~RecoveryTest() override { test.program.safety = nullptr; }
  SafetyStore MakeStore(std::uint64_t number) {
    return {test.Path("stan"), test.files, test.clock, background, {number, [](std::uint64_t session) { return session == 1; }}};
  }
  // A document from a file, changed by typing in front.
  TEditor& Changed(std::string_view name, std::string_view text) {
    test.Write(Concat({"work\\", name}), text);
    OpenDocument(test.program, test.Path(Concat({"work\\", name})));
    test.program.ActiveEditor->SetSelText("!");
    return *test.program.ActiveDocument;
  }
  std::vector<std::string> Kept() {
    std::vector<std::string> rows;
    for (const KeptText& kept : store.All())
      rows.push_back(
          Concat({FileNameOf(kept.path), " ", std::string(1, static_cast<char>(kept.kind)), " ", store.Read(kept).value_or("?")}));
    return rows;
  }
  using Rows = std::vector<std::string>;

  TestProgram test;
  ImmediateFiles background{test.files};
  SafetyStore store = MakeStore(1);
};

TEST_F(RecoveryTest, LoadingKeepsTheBytesOfTheFile) {
  test.Write("work\\a.txt", "abc");
  OpenDocument(test.program, test.Path("work\\a.txt"));
  EXPECT_EQ(Kept(), (Rows{"a.txt L abc"}));
}

TEST_F(RecoveryTest, ATickKeepsUnsavedTextsUntilTheyAreSaved) {
  Changed("a.txt", "abc");
  test.clock.now.second += 1;
  test.frame().safetyTimer.OnTimer();
  EXPECT_EQ(Kept(), (Rows{"a.txt U !abc", "a.txt L abc"}));
  test.clock.now.second += 1;
  SaveDocument(test.program);
  test.frame().safetyTimer.OnTimer();
  EXPECT_EQ(Kept(), (Rows{"a.txt R abc", "a.txt L abc"}));
}

TEST_F(RecoveryTest, AnUntitledTextIsKeptToo) {
  test.program.ActiveEditor->SetSelText("nowy");
  KeepChanges(test.program);
  EXPECT_EQ(Kept(), (Rows{std::string("BezTytułu.html U nowy"_pl)}));
}

TEST_F(RecoveryTest, ATextThatDidNotChangeIsNotWrittenAgain) {
  test.program.ActiveEditor->SetSelText("nowy");
  KeepChanges(test.program);
  const KeptText before = store.All().at(0);
  test.clock.now.minute += 1;
  KeepChanges(test.program);
  EXPECT_EQ(store.All().at(0).moment, before.moment);
  test.program.ActiveEditor->SetSelText("!");
  KeepChanges(test.program);
  EXPECT_NE(store.All().at(0).moment, before.moment);
}

TEST_F(RecoveryTest, AClosedDocumentLeavesNoUnsavedText) {
  Changed("a.txt", "abc");
  KeepChanges(test.program);
  test.windows.answers = {Answer::No};
  CloseActiveDocument(test.program);
  EXPECT_EQ(Kept(), (Rows{"a.txt L abc"}));
}

TEST_F(RecoveryTest, NothingIsOfferedAfterACleanEnd) {
  MakeStore(2).KeepLoaded("c:\\a.html", "x");
  test.record.clear();
  OfferLeftBehind(test.program);
  EXPECT_EQ(test.Asked(), Record{});
}

TEST_F(RecoveryTest, LeftBehindTextsOpenAsChangedDocuments) {
  MakeStore(2).KeepUnsaved(test.Path("work\\a.txt"), "niezapisany");
  test.windows.modals.push_back([](Form& form) {
    auto& recovery = dynamic_cast<Recovery&>(form);
    EXPECT_EQ(recovery.Info.Caption(), "Program nie zakończył ostatnio pracy. Oto teksty, których nie zdążono zapisać:"_pl);
    EXPECT_EQ(recovery.Teksty.Rows(), (Rows{"a.txt - niezapisane zmiany, 1998-03-07 12:30:05, 11 B"}));
    EXPECT_EQ(recovery.Zawartosc.Text(), "niezapisany");
    recovery.Command2.UserClicks();
    EXPECT_FALSE(recovery.IsVisible());
  });
  OfferLeftBehind(test.program);
  EXPECT_EQ(test.program.ActiveDocument->Caption(), test.Path("work\\a.txt"));
  EXPECT_EQ(test.Text(), "niezapisany");
  EXPECT_TRUE(test.program.ActiveDocument->IsModified());
  const std::vector<KeptText> all = store.All();
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0].session, 1u) << "it is this program's own now";
}

TEST_F(RecoveryTest, AnUntitledTextTakesThePlaceOfTheEmptyPage) {
  MakeStore(2).KeepUnsaved("BezTytułu.html"_pl, "nowy");
  OpenKeptText(test.program, store.LeftBehind().at(0));
  ASSERT_EQ(test.program.documents.size(), 1u);
  EXPECT_EQ(test.program.ActiveDocument->Caption(), "BezTytułu.html"_pl);
  EXPECT_EQ(test.Text(), "nowy");
}

TEST_F(RecoveryTest, AnOpenDocumentOfTheNameStaysAsItIs) {
  Changed("a.txt", "abc");
  MakeStore(2).KeepUnsaved(test.Path("work\\a.txt"), "inny");
  OpenKeptText(test.program, store.LeftBehind().at(0));
  EXPECT_EQ(test.program.ActiveDocument->Caption(), test.Path("work\\a (1998-03-07 12.30.05).txt"));
  EXPECT_EQ(FindDocument(test.program, test.Path("work\\a.txt"))->EditedText.Text(), "!abc");
}

TEST_F(RecoveryTest, AReplacedTextOpensUnderANameThatTellsTheMoment) {
  store.KeepReplaced(test.Path("work\\a.b.txt"), "stary");
  test.windows.modals.push_back([](Form& form) {
    auto& recovery = dynamic_cast<Recovery&>(form);
    EXPECT_EQ(recovery.Teksty.Rows(), (Rows{"a.b.txt - sprzed zapisu, 1998-03-07 12:30:05, 5 B"}));
    recovery.Teksty.UserDblClicks();
  });
  test.program.commands.RunMenu("xmn_recovery");
  EXPECT_EQ(test.program.ActiveDocument->Caption(), test.Path("work\\a.b (1998-03-07 12.30.05).txt"));
  EXPECT_EQ(test.Text(), "stary");
  EXPECT_EQ(store.All().size(), 1u) << "it stays kept";
}

TEST_F(RecoveryTest, ACopyIsWrittenByteForByte) {
  store.KeepReplaced("c:\\a.txt", std::string("a\0\xC5\x82", 4));
  test.windows.files = {test.Path("work\\kopia.txt")};
  test.windows.modals.push_back([](Form& form) {
    auto& recovery = dynamic_cast<Recovery&>(form);
    recovery.Command3.UserClicks();
    recovery.Command1.UserClicks();
  });
  ShowRecovery(test.program);
  EXPECT_EQ(test.Read("work\\kopia.txt"), std::string("a\0\xC5\x82", 4));
}

TEST_F(RecoveryTest, ATextGoesForGoodBehindAQuestion) {
  store.KeepReplaced("c:\\a.txt", "a");
  store.KeepReplaced("c:\\b.txt", "b");
  test.windows.answers = {Answer::No, Answer::Yes};
  test.windows.modals.push_back([](Form& form) {
    auto& recovery = dynamic_cast<Recovery&>(form);
    recovery.Command4.UserClicks();
    EXPECT_EQ(recovery.Teksty.ListCount(), 2u);
    recovery.Command4.UserClicks();
    EXPECT_EQ(recovery.Teksty.ListCount(), 1u);
    EXPECT_EQ(recovery.Teksty.ListIndex(), 0);
  });
  ShowRecovery(test.program);
  EXPECT_EQ(store.All().size(), 1u);
}

TEST_F(RecoveryTest, AnEmptyListHasNoButtonsToPress) {
  test.windows.modals.push_back([](Form& form) {
    auto& recovery = dynamic_cast<Recovery&>(form);
    for (const Button* button : {&recovery.Command2, &recovery.Command3, &recovery.Command4}) EXPECT_FALSE(button->Enabled());
  });
  ShowRecovery(test.program);
}

TEST_F(RecoveryTest, WithoutAStoreNothingIsKept) {
  test.program.safety = nullptr;
  test.program.ActiveEditor->SetSelText("nowy");
  KeepChanges(test.program);
  EXPECT_TRUE(KeepChangesNow(test.program));
  EXPECT_TRUE(store.All().empty());
}

}  // namespace
}  // namespace morlan
