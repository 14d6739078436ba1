#include "core/timers.h"

#include <gtest/gtest.h>

#include "core/documents.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Timers : testing::Test {
  TestProgram test;
  void LineTick() { test.frame().Timer1.OnTimer(); }
  void SaveTick() { test.frame().TimeCounter.OnTimer(); }
};

TEST_F(Timers, HaveTheirIntervals) {
  EXPECT_EQ(750, test.frame().Timer1.Interval());
  EXPECT_EQ(65535, test.frame().TimeCounter.Interval());
}

TEST_F(Timers, ShowTheLineAtEverySecondTick) {
  TEditor& document = test.OpenText("raz\r\ndwa");
  document.EditedText.SetSelStart(7);
  test.program.LineInfoCounter = 0;
  LineTick();
  EXPECT_NE("2/3", test.frame().statusBar.PanelText("docline"));
  LineTick();
  EXPECT_EQ("2/3", test.frame().statusBar.PanelText("docline"));
  EXPECT_EQ(0, test.program.LineInfoCounter);
}

TEST_F(Timers, DoNothingWithoutADocument) {
  CloseActiveDocument(test.program);
  test.program.AutoSaveInterval = 1;
  LineTick();
  LineTick();
  SaveTick();
  EXPECT_EQ(Record{}, test.Asked());
}

TEST_F(Timers, SaveTheActiveDocumentWhenThePeriodIsOver) {
  test.OpenText("", "a.html").EditedText.SetSelText("nowy");
  test.program.AutoSaveInterval = 2;
  SaveTick();
  EXPECT_EQ("<html>", test.Read("work\\a.html"));
  SaveTick();
  EXPECT_EQ("nowy", test.Read("work\\a.html"));
  EXPECT_EQ(0, test.program.AutoSaveCounter);
  EXPECT_EQ("Gotowy", test.frame().statusBar.PanelText("status"));
}

TEST_F(Timers, CountWithoutEffectWhileAutoSaveIsOff) {
  test.OpenText("", "a.html").EditedText.SetSelText("nowy");
  for (int i = 0; i < 5; ++i) SaveTick();
  EXPECT_EQ(5, test.program.AutoSaveCounter);
  EXPECT_EQ("<html>", test.Read("work\\a.html"));
}

TEST_F(Timers, LeaveDocumentsInTheBackgroundUnsaved) {
  test.OpenText("", "a.html").EditedText.SetSelText("nowy");
  test.OpenText("b", "b.html");
  test.program.AutoSaveInterval = 1;
  SaveTick();
  EXPECT_EQ("<html>", test.Read("work\\a.html"));
}

}  // namespace
}  // namespace morlan
