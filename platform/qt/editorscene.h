// What part of a text a view shows and where each row of it lies. Points are pixels from the view's upper left corner.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <cstddef>

#include "core/editsurface.h"
#include "platform/qt/glyphtable.h"
#include "platform/qt/rowlayout.h"

namespace morlan {

class EditorScene {
 public:
  explicit EditorScene(const MlnEditor& editor) : editor_(editor), rows_(editor) {}

  const MlnEditor& Editor() const { return editor_; }
  EditorRows& Rows() { return rows_; }
  LineMeasure& Measure() { return rows_.Measure(); }
  const GlyphTable& Glyphs() const { return *glyphs_; }
  double RowHeight() const { return glyphs_->RowHeight(); }

  void SetGlyphs(const GlyphTable* glyphs);
  void SetSize(const QSizeF& size);
  const QSizeF& Size() const { return size_; }
  // The margin is as wide as the text's last line number needs; 0 when it is not shown. True when the width changed.
  bool SetNumbersShown(bool shown);
  bool FitMargin();
  bool NumbersShown() const { return numbersShown_; }
  double MarginWidth() const { return marginWidth_; }
  double TextLeft() const;   // of column 0 while nothing is scrolled
  double TextWidth() const;  // room for text

  const RowPosition& Top() const { return top_; }
  void SetTop(const RowPosition& top) { top_ = top; }
  double Scroll() const { return scroll_; }  // to the right, 0 while lines are wrapped
  void SetScroll(double scroll) { scroll_ = scroll; }

  // The lowest row that may be the first one shown.
  RowPosition LastTop();
  // Upper edge of a row; rows far outside the view count as lying just outside.
  double TopOf(const RowPosition& position);
  // The part of the view that the rows take.
  QRectF AreaOfRows(const RowPosition& first, const RowPosition& last);
  QRectF AreaOfLine(std::size_t line);
  QRectF AreaOfStretch(std::size_t from, std::size_t to);  // the rows that hold the offsets
  QRectF AreaFrom(const RowPosition& first);               // down to the lower edge
  QRectF CaretArea(std::size_t offset, double width);
  std::size_t OffsetAt(const QPointF& point);
  RowPosition RowAt(double y);
  // The first row to show so that the offset is in the view with some rows round it; the present one where that will do.
  RowPosition TopShowing(std::size_t offset, std::size_t context);
  double ScrollShowing(std::size_t offset);

 private:
  void FitRows();

  const MlnEditor& editor_;
  EditorRows rows_;
  const GlyphTable* glyphs_ = nullptr;
  QSizeF size_{1, 1};
  RowPosition top_;
  double scroll_ = 0;
  bool numbersShown_ = true;
  double marginWidth_ = 0;
};

}  // namespace morlan
