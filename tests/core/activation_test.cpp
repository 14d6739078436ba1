#include <gtest/gtest.h>

#include "core/about.h"
#include "core/documents.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

TEST(FrameActivation, ShowsTheSplashOnce) {
  TestProgram test;
  test.windows.modals.push_back([](Form& form) {
    EXPECT_EQ("Wersja 1.5 Final (C)1997/1998", static_cast<About&>(form).Version.Caption());
    static_cast<About&>(form).Command1.UserClicks();
    EXPECT_FALSE(form.IsVisible());
  });
  ActivateFrame(test.program);
  EXPECT_EQ((Record{"modal about \"Morlan7\"", "closed about"}), test.Asked());
  ActivateFrame(test.program);
  EXPECT_EQ(Record{}, test.Asked());
}

TEST(FrameActivation, ShowsNoSplashWhereAFileIsNamed) {
  TestProgram test(TestProgram::Start::No);
  test.Write("work\\a.html", "a");
  test.environment.commandLine = test.Path("work\\a.html");
  StartUp(test.program);
  ActivateFrame(test.program);
  test.environment.commandLine.clear();
  ActivateFrame(test.program);
  EXPECT_EQ(Record{}, test.Asked());
}

TEST(FrameActivation, LeavesPlainTextOnTheClipboard) {
  TestProgram test;
  test.frame().splashShown = true;
  test.clipboard.text = "tekst";
  ActivateFrame(test.program);
  EXPECT_EQ("tekst", test.clipboard.text);
  test.clipboard.text.reset();
  ActivateFrame(test.program);
  EXPECT_FALSE(test.clipboard.text.has_value());
}

TEST(FrameActivation, WorksWithoutADocument) {
  TestProgram test;
  test.frame().splashShown = true;
  CloseActiveDocument(test.program);
  ActivateFrame(test.program);
  EXPECT_EQ(Record{}, test.Asked());
}

TEST(About, IsOpenedByItsNameAndItsMenuEntry) {
  TestProgram test;
  for (int i = 0; i < 2; ++i) test.windows.modals.push_back([](Form& form) { form.UserCloses(); });
  EXPECT_TRUE(test.program.forms.ShowByName("About"));
  EXPECT_TRUE(test.program.commands.RunMenu("xmn_about"));
  EXPECT_EQ(4u, test.Asked().size());
}

TEST(DocumentActivation, SetsTheGlobalsTheTabAndTheSize) {
  TestProgram test;
  TEditor& a = test.OpenText(std::string(2048, 'x'), "a.html");
  test.OpenText("b", "b.html");
  ActivateDocument(test.program, a);
  EXPECT_EQ(&a, test.program.ActiveDocument);
  EXPECT_EQ(&a.EditedText, test.program.ActiveEditor);
  EXPECT_EQ(0, test.frame().WindowsManager.Selected());
  EXPECT_EQ("2 KB", test.frame().statusBar.PanelText("docsize"));
}

TEST(DocumentActivation, MarksTheCharsetThroughThePass) {
  TestProgram test;
  TEditor& document = test.OpenText("a", "a.html");
  TEditor* marked = nullptr;
  test.program.passes.markCharset = [&](TEditor& wanted) { marked = &wanted; };
  document.Form_Activate();
  EXPECT_EQ(&document, marked);
}

TEST(DocumentActivation, KeepsTheWrappingOfEachDocument) {
  TestProgram test;
  TEditor& a = test.OpenText("a", "a.html");
  test.program.commands.RunMenu("xmn_warp");
  EXPECT_TRUE(a.EditedText.WordWrap());
  TEditor& b = test.OpenText("b", "b.html");
  EXPECT_FALSE(b.EditedText.WordWrap());
  EXPECT_FALSE(b.menu.IsChecked("xmn_warp"));
  ActivateDocument(test.program, a);
  EXPECT_TRUE(a.EditedText.WordWrap());
  test.program.commands.RunMenu("xmn_warp");
  EXPECT_FALSE(a.EditedText.WordWrap());
}

}  // namespace
}  // namespace morlan
