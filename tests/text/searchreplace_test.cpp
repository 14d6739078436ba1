#include "text/searchreplace.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"
#include "text/search.h"

namespace morlan {
namespace {

constexpr const char* kQuestion = "message \"Zasąpić znaleziony fragment\" \"Szukaj & Zastąp\" question yesnocancel";

struct Replace : testing::Test {
  TestProgram test;
  TEditor* document = nullptr;
  SearchReplace& form = test.program.forms.Get<SearchReplace>();

  void Open(std::string_view text) { document = &test.OpenText(text); }
  // Runs the dialog with one of its buttons and answers with what was asked and told inside it.
  Record Run(Button& button, std::string_view sought, std::string_view with, std::deque<Answer> answers = {}) {
    test.windows.answers = std::move(answers);
    test.windows.modals.push_back([this, &button, sought, with](Form&) {
      form.Szukaj.UserSets(sought);
      form.zastap.UserSets(with);
      button.UserClicks();
    });
    EXPECT_TRUE(test.program.commands.RunMenu("xmn_replace"));
    Record asked = test.Asked();
    EXPECT_EQ(asked.front(), "modal SearchReplace \"Szukaj & Zastąp\"");
    EXPECT_EQ(asked.back(), "closed SearchReplace");
    return Record(asked.begin() + 1, asked.end() - 1);
  }
};

TEST_F(Replace, AsksForEachHitAndReportsBothCounts) {
  Open("kot kot kot");
  const Record asked = Run(form.Command2, "kot", "pies", {Answer::Yes, Answer::No, Answer::Yes});
  EXPECT_EQ(test.Text(), "pies kot pies");
  EXPECT_EQ(asked, (Record{kQuestion, kQuestion, kQuestion, "message \"Zastąpiłem 2 fragmentów, pominąłem 1.\" \"Morlan7\" none ok"}));
}

TEST_F(Replace, CancelEndsAndIsStillReported) {
  Open("kot kot kot");
  const Record asked = Run(form.Command2, "kot", "pies", {Answer::Yes, Answer::Cancel});
  EXPECT_EQ(test.Text(), "pies kot kot");
  EXPECT_EQ(document->EditedText.SelText(), "kot");
  EXPECT_EQ(asked.back(), "message \"Zastąpiłem 1 fragmentów, pominąłem 0.\" \"Morlan7\" none ok");
}

TEST_F(Replace, StartsAtTheCaret) {
  Open("kot kot");
  document->EditedText.Select(1, 0);
  Run(form.Command2, "kot", "pies", {Answer::Yes});
  EXPECT_EQ(test.Text(), "kot pies");
}

TEST_F(Replace, AllReplacesTheWholeTextWithoutAQuestion) {
  Open("kot Kot kotek");
  document->EditedText.Select(5, 0);
  EXPECT_EQ(Run(form.Command3, "kot", "pies"), (Record{"message \"Zastąpiłem 3 fragmentów.\" \"Morlan7\" none ok"}));
  EXPECT_EQ(test.Text(), "pies pies piesek");
}

TEST_F(Replace, ANewTextThatHoldsTheSoughtOneDoesNotLoop) {
  Open("a a");
  Run(form.Command3, "a", "aa");
  EXPECT_EQ(test.Text(), "aa aa");
  document->EditedText.Select(3, 0);
  Run(form.Command2, "aa", "aaaa", {Answer::Yes});
  EXPECT_EQ(test.Text(), "aa aaaa");
}

TEST_F(Replace, HonoursBothBoxes) {
  Open("Kot kot kotek");
  form.matchcase.SetValue(true);
  form.wholewords.SetValue(true);
  Run(form.Command3, "kot", "x");
  EXPECT_EQ(test.Text(), "Kot x kotek");
}

TEST_F(Replace, AnEmptyNewTextDeletes) {
  Open("a-b-c");
  Run(form.Command3, "-", "");
  EXPECT_EQ(test.Text(), "abc");
}

TEST_F(Replace, AnEmptySoughtTextSaysNothing) {
  Open("abc");
  EXPECT_EQ(Run(form.Command3, "", "x"), Record{});
  EXPECT_EQ(test.Text(), "abc");
}

TEST_F(Replace, EachReplacementIsOneUndoStep) {
  Open("a b a");
  Run(form.Command3, "a", "xyz");
  EXPECT_EQ(test.Text(), "xyz b xyz");
  document->UNDO.DoUndo(*document);
  EXPECT_EQ(test.Text(), "xyz b a");
  EXPECT_EQ(document->EditedText.SelText(), "a");
  document->UNDO.DoUndo(*document);
  EXPECT_EQ(test.Text(), "a b a");
}

TEST_F(Replace, OnlyTheLast50ReplacementsCanBeUndone) {
  Open(std::string(60, 'a'));
  Run(form.Command3, "a", "b");
  for (int i = 0; i < 60; ++i) document->UNDO.DoUndo(*document);
  EXPECT_EQ(test.Text(), std::string(10, 'b') + std::string(50, 'a'));
}

TEST_F(Replace, WhatBecomesMarkupIsColoured) {
  Open("a [B] b [B] c");
  Run(form.Command3, "[B]", "<B>");
  EXPECT_NE(document->EditedText.StyleAt(3), MlnEditor::kPlain);
  EXPECT_NE(document->EditedText.StyleAt(9), MlnEditor::kPlain);
  EXPECT_EQ(document->EditedText.StyleAt(5), MlnEditor::kPlain);
  Open("a [B] b");
  Run(form.Command2, "[B]", "<B>", {Answer::Yes});
  EXPECT_NE(document->EditedText.StyleAt(3), MlnEditor::kPlain);
}

TEST_F(Replace, MarksTheDocument) {
  Open("a");
  Run(form.Command3, "a", "b");
  EXPECT_TRUE(document->IsModified());
}

TEST_F(Replace, KeepsBothTexts) {
  Open("a");
  Run(form.Command3, "a", "b");
  Run(form.Command3, "A", "c");
  EXPECT_EQ(form.Szukaj.Rows(), (std::vector<std::string>{"a"}));
  EXPECT_EQ(form.zastap.Rows(), (std::vector<std::string>{"b", "c"}));
}

TEST_F(Replace, ManyHitsInALongTextTakeLinearTime) {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += "kot i pies, <B>kot</B> i mysz\r\n";
  Open(text);
  Run(form.Command3, "kot", "krokodyl");
  EXPECT_EQ(document->EditedText.Length(), text.size() + 200000 * 5);
  EXPECT_EQ(document->EditedText.LineCount(), 100001u);
}

TEST_F(Replace, FindNextSeeksTheSameTextAgain) {
  Open("kot kot");
  Run(form.Command2, "kot", "x", {Answer::Yes, Answer::Cancel});
  document->EditedText.Select(0, 0);
  FindNext(test.program);
  EXPECT_EQ(document->EditedText.SelStart(), 2u);
}

}  // namespace
}  // namespace morlan
