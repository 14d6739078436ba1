#include "core/closing.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Closing : testing::Test {
  TestProgram test;
  Program& program = test.program;
  TEditor& Modified(std::string_view name) {
    TEditor& document = test.OpenText("", name);
    document.EditedText.SetSelText("zmiana");
    return document;
  }
  std::string Question(std::string_view name) {
    return "message " + Quoted(Concat({"Plik ", test.Path(Concat({"work\\", name})), " został zmieniony. Zapisać zmiany ?"_pl})) +
           " \"Morlan7\" question yesnocancel";
  }
};

TEST_F(Closing, AsksNothingForAnUnmodifiedDocument) {
  TEditor& document = test.OpenText("tekst");
  EXPECT_TRUE(CloseDocument(program, document));
  EXPECT_EQ(Record{}, test.Asked());
  EXPECT_TRUE(program.documents.empty());
}

TEST_F(Closing, SavesOnYes) {
  TEditor& document = Modified("a.html");
  test.windows.answers.push_back(Answer::Yes);
  EXPECT_TRUE(CloseDocument(program, document));
  EXPECT_EQ(Record{Question("a.html")}, test.Asked());
  EXPECT_EQ("zmiana", test.Read("work\\a.html"));
}

TEST_F(Closing, DropsTheChangesOnNo) {
  TEditor& document = Modified("a.html");
  test.windows.answers.push_back(Answer::No);
  EXPECT_TRUE(CloseDocument(program, document));
  EXPECT_EQ("<html>", test.Read("work\\a.html"));
  EXPECT_TRUE(program.documents.empty());
}

TEST_F(Closing, StaysOnCancel) {
  TEditor& document = Modified("a.html");
  test.windows.answers.push_back(Answer::Cancel);
  EXPECT_FALSE(CloseDocument(program, document));
  EXPECT_EQ(&document, program.ActiveDocument);
}

TEST_F(Closing, AsksNothingRightAfterASave) {
  Modified("a.html");
  SaveDocument(program);
  CloseActiveDocument(program);
  EXPECT_EQ(Record{}, test.Asked());
  EXPECT_TRUE(program.documents.empty());
}

TEST_F(Closing, AsksNothingForADocumentThatWasEmptied) {
  TEditor& document = Modified("a.html");
  document.EditedText.Select(0, document.EditedText.Length());
  document.EditedText.SetSelText("");
  EXPECT_TRUE(document.IsModified());
  EXPECT_TRUE(CloseDocument(program, document));
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(Closing, GoesOnWhenTheNameOfAnUntitledDocumentIsNotGiven) {
  program.ActiveEditor->SetSelText("x");
  test.windows.answers.push_back(Answer::Yes);
  test.windows.files.push_back(std::nullopt);
  CloseActiveDocument(program);
  EXPECT_TRUE(program.documents.empty());
}

TEST_F(Closing, KeepsAWindowWhoseTextCannotBeWritten) {
  TEditor& document = Modified("a.html");
  std::filesystem::remove(test.folder.path / "work" / "a.html");
  std::filesystem::create_directories(test.folder.path / "work" / "a.html" / "pelny");
  SaveDocument(program);
  test.windows.answers.push_back(Answer::Yes);
  EXPECT_FALSE(CloseDocument(program, document));
  EXPECT_EQ("zmiana", document.EditedText.Text());
}

TEST_F(Closing, DuringLoadingAsksNothing) {
  TEditor& document = Modified("a.html");
  program.DocumentLoading = true;
  EXPECT_TRUE(CloseDocument(program, document));
  program.DocumentLoading = false;
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(Closing, KeepsTheObjectUntilTheEventIsOver) {
  TEditor& document = test.OpenText("tekst");
  CloseDocument(program, document);
  EXPECT_EQ("tekst", document.EditedText.Text());
  ASSERT_EQ(2u, program.closedDocuments.size());
  program.ForgetClosed();
  EXPECT_TRUE(program.closedDocuments.empty());
}

TEST_F(Closing, BringsTheLastDocumentForward) {
  TEditor& a = test.OpenText("a", "a.html");
  TEditor& b = test.OpenText("b", "b.html");
  TEditor& c = test.OpenText("c", "c.html");
  ActivateDocument(program, a);
  CloseActiveDocument(program);
  EXPECT_EQ(&c, program.ActiveDocument);
  CloseDocument(program, b);
  EXPECT_EQ(&c, program.ActiveDocument);
  EXPECT_EQ(0, test.frame().WindowsManager.Selected());
  EXPECT_TRUE(test.frame().toolbars[1]->Enabled());
}

TEST_F(Closing, ADocumentInTheBackgroundLeavesTheOneInFront) {
  TEditor& a = Modified("a.html");
  TEditor& b = test.OpenText("b", "b.html");
  test.OpenText("c", "c.html");
  ActivateDocument(program, b);
  test.windows.answers.push_back(Answer::Yes);
  EXPECT_TRUE(CloseDocument(program, a));
  EXPECT_EQ(&b, program.ActiveDocument);
  EXPECT_EQ(&b.EditedText, program.ActiveEditor);
  EXPECT_EQ(0, test.frame().WindowsManager.Selected());
}

TEST_F(Closing, TheLastOneLeavesNoActiveDocument) {
  CloseActiveDocument(program);
  EXPECT_EQ(nullptr, program.ActiveDocument);
  EXPECT_EQ(nullptr, program.ActiveEditor);
  EXPECT_EQ(0u, test.frame().WindowsManager.Count());
  EXPECT_FALSE(test.frame().toolbars[1]->Enabled());
  CloseActiveDocument(program);
}

TEST_F(Closing, AllGoesFromTheLastToTheFirstPastARefusal) {
  Modified("a.html");
  TEditor& b = Modified("b.html");
  Modified("c.html");
  test.windows.answers = {Answer::No, Answer::Cancel, Answer::No};
  CloseAllDocuments(program);
  EXPECT_EQ((Record{Question("c.html"), Question("b.html"), Question("a.html")}), test.Asked());
  ASSERT_EQ(1u, program.documents.size());
  EXPECT_EQ(&b, program.ActiveDocument);
  EXPECT_EQ(1u, test.frame().WindowsManager.Count());
}

TEST_F(Closing, AllLeavesTheToolbarsDisabled) {
  test.OpenText("a", "a.html");
  program.commands.RunMenu("xmn_closeall");
  EXPECT_TRUE(program.documents.empty());
  EXPECT_FALSE(test.frame().toolbars[20]->Enabled());
}

}  // namespace
}  // namespace morlan
