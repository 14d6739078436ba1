#include "platform/qt/mouseselection.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

class Selecting : public testing::Test {
 protected:
  Selecting() : selection(editor) { editor.SetText("raz dwa\r\ntrzy cztery\r\n"); }
  std::string Selected() { return editor.SelText(); }
  MlnEditor editor;
  MouseSelection selection;
};

TEST_F(Selecting, ACharacterAtATimeEitherWay) {
  selection.Begin(4, MouseSelection::Unit::Character);
  selection.Extend(6);
  EXPECT_EQ(Selected(), "dw");
  selection.Extend(1);
  EXPECT_EQ(Selected(), "az ");
  EXPECT_EQ(editor.Caret(), 1u);
}

TEST_F(Selecting, WordsStayWholeOnBothSides) {
  selection.Begin(5, MouseSelection::Unit::Word);
  EXPECT_EQ(Selected(), "dwa");
  selection.Extend(11);
  EXPECT_EQ(Selected(), "dwa\r\ntrzy");
  selection.Extend(1);
  EXPECT_EQ(Selected(), "raz dwa");
  EXPECT_EQ(editor.Caret(), 0u);
  selection.Extend(5);
  EXPECT_EQ(Selected(), "dwa");
}

TEST_F(Selecting, LinesStayWholeWithTheirEnds) {
  selection.Begin(10, MouseSelection::Unit::Line);
  EXPECT_EQ(Selected(), "trzy cztery\r\n");
  selection.Extend(0);
  EXPECT_EQ(Selected(), "raz dwa\r\ntrzy cztery\r\n");
}

TEST_F(Selecting, GoingOnMovesTheCaretAndKeepsTheOtherEnd) {
  selection.Begin(4, MouseSelection::Unit::Character);
  selection.Continue(7);
  EXPECT_EQ(Selected(), "dwa");
  selection.Continue(0);
  EXPECT_EQ(Selected(), "raz ");
}

}  // namespace
}  // namespace morlan
