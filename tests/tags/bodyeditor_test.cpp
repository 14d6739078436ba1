#include "tags/bodyeditor.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

using Change = std::function<void(BodyTag&)>;

class BodyEditor : public testing::Test {
 protected:
  // What stands in a document after its dialog was left.
  std::string Edited(std::string_view text, const Change& change = {}, bool ok = true, std::size_t caret = 0) {
    test_.OpenText(text).EditedText.Select(caret, 0);
    Press(change, ok);
    return test_.Text();
  }
  void Press(const Change& change = {}, bool ok = true) {
    test_.windows.modals.push_back([change, ok](Form& form) {
      auto& dialog = static_cast<BodyTag&>(form);
      if (change) change(dialog);
      (ok ? dialog.Command2 : dialog.Command1).UserClicks();
    });
    EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar1", "body"));
  }
  BodyTag& Dialog() { return test_.program.forms.Get<BodyTag>(); }
  TestProgram test_;
};

TEST(BodyText, WritesWhatIsSet) {
  EXPECT_EQ(BodyText({}), "<BODY>");
  EXPECT_EQ(BodyText({.background = "tlo.gif",
                      .watermark = true,
                      .bgColor = RgbColour(1, 2, 3),
                      .textColor = RgbColour(0, 0, 0),
                      .linksColor = RgbColour(0, 0, 255),
                      .visitedLinks = RgbColour(128, 0, 128),
                      .activeLinks = RgbColour(255, 0, 0)}),
            "<BODY BACKGROUND=\"tlo.gif\" BGPROPERTIES=\"FIXED\" BGCOLOR=\"#010203\" TEXT=\"#000000\" LINK=\"#0000FF\" VLINK=\"#800080\" "
            "ALINK=\"#FF0000\">");
}

TEST(FindBodyTag, FindsTheFirstInCapitals) {
  EXPECT_EQ(FindBodyTag("<HTML><BODY TEXT=red>a</BODY><BODY>"), "<BODY TEXT=red");
  EXPECT_EQ(FindBodyTag("<BODY\r\nTEXT=red>"), "<BODY\r\nTEXT=red");
  EXPECT_EQ(FindBodyTag("<TITLE>BODY</TITLE><BODYS><BODY>"), "<BODY");
  for (const std::string_view text : {"", "<body>", "</BODY>", "<BODY", "<BODY ", "BODY>"}) EXPECT_EQ(FindBodyTag(text), "") << text;
}

TEST_F(BodyEditor, ATagThatIsConfirmedUnchangedKeepsItsBytes) {
  constexpr std::string_view kPage =
      "<HTML>\r\n<BODY BACKGROUND=\"tlo.gif\" BGPROPERTIES=\"FIXED\" BGCOLOR=\"#FFFFC0\" TEXT=\"#000001\" LINK=\"#0000FF\" "
      "VLINK=\"#800080\" ALINK=\"#FF0000\">\r\na</BODY>";
  EXPECT_EQ(Edited(kPage), kPage);
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(BodyEditor, TheFieldsShowTheTag) {
  Edited("<BODY BACKGROUND=tlo.gif BGPROPERTIES=FIXED BGCOLOR=#FFFFC0 VLINK=112233>", [](BodyTag& dialog) {
    EXPECT_EQ(dialog.background.Text(), "tlo.gif");
    EXPECT_TRUE(dialog.watermark.Value());
    EXPECT_EQ(dialog.BGColor.Value(), RgbColour(0xFF, 0xFF, 0xC0));
    EXPECT_EQ(dialog.BGColor.Caption(), "#FFFFC0");
    EXPECT_EQ(dialog.VisitedLinks.Caption(), "#112233");
    EXPECT_FALSE(dialog.TextColor.IsSet());
    EXPECT_EQ(dialog.TextColor.Caption(), "Niezdefiniowany");
    EXPECT_FALSE(dialog.noTextColor.Enabled());
    EXPECT_TRUE(dialog.noBGColor.Enabled());
  });
}

TEST_F(BodyEditor, AnyOtherWordThanFixedInCapitalsIsNoWatermarkOnPurpose) { EXPECT_EQ(Edited("<BODY BGPROPERTIES=\"fixed\">"), "<BODY>"); }

TEST_F(BodyEditor, ANamedColourHasItsChannelsExchangedOnPurpose) {
  EXPECT_EQ(Edited("<BODY BGCOLOR=red TEXT=Navy>"), "<BODY BGCOLOR=\"#0000FF\" TEXT=\"#800000\">");
}

TEST_F(BodyEditor, UnknownAttributesGo) {
  EXPECT_EQ(Edited("x<BODY onload=\"a()\" TEXT=\"#112233\" class=b>y"), "x<BODY TEXT=\"#112233\">y");
}

TEST_F(BodyEditor, AColourIsChosenAndTakenBack) {
  test_.windows.colours = {RgbColour(0x12, 0xAB, 0x34), std::nullopt};
  EXPECT_EQ(Edited("<BODY TEXT=\"#112233\">",
                   [](BodyTag& dialog) {
                     dialog.LinksColor.UserClicks();
                     dialog.BGColor.UserClicks();
                     dialog.noTextColor.UserClicks();
                   }),
            "<BODY LINK=\"#12AB34\">");
}

TEST_F(BodyEditor, ThePictureComesFromItsFileButton) {
  test_.windows.files.push_back(test_.Path("work\\obrazki\\tlo.gif"));
  EXPECT_EQ(Edited("<BODY>", [](BodyTag& dialog) { dialog.backgroundFile.UserClicks(); }), "<BODY BACKGROUND=\"obrazki/tlo.gif\">");
}

TEST_F(BodyEditor, CancelLeavesTheDocumentAlone) {
  const auto change = [](BodyTag& dialog) { dialog.watermark.UserSets(true); };
  EXPECT_EQ(Edited("<BODY TEXT=red>", change, false), "<BODY TEXT=red>");
  EXPECT_EQ(Edited("</head>", change, false), "</head>");
  EXPECT_FALSE(test_.program.ActiveDocument->IsModified());
}

TEST_F(BodyEditor, AMissingTagGoesBehindTheHead) {
  EXPECT_EQ(Edited("<html><Head></HEAD>\r\nabc", {}, true, 21), "<html><Head></HEAD><BODY>\r\n</BODY>\r\nabc");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(), 21u);
}

