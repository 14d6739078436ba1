#include "text/search.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"
#include "text/textsearch.h"

namespace morlan {
namespace {

struct Search : testing::Test {
  TestProgram test;
  MlnEditor& editor = test.OpenText("ala ma kota, Ala ma psa").EditedText;
  SearchForm& form = test.program.forms.Get<SearchForm>();

  // Opens the dialog by its command, seeks the text and returns.
  void Seek(std::string_view text) {
    test.windows.modals.push_back([this, text](Form&) {
      form.Szukaj.UserSets(text);
      form.Command2.UserClicks();
    });
    ASSERT_TRUE(test.program.commands.RunMenu("xmn_find"));
    ASSERT_FALSE(form.IsVisible());
  }
  std::string Selected() const { return std::to_string(editor.SelStart()) + " " + editor.SelText(); }
};

TEST_F(Search, BearsItsNames) {
  EXPECT_EQ(form.Name(), "search");
  EXPECT_EQ(form.Caption(), "Szukaj");
  EXPECT_EQ(form.matchcase.Caption(), "Zgodnie z wielkością &liter"_pl);
  EXPECT_EQ(form.wholewords.Caption(), "Tylko &całe wyrazy"_pl);
  EXPECT_EQ(form.Command2.Caption(), "&Szukaj");
  EXPECT_EQ(form.Command1.Caption(), "&Anuluj");
}

TEST_F(Search, SelectsTheHitAndCountsOneAtTheCaret) {
  Seek("ALA");
  EXPECT_EQ(Selected(), "0 ala");
  Seek("ALA");
  EXPECT_EQ(Selected(), "0 ala");
}

TEST_F(Search, RunsForwardOnlyFromTheCaret) {
  editor.Select(1, 0);
  Seek("ala");
  EXPECT_EQ(Selected(), "13 Ala");
}

TEST_F(Search, FromTheEndFindsNothingAndSaysNothing) {
  editor.Select(editor.Length(), 0);
  Seek("ala");
  EXPECT_EQ(Selected(), "23 ");
  EXPECT_EQ(test.Asked(), (Record{"modal search \"Szukaj\"", "closed search"}));
}

TEST_F(Search, AMissLeavesTheSelectionAlone) {
  editor.Select(4, 2);
  Seek("kanarek");
  EXPECT_EQ(Selected(), "4 ma");
}

TEST_F(Search, BothBoxesMakeOptionsSix) {
  form.matchcase.SetValue(true);
  form.wholewords.SetValue(true);
  Seek("Ala");
  EXPECT_EQ(form.SearchOptions, 6);
  EXPECT_EQ(form.SearchText, "Ala");
  EXPECT_EQ(form.SearchPosition, 13);
  form.matchcase.SetValue(false);
  Seek("ala");
  EXPECT_EQ(form.SearchOptions, kWholeWords);
}

TEST_F(Search, KeepsEachSoughtTextOnce) {
  for (const char* text : {"ala", "ALA", "", "kot"}) Seek(text);
  EXPECT_EQ(form.Szukaj.Rows(), (std::vector<std::string>{"ala", "kot"}));
}

TEST_F(Search, FindNextGoesOnBehindTheLastHit) {
  Seek("ma");
  EXPECT_EQ(Selected(), "4 ma");
  test.program.commands.RunMenu("xmn_findnext");
  EXPECT_EQ(Selected(), "17 ma");
  test.program.commands.RunMenu("xmn_findnext");
  EXPECT_EQ(Selected(), "17 ma") << "no wrapping";
}

TEST_F(Search, FindNextDoesNotLookAtTheCaret) {
  Seek("ma");
  editor.Select(20, 0);
  FindNext(test.program);
  EXPECT_EQ(Selected(), "17 ma");
}

TEST_F(Search, FindNextBeforeAnySearchDoesNothing) {
  editor.Select(3, 1);
  FindNext(test.program);
  EXPECT_EQ(Selected(), "3  ");
}

TEST_F(Search, FindNextAfterAMissSeeksFromTheCaret) {
  editor.Select(20, 0);
  Seek("kota");
  editor.Select(2, 0);
  FindNext(test.program);
  EXPECT_EQ(Selected(), "7 kota");
}

TEST_F(Search, CancelSeeksNothing) {
  test.windows.modals.push_back([this](Form&) {
    form.Szukaj.UserSets("psa");
    form.Command1.UserClicks();
  });
  EXPECT_TRUE(test.program.commands.RunToolbar("Toolbar0", "search"));
  EXPECT_EQ(Selected(), "0 ");
  EXPECT_EQ(form.Szukaj.ListCount(), 0u);
}

TEST_F(Search, WithoutADocumentItOnlyCloses) {
  test.program.ActiveDocument = nullptr;
  test.program.ActiveEditor = nullptr;
  Seek("ala");
  FindNext(test.program);
  EXPECT_FALSE(form.IsVisible());
}

}  // namespace
}  // namespace morlan
