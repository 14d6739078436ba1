#include "tags/quickstart.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tags/bodyeditor.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

constexpr std::string_view kHead =
    "<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n"
    " <META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=windows-1250\">\r\n"
    " <META HTTP-EQUIV=\"Generator\" CONTENT=\"Morlan7 Version 1.5 Final (C)1997/1998\">\r\n";

class QuickStartTest : public testing::Test {
 protected:
  QuickStartTest() {
    test_.Write("program\\Listy\\DocType.lst", "<!DOCTYPE HTML>\r\n<!DOCTYPE html>\r\n");
    test_.program.MainIni.SetSubItemValue("Document", "CharSet", "windows-1250");
  }
  std::string Started(std::string_view text, const std::function<void(QuickStart&)>& fill = {}, bool ok = true) {
    test_.OpenText(text).EditedText.Select(text.size(), 0);
    test_.windows.modals.push_back([fill, ok](Form& form) {
      auto& dialog = static_cast<QuickStart&>(form);
      if (fill) fill(dialog);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar1", "quickstart"));
    return test_.Text();
  }
  TestProgram test_;
};

TEST(PageSkeleton, HasTheTypeAndTheTitle) {
  EXPECT_EQ(PageSkeleton("<!DOCTYPE html>", "Ala"),
            "<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n  <TITLE>Ala</TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n</BODY>\r\n</HTML>");
}

TEST_F(QuickStartTest, ThePageStartsInFrontOfWhatStandsThere) {
  EXPECT_EQ(Started("abc"), Concat({kHead, "  <TITLE>", "Bez tytułu"_pl, "</TITLE>\r\n</HEAD>\r\n<BODY>\r\n\r\n</BODY>\r\n</HTML>abc"}));
}

TEST_F(QuickStartTest, TheFieldsAreFreshEachTime) {
  Started("", [](QuickStart& dialog) { dialog.tytul.UserSets("Moja"); });
  EXPECT_TRUE(test_.Text().find("  <TITLE>Moja</TITLE>") != std::string::npos);
  Started("", [](QuickStart& dialog) {
    EXPECT_EQ(dialog.tytul.Text(), "Bez tytułu"_pl);
    EXPECT_EQ(dialog.doctype.ListCount(), 2u);
    EXPECT_EQ(dialog.doctype.Text(), "<!DOCTYPE html>");
  });
}

TEST_F(QuickStartTest, ANewTypeIsRemembered) {
  EXPECT_TRUE(Started("", [](QuickStart& dialog) { dialog.doctype.UserSets("<!DOCTYPE x>"); }).starts_with("<!DOCTYPE x>\r\n<HTML>"));
  EXPECT_EQ(test_.Read("program\\Listy\\DocType.lst"), "<!DOCTYPE HTML>\r\n<!DOCTYPE html>\r\n<!DOCTYPE x>\r\n");
}

TEST_F(QuickStartTest, CancelDoesNothing) {
  EXPECT_EQ(Started(
                "abc", [](QuickStart& dialog) { dialog.doctype.UserSets("<!DOCTYPE x>"); }, false),
            "abc");
  EXPECT_EQ(test_.Read("program\\Listy\\DocType.lst"), "<!DOCTYPE HTML>\r\n<!DOCTYPE html>\r\n");
}

TEST_F(QuickStartTest, ThePropertiesOfThePageFollowWhenTheyAreWanted) {
  test_.windows.modals.push_back([](Form& form) {
    auto& dialog = static_cast<QuickStart&>(form);
    dialog.startbody.UserSets(true);
    dialog.Command2.UserClicks();
  });
  test_.windows.modals.push_back([](Form& form) {
    auto& dialog = static_cast<BodyTag&>(form);
    dialog.background.UserSets("a.gif");
    dialog.Command2.UserClicks();
  });
  test_.OpenText("");
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_quickstart"));
  EXPECT_TRUE(test_.Text().ends_with("</HEAD>\r\n<BODY BACKGROUND=\"a.gif\">\r\n\r\n</BODY>\r\n</HTML>")) << test_.Text();
}

TEST_F(QuickStartTest, UndoTakesThePageBackStepByStep) {
  Started("abc");
  TEditor& document = *test_.program.ActiveDocument;
  EXPECT_EQ(document.UNDO.Count(), 3u);
  for (int step = 0; step < 3; ++step) document.UNDO.DoUndo(document);
  EXPECT_EQ(test_.Text(), "abc");
}

}  // namespace
}  // namespace morlan
