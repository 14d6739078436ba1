#include "platform/qt/textdrop.h"

#include <gtest/gtest.h>

#include "core/document.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class Dropping : public testing::Test {
 protected:
  Dropping() : document(program.OpenText("raz dwa trzy")), editor(document.EditedText) {}
  TestProgram program;
  TEditor& document;
  MlnEditor& editor;
};

TEST_F(Dropping, InsertsAndSelectsForeignText) {
  DropText(document, 4, "<B>");
  EXPECT_EQ(editor.Text(), "raz <B>dwa trzy");
  EXPECT_EQ(editor.SelText(), "<B>");
  EXPECT_EQ(document.UNDO.Count(), 1u);
}

TEST_F(Dropping, MovesForwardAsOneChange) {
  editor.Select(0, 4);
  MoveSelection(document, 8);
  EXPECT_EQ(editor.Text(), "dwa raz trzy");
  EXPECT_EQ(editor.SelText(), "raz ");
  EXPECT_EQ(document.UNDO.Count(), 1u);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(editor.Text(), "raz dwa trzy");
}

TEST_F(Dropping, MovesBackAsOneChange) {
  editor.Select(8, 4);
  MoveSelection(document, 0);
  EXPECT_EQ(editor.Text(), "trzyraz dwa ");
  EXPECT_EQ(editor.SelText(), "trzy");
  document.UNDO.DoUndo(document);
  EXPECT_EQ(editor.Text(), "raz dwa trzy");
}

TEST_F(Dropping, NothingMovesIntoItself) {
  editor.Select(4, 3);
  for (const std::size_t offset : {4, 5, 7}) MoveSelection(document, offset);
  EXPECT_EQ(editor.Text(), "raz dwa trzy");
  EXPECT_EQ(document.UNDO.Count(), 0u);
}

TEST_F(Dropping, TakesMovedTextOut) {
  editor.Select(4, 4);
  RemoveSelection(document);
  EXPECT_EQ(editor.Text(), "raz trzy");
  document.UNDO.DoUndo(document);
  EXPECT_EQ(editor.Text(), "raz dwa trzy");
  EXPECT_EQ(editor.SelText(), "dwa ");
}

}  // namespace
}  // namespace morlan
