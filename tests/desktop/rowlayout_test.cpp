#include "platform/qt/rowlayout.h"

#include <gtest/gtest.h>

#include <QFont>
#include <random>
#include <string>
#include <vector>

namespace morlan {
namespace {

// Tells the rows of each edit, as a view does.
class Listener : public EditorView {
 public:
  explicit Listener(EditorRows& rows) : rows_(rows) {}
  void TextReplaced(std::size_t offset, std::size_t removed, std::size_t inserted, std::size_t firstLine, std::size_t linesRemoved,
                    std::size_t linesInserted) override {
    change = rows_.TextReplaced(offset, removed, inserted, firstLine, linesRemoved, linesInserted);
    line = firstLine;
  }
  void TextReset() override { rows_.Forget(); }
  void StylesChanged(std::size_t offset, std::size_t length) override { rows_.StylesChanged(offset, length); }
  void SelectionChanged() override {}
  void PropertiesChanged() override {}
  void FocusWanted() override {}
  RowsChange change;
  std::size_t line = 0;

 private:
  EditorRows& rows_;
};

class Rows : public testing::TestWithParam<const char*> {
 protected:
  Rows() : font(QString::fromLatin1(GetParam())), glyphs(font, 1), rows(editor), listener(rows) {
    rows.SetGlyphs(&glyphs);
    editor.AttachView(&listener);
  }
  // Rows are as wide as that many characters "M".
  void Wrap(std::string_view text, double columns) {
    editor.SetWordWrap(true);
    editor.SetText(std::string(text));
    rows.SetPage(columns * glyphs.Normal().advances['M'], 10);
  }
  std::vector<std::string> Shown(EditorRows& from) {
    std::vector<std::string> shown;
    for (RowPosition position{0, 0};;) {
      const RowSpan span = from.SpanOf(position);
      shown.push_back(editor.Slice(span.start, span.end - span.start));
      const RowPosition next = from.Moved(position, 1);
      if (next == position) return shown;
      position = next;
    }
  }

