#include "platform/qt/editorscene.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace morlan {
namespace {

constexpr double kTextPadding = 4;             // left and right of the text
constexpr double kMarginPadding = 6;           // left and right of the line numbers
constexpr std::size_t kFewestDigits = 3;       // so that the margin of a short text need not widen at once
constexpr std::size_t kRowsRoundFarPlace = 3;  // that come into the view with a place more than a page away
constexpr double kColumnsRoundCaret = 12;      // that sideways scrolling keeps in view

}  // namespace

void EditorScene::SetGlyphs(const GlyphTable* glyphs) {
  glyphs_ = glyphs;
  rows_.SetGlyphs(glyphs);
  FitMargin();
  FitRows();
}

void EditorScene::SetSize(const QSizeF& size) {
  size_ = size;
  FitRows();
}

bool EditorScene::SetNumbersShown(bool shown) {
  numbersShown_ = shown;
  return FitMargin();
}

bool EditorScene::FitMargin() {
  const std::size_t digits = std::max(kFewestDigits, std::to_string(editor_.LineCount()).size());
  const double width = numbersShown_ ? std::ceil(static_cast<double>(digits) * glyphs_->Normal().advances['0'] + 2 * kMarginPadding) : 0;
  if (width == marginWidth_) return false;
  marginWidth_ = width;
  FitRows();
  return true;
}

void EditorScene::FitRows() {
  rows_.SetPage(std::max(glyphs_->TabWidth(), TextWidth()), static_cast<std::size_t>(std::max(1.0, size_.height() / RowHeight())));
}

double EditorScene::TextLeft() const { return marginWidth_ + kTextPadding; }

double EditorScene::TextWidth() const { return std::max(1.0, size_.width() - TextLeft() - kTextPadding); }

RowPosition EditorScene::LastTop() { return rows_.Moved(rows_.LastRow(), 1 - static_cast<std::ptrdiff_t>(rows_.RowsInPage())); }

double EditorScene::TopOf(const RowPosition& position) {
  const auto page = static_cast<std::ptrdiff_t>(rows_.RowsInPage()) + 2;
  return static_cast<double>(rows_.Distance(top_, position, page)) * RowHeight();
}

QRectF EditorScene::AreaOfRows(const RowPosition& first, const RowPosition& last) {
  const double top = TopOf(first);
  return {0, top, size_.width(), TopOf(last) + RowHeight() - top};
}

QRectF EditorScene::AreaOfLine(std::size_t line) { return AreaOfRows({line, 0}, {line, rows_.RowsOfLine(line) - 1}); }

QRectF EditorScene::AreaOfStretch(std::size_t from, std::size_t to) { return AreaOfRows(rows_.PositionOf(from), rows_.PositionOf(to)); }

QRectF EditorScene::AreaFrom(const RowPosition& first) {
  const double top = TopOf(first);
  return {0, top, size_.width(), std::max(0.0, size_.height() - top)};
}

QRectF EditorScene::CaretArea(std::size_t offset, double width) {
  const RowPosition position = rows_.PositionOf(offset);
  // A blank that hangs over the edge of a wrapped row must not take the caret out of sight.
  const double place = editor_.WordWrap() ? std::min(rows_.HorizontalPlace(offset), TextWidth()) : rows_.HorizontalPlace(offset);
  return {std::floor(TextLeft() + place - scroll_), TopOf(position), width, RowHeight()};
}

RowPosition EditorScene::RowAt(double y) { return rows_.Moved(top_, static_cast<std::ptrdiff_t>(std::floor(y / RowHeight()))); }

std::size_t EditorScene::OffsetAt(const QPointF& point) { return rows_.OffsetAt(RowAt(point.y()), point.x() - TextLeft() + scroll_); }

RowPosition EditorScene::TopShowing(std::size_t offset, std::size_t context) {
  const RowPosition position = rows_.PositionOf(offset);
  const auto page = static_cast<std::ptrdiff_t>(rows_.RowsInPage());
  const std::ptrdiff_t below = rows_.Distance(top_, position, 2 * page);
  if (below >= 0 && below < page) return top_;
  const bool farAway = below < -page || below >= 2 * page;
  const auto wantedRound = static_cast<std::ptrdiff_t>(farAway ? std::max(context, kRowsRoundFarPlace) : context);
  const std::ptrdiff_t around = std::min(wantedRound, (page - 1) / 2);
  const RowPosition wanted = rows_.Moved(position, below < 0 ? -around : around - page + 1);
  return std::min(wanted, LastTop());
}

double EditorScene::ScrollShowing(std::size_t offset) {
  if (editor_.WordWrap()) return 0;
  const double place = rows_.HorizontalPlace(offset), round = std::min(kColumnsRoundCaret * glyphs_->CellWidth(), TextWidth() / 4);
  if (place < scroll_) return std::floor(std::max(0.0, place - round));
  if (place > scroll_ + TextWidth()) return std::ceil(place - TextWidth() + round);
  return scroll_;
}

}  // namespace morlan
