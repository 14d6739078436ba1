#include "core/editsurface.h"

#include <gtest/gtest.h>

#include <random>

namespace morlan {
namespace {

struct RecordingView : EditorView {
  void TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine, std::size_t linesRemoved,
                    std::size_t linesInserted) override {
    heard.push_back("replaced " + Joined({offset, removed, inserted, firstLine, linesRemoved, linesInserted}));
  }
  void TextReset() override { heard.push_back("reset"); }
  void StylesChanged(std::size_t offset, std::size_t length) override { heard.push_back("styles " + Joined({offset, length})); }
  void SelectionChanged() override { heard.push_back("selection"); }
  void PropertiesChanged() override { heard.push_back("properties"); }
  void FocusWanted() override { heard.push_back("focus"); }

  static std::string Joined(std::initializer_list<std::size_t> numbers) {
    std::string text;
    for (const std::size_t number : numbers) text += (text.empty() ? "" : " ") + std::to_string(number);
    return text;
  }
  std::vector<std::string> heard;
};

using Heard = std::vector<std::string>;

constexpr Colour kRed = RgbColour(255, 0, 0), kBlue = RgbColour(0, 0, 255);

TEST(MlnEditor, SettingTheTextIsNoEdit) {
  MlnEditor editor;
  int changes = 0;
  editor.OnChange = [&] { ++changes; };
  editor.SetText("abc");
  editor.SetSelStart(2);
  editor.SetSelText("x");
  editor.SetText("nowy");
  EXPECT_FALSE(editor.Modified);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(editor.SelStart(), 0u);
  EXPECT_EQ(editor.Text(), "nowy");
}

TEST(MlnEditor, SelTextReplacesTheSelectionAndLeavesTheCaretBehind) {
  MlnEditor editor;
  int changes = 0;
  editor.OnChange = [&] { ++changes; };
  editor.SetText("ala ma kota");
  editor.Select(4, 2);
  EXPECT_EQ(editor.SelText(), "ma");
  editor.SetSelText("miala");
  EXPECT_EQ(editor.Text(), "ala miala kota");
  EXPECT_EQ(editor.SelStart(), 9u);
  EXPECT_EQ(editor.SelLength(), 0u);
  EXPECT_TRUE(editor.Modified);
  EXPECT_EQ(changes, 1);
}

TEST(MlnEditor, NothingInThePlaceOfNothingIsNoChange) {
  MlnEditor editor;
  int changes = 0;
  editor.OnChange = [&] { ++changes; };
  editor.SetText("abc");
  editor.SetSelText("");
  EXPECT_FALSE(editor.Modified);
  EXPECT_EQ(changes, 0);
}

TEST(MlnEditor, AssigningSelStartCollapsesNothing) {
  MlnEditor editor;
  editor.SetText("abcdef");
  editor.Select(1, 3);
  editor.SetSelStart(2);
  EXPECT_EQ(editor.SelLength(), 3u);
  editor.SetSelStart(5);
  EXPECT_EQ(editor.SelLength(), 1u) << "as far as the text reaches";
}

TEST(MlnEditor, SelectionIsCutToTheText) {
  MlnEditor editor;
  editor.SetText("abc");
  editor.SetSelStart(10);
  EXPECT_EQ(editor.SelStart(), 3u);
  editor.Select(1, static_cast<std::size_t>(-1));
  EXPECT_EQ(editor.SelText(), "bc");
}

TEST(MlnEditor, TakesItsOwnTextAsTheNewOne) {
  MlnEditor editor;
  editor.SetText("0123456789");
  editor.Select(3, 2);
  editor.SetSelText(std::string_view(editor.Text()).substr(2, 6));
  EXPECT_EQ(editor.Text(), "01223456756789");
}

TEST(MlnEditor, CaretMayBeAtTheFrontOfTheSelection) {
  MlnEditor editor;
  editor.SetText("abcdef");
  editor.SelectFrom(4, 1);
  EXPECT_EQ(editor.SelStart(), 1u);
  EXPECT_EQ(editor.SelLength(), 3u);
  EXPECT_EQ(editor.Caret(), 1u);
  EXPECT_EQ(editor.Anchor(), 4u);
}

TEST(MlnEditor, SelColorColoursTheSelectionAndChangesNoText) {
  MlnEditor editor;
  int changes = 0;
  editor.OnChange = [&] { ++changes; };
  editor.SetText("<B>x");
  editor.Select(0, 3);
  editor.SetSelColor(kRed);
  EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(2)), kRed);
  EXPECT_EQ(editor.StyleAt(3), MlnEditor::kPlain);
  EXPECT_FALSE(editor.Modified);
  EXPECT_EQ(changes, 0);
}