  QFont font;
  MlnEditor editor;
  GlyphTable glyphs;
  EditorRows rows;
  Listener listener;
};

INSTANTIATE_TEST_SUITE_P(Fonts, Rows, testing::Values("DejaVu Sans Mono", "DejaVu Sans"));

TEST_P(Rows, LinesAreRowsWithoutWrapping) {
  editor.SetText("ab\r\n\r\nc");
  EXPECT_EQ(Shown(rows), (std::vector<std::string>{"ab", "", "c"}));
  EXPECT_EQ(rows.RowStart(5), 4u);
  EXPECT_EQ(rows.RowEnd(0), 2u);
  EXPECT_EQ(rows.OffsetInRow(1, 2, 1e9), 7u);
  EXPECT_EQ(rows.OffsetInRow(1, -5, 0), 0u);
}

TEST_P(Rows, PlacesLeadBackToTheirOffsets) {
  editor.SetText("i\tW\t.l\r\n\tx");
  for (const std::size_t offset : {0, 1, 2, 3, 4, 5, 6}) EXPECT_EQ(rows.OffsetInRow(offset, 0, rows.HorizontalPlace(offset)), offset);
  EXPECT_DOUBLE_EQ(rows.HorizontalPlace(2), glyphs.TabWidth());
  EXPECT_DOUBLE_EQ(rows.HorizontalPlace(9), glyphs.TabWidth());
}

TEST_P(Rows, AWordLongerThanARowIsCut) {
  Wrap("WWWWWWWWWWWWWWWWWWWWWWWWWWWWWW", 12);
  const auto shown = Shown(rows);
  EXPECT_GT(shown.size(), 2u);
  for (const std::string& row : shown) EXPECT_FALSE(row.empty());
}

TEST_P(Rows, EachRowFitsAndBlanksHangOver) {
  Wrap("raz dwa trzy cztery piec szesc siedem osiem dziewiec dziesiec jedenascie", 11);
  const double width = 11 * glyphs.Normal().advances['M'];
  EXPECT_GT(rows.RowsOfLine(0), 3u);
  for (std::size_t row = 0; row < rows.RowsOfLine(0); ++row) {
    const RowSpan span = rows.SpanOf({0, row});
    EXPECT_NE(editor.At(span.start), ' ') << row;
    EXPECT_LE(rows.Measure().Place(span, span.endsLine ? span.end : span.end - 1), width) << row;
  }
}

TEST_P(Rows, TheEndOfAWrappedRowLiesInFrontOfItsLastBlank) {
  Wrap("MMMMMMMM MMMMMMMM", 9);
  EXPECT_EQ(rows.RowEnd(0), 8u);
  EXPECT_EQ(rows.RowStart(9), 9u);
  EXPECT_EQ(rows.OffsetInRow(0, 0, 1e9), 8u);
}

TEST_P(Rows, DistanceCountsRowsOfWrappedLines) {
  Wrap("MMMMMMMM MMMMMMMM MMMMMMMM\r\nx\r\ny", 9);
  EXPECT_EQ(rows.Distance({0, 1}, {2, 0}, 100), 3);
  EXPECT_EQ(rows.Distance({2, 0}, {0, 1}, 100), -3);
  EXPECT_EQ(rows.Distance({0, 0}, {2, 0}, 2), 2);
  EXPECT_EQ(rows.Moved({0, 0}, 3), (RowPosition{1, 0}));
  EXPECT_EQ(rows.Moved({2, 0}, -2), (RowPosition{0, 2}));
}

// A row that is not told as changed looks as it did.
TEST_P(Rows, AnEditTellsWhichRowsOfItsLineChanged) {
  std::string text;
  for (int word = 0; word < 400; ++word) text += word % 3 == 0 ? "slowo " : "i ";
  Wrap(text, 20);
  std::mt19937 random(3);
  int kept = 0;
  for (int edit = 0; edit < 200; ++edit) {
    const std::vector<std::string> before = Shown(rows);
    editor.Select(std::uniform_int_distribution<std::size_t>(0, editor.Length())(random), edit % 4);
    editor.SetSelText(edit % 2 == 0 ? "x" : "y ");
    const std::vector<std::string> after = Shown(rows);
    ASSERT_EQ(listener.change.moved, before.size() != after.size()) << edit;
    if (listener.change.moved) continue;
    for (std::size_t row = 0; row < after.size(); ++row) {
      if (row >= listener.change.first && row <= listener.change.last) continue;
      ASSERT_EQ(before[row], after[row]) << edit;
      ++kept;
    }
  }
  EXPECT_GT(kept, 1000);
}

// What edits leave of the kept rows and places is what computing them anew gives.
TEST_P(Rows, EditsKeepRowsAsIfComputedAnew) {
  std::mt19937 random(7);
  const auto upTo = [&](std::size_t most) { return std::uniform_int_distribution<std::size_t>(0, most)(random); };
  std::string text;
  for (int word = 0; word < 900; ++word) text += word % 60 == 59 ? "\r\n" : word % 7 == 0 ? "bardzo-dlugie\t" : "ab cde f ";
  Wrap(text, 24);
  for (int edit = 0; edit < 400; ++edit) {
    editor.Select(upTo(editor.Length()), edit % 3 == 0 ? upTo(30) : 0);
    const char* const pieces[] = {"", "x", " ", "slowo i slowo ", "\r\n", "\t", "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW"};
    editor.SetSelText(pieces[upTo(6)]);
    EditorRows fresh(editor);
    fresh.SetGlyphs(&glyphs);
    fresh.SetPage(24 * glyphs.Normal().advances['M'], 10);
    ASSERT_EQ(Shown(rows), Shown(fresh)) << edit;
  }
}

TEST_P(Rows, EditsInAVeryLongLineKeepPlacesAsIfMeasuredAnew) {
  std::string line;
  while (line.size() < 40000) line += "<a href=x>iW</a>\t";
  editor.SetText(line);
  rows.HorizontalPlace(editor.Length());
  std::mt19937 random(11);
  for (int edit = 0; edit < 60; ++edit) {
    editor.Select(std::uniform_int_distribution<std::size_t>(0, editor.Length())(random), edit % 5);
    editor.SetSelText(edit % 2 == 0 ? "Wi" : "\t");
    EditorRows fresh(editor);
    fresh.SetGlyphs(&glyphs);
    for (const std::size_t offset : {std::size_t{100}, editor.Caret(), editor.Length() / 2, editor.Length()}) {
      ASSERT_NEAR(rows.HorizontalPlace(offset), fresh.HorizontalPlace(offset), 1e-6) << edit << " " << offset;
      ASSERT_EQ(rows.OffsetInRow(0, 0, rows.HorizontalPlace(offset)), offset) << edit;
    }
  }
}

TEST_P(Rows, BoldCharactersAreMeasuredBold) {
  editor.SetText("MMMM");
  const double plain = rows.HorizontalPlace(4);
  editor.Select(0, 4);
  editor.SetSelBold(true);
  if (glyphs.IsUniform())
    EXPECT_DOUBLE_EQ(rows.HorizontalPlace(4), plain);
  else
    EXPECT_NEAR(rows.HorizontalPlace(4), 4 * glyphs.Bold().advances['M'], 1e-9);
}

}  // namespace
}  // namespace morlan
