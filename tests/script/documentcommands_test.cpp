#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/scriptedsession.h"

namespace morlan {
namespace {

struct DocumentCommands : testing::Test {
  ScriptedSession session;
};

TEST_F(DocumentCommands, SetTextIsNoEdit) {
  EXPECT_EQ(session.Run("type abc\nsettext \"ala\\r\\n→\"\ntext\nselection\ndocuments\nundo\ntext"),
            (Lines{"text \"ala\\r\\n&#8594;\"", "selection 0 0 \"\"", "document \"BezTytułu.html\" \"\" saved active", "end",
                   "text \"ala\\r\\n&#8594;\""}));
}

TEST_F(DocumentCommands, TypingIsAnEditOfSingleCharacters) {
  EXPECT_EQ(
      session.Run("type \"Zażółć\\r\\n\\tgęślą\"\ntext\nundo\nundo\ntext\ndocuments"),
      (Lines{"text \"Zażółć\\r\\n\\tgęślą\"", "text \"Zażółć\\r\\n\\tgęś\"", "document \"BezTytułu.html\" \"\" modified active", "end"}));
}

TEST_F(DocumentCommands, AnyLineEndIsOneEnter) {
  EXPECT_EQ(session.Run("type \"a\\r\\nb\\nc\\rd\"\ntext\nundo\nundo\ntext"),
            (Lines{"text \"a\\r\\nb\\r\\nc\\r\\nd\"", "text \"a\\r\\nb\\r\\nc\""}));
}

TEST_F(DocumentCommands, SelectAndCaretAreCutToTheText) {
  EXPECT_EQ(session.Run("settext abcdef\nselect 1 3\nselection\ncaret 4\nselection\nselect 4 99\nselection\ncaret 99\nselection"),
            (Lines{"selection 1 3 \"bcd\"", "selection 4 0 \"\"", "selection 4 2 \"ef\"", "selection 6 0 \"\""}));
}

TEST_F(DocumentCommands, KeysGoThroughTheHandlersOfTheEditor) {
  EXPECT_EQ(session.Run("settext abc\ncaret 1\nkey Delete\ntext\nkey Ctrl+Z\ntext\nkey End\nkey Alt+Space\nkey Ctrl+Enter\nkey X\nkey "
                        "Shift+X\nkey \"ą\"\ntext"),
            (Lines{"text \"ac\"", "text \"abc\"", "text \"abc&nbsp;<BR>xXą\""}));
}

TEST_F(DocumentCommands, ColoursPrintsRunsOfOneColour) {
  session.prepare = [](Program& program) {
    program.passes.colourDocument = [](MlnEditor& editor) {
      editor.SetStyle(1, 3, editor.StyleOf(RgbColour(0xFF, 0x80, 0)));
      editor.SetStyle(4, 2, static_cast<MlnEditor::Style>(editor.StyleOf(RgbColour(0xFF, 0x80, 0)) | MlnEditor::kBold));
      editor.SetStyle(6, 1, editor.StyleOf(RgbColour(1, 2, 3)));
    };
  };
  EXPECT_EQ(session.Run("settext 12345678\ncolours"),
            (Lines{"run 0 1 000000", "run 1 3 FF8000", "run 4 2 FF8000 bold", "run 6 1 010203", "run 7 1 000000", "end"}));
  EXPECT_EQ(session.Run("colours"), Lines{"end"});
}

TEST_F(DocumentCommands, DocumentsStandInTheOrderOfTheirTabs) {
  session.Write("a.html", "<html>");
  session.Write("b.txt", "b");
  EXPECT_EQ(session.Run("type x\nopen a.html\nopen b.txt\nactivate a.html\ndocuments"),
            (Lines{"document \"BezTytułu.html\" \"\" modified", "document \"<folder>\\\\a.html\" \"html\" saved active",
                   "document \"<folder>\\\\b.txt\" \"html\" saved", "end"}));
}

TEST_F(DocumentCommands, ActivateTakesAWholeCaptionOrABareName) {
  session.Write("a.html", "aaa");
  EXPECT_EQ(session.Run("type x\nopen a.html\nactivate \"BezTytułu.html\"\ntext\nactivate a.html\ntext"),
            (Lines{"text \"x\"", "text \"aaa\""}));
}

TEST_F(DocumentCommands, OpeningAMissingFileShowsItsMessageAndGoesOn) {
  EXPECT_EQ(session.Run("open brak.html\necho a"), (Lines{"message \"Plik  nie istnieje !\" \"Morlan7\" stop ok", "echo \"a\""}));
}

TEST_F(DocumentCommands, APopUpIsListedUntilTheNextCommandThatActs) {
  session.prepare = [](Program& program) {
    program.hooks.mouseDown = [](TEditor& document, MouseButton button) {
      if (button == MouseButton::Right) document.program().frontEnd.PopUp(document.program().frame().menu);
    };
  };
  const auto entries = [](const Lines& lines, std::string_view start) {
    return std::count_if(lines.begin(), lines.end(), [&](const std::string& line) { return line.starts_with(start); });
  };
  EXPECT_EQ(entries(session.Run("mouse right 0\nmenus"), "entry mn_quit "), 1);
  EXPECT_EQ(entries(session.Run("mouse right\ntype a\nmenus"), "entry mn_quit "), 0);
  EXPECT_EQ(entries(session.Run("mouse left 0\nmenus"), "entry mn_quit "), 0);
}

TEST_F(DocumentCommands, AHiddenOrDisabledMenuEntryCannotBePicked) {
  bool ran = false;
  session.prepare = [&](Program& program) {
    program.commands.OnMenu("mn_tab", [&program] {
      program.ActiveDocument->menu.SetEnabled("xmnm_edit", false);
      program.ActiveDocument->menu.SetVisible("xmn_save", false);
    });
    program.commands.OnMenu("xmn_selectall", [&] { ran = true; });
  };
  EXPECT_EQ(session.Run("menu mn_tab\nmenu xmn_selectall"), Lines{"error 2 \"the menu entry xmn_selectall is disabled\""});
  EXPECT_EQ(session.Run("menu mn_tab\nmenu xmn_save"), Lines{"error 2 \"the menu entry xmn_save is hidden\""});
  EXPECT_FALSE(ran);
  session.Run("menu mn_selectall");
  EXPECT_TRUE(ran);
}

TEST_F(DocumentCommands, MenusTellsNameCaptionAndMarks) {
  const Lines lines = session.Run("menus");
  EXPECT_EQ(lines.back(), "end");
  EXPECT_NE(std::find(lines.begin(), lines.end(), "entry xmn_saveas \"Zapisz &jako...\" enabled"), lines.end());
  EXPECT_NE(std::find(lines.begin(), lines.end(), "entry xmn_ModeHtml \"Tryb &HTML\" enabled checked"), lines.end());
}

}  // namespace
}  // namespace morlan