TEST(MlnEditor, BoldAndColourAreApart) {
  MlnEditor editor;
  editor.SetText("new x");
  editor.Select(0, 4);
  editor.SetSelBold(true);
  editor.SetSelColor(kBlue);
  EXPECT_EQ(editor.StyleAt(0), editor.StyleOf(kBlue) | MlnEditor::kBold);
  editor.SetSelBold(false);
  EXPECT_EQ(editor.StyleAt(0), editor.StyleOf(kBlue));
}

TEST(MlnEditor, PlainTextFollowsTextColorAndOtherColoursStay) {
  MlnEditor editor;
  editor.SetText("ab");
  editor.Select(0, 1);
  editor.SetSelColor(kRed);
  editor.SetTextColor(kBlue);
  EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(1)), kBlue);
  EXPECT_EQ(editor.ColourOfStyle(editor.StyleAt(0)), kRed);
  EXPECT_EQ(editor.StyleOf(kBlue), MlnEditor::kPlain);
}

TEST(MlnEditor, AFullPaletteAnswersWithPlain) {
  MlnEditor editor;
  for (Colour colour = 1; colour < 128; ++colour) EXPECT_EQ(editor.StyleOf(colour), colour);
  EXPECT_EQ(editor.StyleOf(1000), MlnEditor::kPlain);
  EXPECT_EQ(editor.StyleOf(5), 5);
}

TEST(MlnEditor, StylesMoveWithTheirCharactersAndNewOnesArePlain) {
  MlnEditor editor;
  editor.SetText("abcd");
  editor.SetStyles(0, {1, 2, 3, 4});
  editor.Select(2, 1);
  editor.SetSelText("XY");
  const std::vector<MlnEditor::Style> wanted = {1, 2, 0, 0, 4};
  for (std::size_t i = 0; i < wanted.size(); ++i) EXPECT_EQ(editor.StyleAt(i), wanted[i]) << i;
  editor.SetStyle(1, 3, 9);
  EXPECT_EQ(editor.StyleAt(1), 9);
  EXPECT_EQ(editor.StyleAt(3), 9);
  EXPECT_EQ(editor.StyleAt(4), 4);
}

TEST(MlnEditor, StylesBehindTheTextAreDropped) {
  MlnEditor editor;
  editor.SetText("ab");
  editor.SetStyles(1, {5, 6, 7});
  editor.SetStyle(1, 100, 8);
  EXPECT_EQ(editor.StyleAt(1), 8);
}

TEST(MlnEditor, LineFromCharAndLineIndexAnswerEachOther) {
  MlnEditor editor;
  editor.SetText("ab\r\ncd\nef");
  EXPECT_EQ(editor.LineCount(), 3u);
  EXPECT_EQ(editor.LineFromChar(5), 1u);
  EXPECT_EQ(editor.LineIndex(1), 4u);
  EXPECT_EQ(editor.LineEnd(0), 2u);
  EXPECT_EQ(editor.LineEnd(1), 6u);
  EXPECT_EQ(editor.LineIndex(3), 9u) << "behind the last line";
}

TEST(MlnEditor, ALineEndComesToBeWhereCrAndLfMeet) {
  MlnEditor editor;
  editor.SetText("a\rx\nb");
  EXPECT_EQ(editor.LineCount(), 3u);
  editor.Select(2, 1);
  editor.SetSelText("");
  EXPECT_EQ(editor.LineCount(), 2u);
  EXPECT_EQ(editor.LineIndex(1), 3u);
  editor.SetSelText("x");
  EXPECT_EQ(editor.LineCount(), 3u);
}

