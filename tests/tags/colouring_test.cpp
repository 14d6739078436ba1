#include "tags/colouring.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

// Start-up reads the four colours of the test's settings: text black, tags blue, values green, comments grey.
class Colouring : public testing::Test {
 protected:
  MlnEditor& Open(std::string_view text) { return test_.OpenText(text).EditedText; }
  MlnEditor& OpenPlain(std::string_view text) {
    MlnEditor& editor = Open("");
    editor.SetText(std::string(text));
    return editor;
  }
  std::string PaintOf(const MlnEditor& editor) const {
    const TagState& state = test_.program.tagState;
    std::string paint;
    for (std::size_t i = 0; i < editor.Length(); ++i) {
      const MlnEditor::Style style = editor.StyleAt(i);
      const Colour colour = editor.ColourOfStyle(style);
      const char mark = colour == state.TagsColor       ? 't'
                        : colour == state.LinksColor    ? 'v'
                        : colour == state.CommentsColor ? 'c'
                        : colour == state.GlobalColor   ? '.'
                                                        : '?';
      paint += style & MlnEditor::kBold ? 'K' : mark;
    }
    return paint;
  }
  const std::string& Status() { return test_.frame().statusBar.PanelText("status"); }
  TestProgram test_;
};

TEST_F(Colouring, ADocumentTakesTheColoursOfTheSettings) {
  const MlnEditor& editor = Open("a<B C=d>e<!-- new -->");
  EXPECT_EQ(PaintOf(editor), ".tttttvt.cccccKKKKcc.");
  EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(1)), RgbColour(0, 0, 255));
  EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(6)), RgbColour(0, 128, 0));
}

TEST_F(Colouring, LeavesTheSelectionAndTheModifiedMarkAlone) {
  MlnEditor& editor = OpenPlain("<b>abc</b>");
  editor.Select(4, 2);
  ColorizeDocument(test_.program, editor);
  EXPECT_EQ(editor.SelStart(), 4u);
  EXPECT_EQ(editor.SelLength(), 2u);
  EXPECT_FALSE(editor.Modified);
}

TEST_F(Colouring, APlainStretchKeepsTheColourThatItHas) {
  MlnEditor& editor = OpenPlain("a<b>c");
  editor.SetStyle(0, 5, editor.StyleOf(test_.program.tagState.CommentsColor));
  ColorizeDocument(test_.program, editor);
  EXPECT_EQ(PaintOf(editor), "ctttc");
}

TEST_F(Colouring, NothingHappensWhileItIsSwitchedOff) {
  MlnEditor& editor = OpenPlain("<b>");
  test_.program.tagState.UseColorize = false;
  test_.program.tagState.ColorizeRunning = true;
  ColorizeDocument(test_.program, editor);
  ColorizeBlock(test_.program, editor, 1, 3);
  test_.program.passes.colourEdited(editor, 0, 3);
  EXPECT_EQ(PaintOf(editor), "...");
  EXPECT_FALSE(test_.program.tagState.ColorizeRunning);
}

TEST_F(Colouring, ARunEndsReady) {
  MlnEditor& editor = OpenPlain("<b>");
  ColorizeDocument(test_.program, editor);
  EXPECT_EQ(Status(), "Gotowy");
  EXPECT_FALSE(test_.program.tagState.ColorizeRunning);
  EXPECT_TRUE(test_.program.tagState.ColorizeEnabled);
  EXPECT_FALSE(test_.windows.busyPointer);
}

struct BlockCase {
  std::ptrdiff_t from, to;
  std::string_view paint;
};

TEST_F(Colouring, ABlockGoesFromTheFirstTagBehindItsBeginning) {
  constexpr BlockCase kCases[] = {
      {1, 9, "ttt.ttt.ttt"}, {2, 9, "....ttt.ttt"}, {5, 8, "....ttt...."},   {1, 1, "ttt........"}, {-3, 5, "ttt.ttt...."},
      {0, 0, "ttt.ttt.ttt"}, {6, 0, "........ttt"}, {10, 11, "..........."}, {2, 2, "....ttt...."},  // the first tag counts even when it
                                                                                                     // begins behind the end
  };
  for (const BlockCase& block : kCases) {
    MlnEditor& editor = OpenPlain("<a>.<b>.<c>");
    ColorizeBlock(test_.program, editor, block.from, block.to);
    EXPECT_EQ(PaintOf(editor), block.paint) << block.from << " to " << block.to;
  }
}

TEST_F(Colouring, ABlockReadsAcrossThePlaceOfTheLastEdit) {
  MlnEditor& editor = OpenPlain("<a =d><b>");
  editor.Select(3, 0);
  editor.SetSelText("c");
  ColorizeBlock(test_.program, editor, 1, 10);
  EXPECT_EQ(PaintOf(editor), "tttttvtttt");
}

TEST_F(Colouring, ABlockAsksOnlyTheGlobalSwitch) {
  MlnEditor& editor = OpenPlain("<a>");
  editor.UseColorise = false;
  ColorizeBlock(test_.program, editor, 1, 3);
  EXPECT_EQ(PaintOf(editor), "ttt");
}

TEST_F(Colouring, TypingInADocumentThatIsNotColouredLeavesItPlain) {
  MlnEditor& editor = OpenPlain("<a>");
  editor.UseColorise = false;
  test_.program.passes.colourEdited(editor, 0, 1);
  EXPECT_EQ(PaintOf(editor), "...");
}

TEST_F(Colouring, LoadColoursGivesTheSettingsToAllDocuments) {
  MlnEditor& first = Open("<b>");
  MlnEditor& second = test_.OpenText("<i>", "druga.html").EditedText;
  INIFile& settings = test_.program.MainIni;
  settings.SetSubItemValue("Colorize", "GlobalColor", "102030");
  settings.SetSubItemValue("Colorize", "TagsColor", "FF0000");
  settings.SetSubItemValue("Colorize", "UseColorize", "false");
  LoadColours(test_.program);
  for (const MlnEditor* editor : {&first, &second}) {
    EXPECT_EQ(editor->TextColor(), RgbColour(0x10, 0x20, 0x30));
    EXPECT_EQ(editor->TagColor, RgbColour(255, 0, 0));
    EXPECT_EQ(editor->ParameterColor, RgbColour(0, 128, 0));
    EXPECT_EQ(editor->CommentColor, RgbColour(128, 128, 128));
    EXPECT_FALSE(editor->UseColorise);
  }
}

TEST_F(Colouring, EmptySettingsMeanNoColouringAndBlack) {
  test_.Write("windows\\pusty.ini", "");
  test_.program.MainIni.Init(test_.Path("windows\\pusty.ini"));
  LoadColours(test_.program);
  EXPECT_FALSE(test_.program.tagState.UseColorize);
  EXPECT_EQ(test_.program.tagState.TagsColor, 0u);
}

TEST_F(Colouring, RecolourAllWantsChangedColours) {
  MlnEditor& coloured = OpenPlain("<b>");
  RecolourAll(test_.program);
  EXPECT_EQ(PaintOf(coloured), "...");
  MlnEditor& left = test_.OpenText("", "druga.html").EditedText;
  left.SetText("<i>");
  left.UseColorise = false;
  test_.program.tagState.ColoursChanged = true;
  RecolourAll(test_.program);
  EXPECT_EQ(PaintOf(coloured), "ttt");
  EXPECT_EQ(PaintOf(left), "...");
  EXPECT_FALSE(test_.program.tagState.ColoursChanged);
}

}  // namespace
}  // namespace morlan