TEST_F(BodyEditor, ATagInSmallLettersIsNotSeenOnPurpose) {
  EXPECT_EQ(Edited("<head></head><body text=red></body>"), "<head></head><BODY>\r\n</BODY><body text=red></body>");
}

TEST_F(BodyEditor, WithoutAHeadTheTagGoesToTheCaret) {
  EXPECT_EQ(Edited("abc", {}, true, 1), "a<BODY>\r\n</BODY>bc");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(), 1u);
}

TEST_F(BodyEditor, TheCaretGoesBackToItsOffset) {
  Edited(
      "<BODY TEXT=\"#112233\">abc", [](BodyTag& dialog) { dialog.noTextColor.UserClicks(); }, true, 5);
  EXPECT_EQ(test_.Text(), "<BODY>abc");
  EXPECT_EQ(test_.program.ActiveEditor->SelStart(), 5u);
  EXPECT_EQ(test_.program.ActiveEditor->SelLength(), 0u);
}

TEST_F(BodyEditor, OneUndoBringsTheOldTagBack) {
  Edited("<BODY TEXT=red>abc");
  TEditor& document = *test_.program.ActiveDocument;
  EXPECT_EQ(document.UNDO.Count(), 1u);
  document.UNDO.DoUndo(document);
  EXPECT_EQ(test_.Text(), "<BODY TEXT=red>abc");
}

TEST_F(BodyEditor, TheContextMenuOpensTheSameDialog) {
  TEditor& document = test_.OpenText("ab<BODY TEXT=\"#112233\">");
  document.EditedText.Select(4, 0);
  document.EditedText_OnMouseDown(MouseButton::Right);
  test_.windows.modals.push_back([](Form& form) {
    auto& dialog = static_cast<BodyTag&>(form);
    EXPECT_EQ(dialog.TextColor.Caption(), "#112233");
    dialog.watermark.UserSets(true);
    dialog.Command2.UserClicks();
  });
  EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
  EXPECT_EQ(test_.Text(), "ab<BODY BGPROPERTIES=\"FIXED\" TEXT=\"#112233\">");
}

TEST_F(BodyEditor, APageWithoutTheTagLeavesTheFieldsAsTheyWere) {
  Edited("<BODY BACKGROUND=\"a.gif\" TEXT=\"#112233\">");
  EXPECT_EQ(Edited("</head>"), "</head><BODY BACKGROUND=\"a.gif\" TEXT=\"#112233\">\r\n</BODY>");
  EXPECT_EQ(Edited("<BODY>"), "<BODY>");
}

TEST_F(BodyEditor, NothingHappensWithoutADocument) {
  while (test_.program.ActiveDocument) test_.program.commands.RunMenu("xmn_close");
  EXPECT_TRUE(test_.program.commands.RunToolbar("Toolbar1", "body"));
}

}  // namespace
}  // namespace morlan