TEST(MlnEditor, TellsTheViewWhatWasReplaced) {
  MlnEditor editor;
  RecordingView view;
  editor.AttachView(&view);
  editor.SetText("a\r\nb\r\nc");
  editor.Select(4, 3);
  view.heard.clear();
  editor.SetSelText("x\ny\n");
  EXPECT_EQ(view.heard, (Heard{"replaced 4 3 4 1 1 2", "selection"}));
}

TEST(MlnEditor, ALineThatGoesOnStartingAtItsPlaceIsNoChangeOfLines) {
  MlnEditor editor;
  RecordingView view;
  editor.AttachView(&view);
  editor.SetText("a\r\nb");
  editor.SetSelStart(3);
  view.heard.clear();
  editor.SetSelText("x");
  EXPECT_EQ(view.heard, (Heard{"replaced 3 0 1 1 0 0", "selection"}));
}

TEST(MlnEditor, TellsTheViewOfStylesAndProperties) {
  MlnEditor editor;
  RecordingView view;
  editor.SetText("abcd");
  editor.AttachView(&view);
  editor.SetStyle(1, 2, 3);
  editor.SetWordWrap(true);
  editor.SetWordWrap(true);
  editor.SetTextColor(kRed);
  editor.SetFont({.name = "Mono"});
  editor.SetFocus();
  EXPECT_EQ(view.heard, (Heard{"styles 1 2", "properties", "properties", "properties", "focus"}));
}

TEST(MlnEditor, RemembersWhereTheLastChangeTookPlace) {
  MlnEditor editor;
  editor.SetText("abcd");
  editor.Select(1, 2);
  editor.SetSelText("xyz");
  EXPECT_EQ(editor.EditedFrom(), 1u);
  EXPECT_EQ(editor.EditedTo(), 4u);
}

// The starts of all lines, counted anew.
std::vector<std::size_t> LinesOf(const std::string& text) {
  std::vector<std::size_t> starts{0};
  for (std::size_t i = 0; i < text.size(); ++i)
    if (text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'))) starts.push_back(i + 1);
  return starts;
}

TEST(MlnEditor, LinesAndStylesStayRightOverManyEdits) {
  constexpr std::string_view kLetters = "ab\r\n\r\nc\n\r";
  std::mt19937 random(11);
  MlnEditor editor;
  std::string plain;
  std::vector<MlnEditor::Style> styles;
  for (int step = 0; step < 8000; ++step) {
    const std::size_t offset = random() % (plain.size() + 1);
    const std::size_t removed = random() % (std::min<std::size_t>(plain.size() - offset, 7) + 1);
    std::string text;
    for (std::size_t n = random() % 7; n > 0; --n) text += kLetters[random() % kLetters.size()];
    plain.replace(offset, removed, text);
    styles.erase(styles.begin() + static_cast<std::ptrdiff_t>(offset), styles.begin() + static_cast<std::ptrdiff_t>(offset + removed));
    styles.insert(styles.begin() + static_cast<std::ptrdiff_t>(offset), text.size(), MlnEditor::kPlain);
    editor.Select(offset, removed);
    editor.SetSelText(text);
    if (const std::size_t at = random() % (plain.size() + 1); at < plain.size()) editor.SetStyle(at, 1, styles[at] = 3);
    const std::vector<std::size_t> lines = LinesOf(plain);
    ASSERT_EQ(editor.LineCount(), lines.size()) << "step " << step;
    for (std::size_t line = 0; line < lines.size(); ++line) ASSERT_EQ(editor.LineIndex(line), lines[line]) << "step " << step;
    for (std::size_t i = 0; i < styles.size(); ++i) ASSERT_EQ(editor.StyleAt(i), styles[i]) << "step " << step;
  }
  EXPECT_EQ(editor.Text(), plain);
}

}  // namespace
}  // namespace morlan
