#include "platform/qt/editorpainter.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QString>
#include <algorithm>
#include <cmath>
#include <string>

#include "platform/encoding.h"
#include "platform/qt/readablecolour.h"

namespace morlan {
namespace {

constexpr double kNumberGap = 6;  // between a line number and the margin's right edge

Colour FromQColor(const QColor& colour) {
  return RgbColour(static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
                   static_cast<std::uint8_t>(colour.blue()));
}

QColor ToQColor(Colour colour) { return {RedOf(colour), GreenOf(colour), BlueOf(colour)}; }

}  // namespace

EditorColours EditorColours::From(const QPalette& palette) {
  EditorColours colours;
  colours.base = FromQColor(palette.color(QPalette::Base));
  const Colour text = FromQColor(palette.color(QPalette::Text));
  colours.background = ToQColor(colours.base);
  colours.currentLine = ToQColor(Mixed(text, colours.base, 0.05));
  colours.selection = palette.color(QPalette::Highlight);
  colours.selectedText = palette.color(QPalette::HighlightedText);
  colours.margin = ToQColor(Mixed(text, colours.base, 0.04));
  colours.marginText = ToQColor(Mixed(text, colours.base, 0.5));
  colours.marginCurrent = ToQColor(Mixed(text, colours.base, 0.9));
  colours.mark = ToQColor(Mixed(text, colours.base, 0.45));
  colours.caret = ToQColor(text);
  return colours;
}

void EditorPainter::SetColours(const EditorColours& colours) {
  colours_ = colours;
  shown_.fill({});
}

const QColor& EditorPainter::ShownColour(MlnEditor::Style style) {
  ShownStyle& entry = shown_[style & ~MlnEditor::kBold & 0x7F];
  const Colour model = editor_.ColourOfStyle(style & 0x7F);
  if (!entry.known || entry.model != model) entry = {model, true, ToQColor(ReadableOn(model, colours_.base))};
  return entry.shown;
}

QColor EditorPainter::ColourOfBatch(std::size_t batch) {
  if (batch < kSelected) return ShownColour(static_cast<MlnEditor::Style>(batch));
  if (batch == kNumbers) return colours_.marginText;
  if (batch == kCurrentNumber) return colours_.marginCurrent;
  return colours_.selectedText;
}

void EditorPainter::Paint(QPainter& painter, const QRectF& area) {
  painter.fillRect(area, colours_.background);
  const double margin = scene_.MarginWidth();
  if (area.left() < margin) painter.fillRect(QRectF(0, area.top(), margin, area.height()) & area, colours_.margin);
  currentLine_ = editor_.LineFromChar(editor_.Caret());

  EditorRows& rows = scene_.Rows();
  const auto skipped = static_cast<std::ptrdiff_t>(std::max(0.0, std::floor(area.top() / scene_.RowHeight())));
  RowPosition position = rows.Moved(scene_.Top(), skipped);
  if (rows.Distance(scene_.Top(), position, skipped) < skipped) return;  // below the last row
  for (double top = static_cast<double>(skipped) * scene_.RowHeight(); top < area.bottom(); top += scene_.RowHeight()) {
    PaintRow(painter, rows.SpanOf(position), top, area);
    if (position.row == 0 && area.left() < margin) PaintNumber(position.line, top);
    const RowPosition next = rows.Moved(position, 1);
    if (next == position) break;
    position = next;
  }
  Flush(painter);
}

void EditorPainter::PaintRow(QPainter& painter, const RowSpan& row, double top, const QRectF& area) {
  const double margin = scene_.MarginWidth(), height = scene_.RowHeight();
  const QRectF whole = QRectF(margin, top, scene_.Size().width() - margin, height) & area;
  if (row.line == currentLine_) painter.fillRect(whole, colours_.currentLine);
  if (whole.isEmpty()) return;

  LineMeasure& measure = scene_.Measure();
  const GlyphTable& glyphs = scene_.Glyphs();
  const double origin = scene_.TextLeft() - scene_.Scroll(), overhang = glyphs.CellWidth();
  const std::size_t selectionStart = editor_.SelStart(), selectionEnd = selectionStart + editor_.SelLength();
  auto [offset, place] = measure.LastUpTo(row, std::max(0.0, whole.left() - origin - overhang));
  const double first = place, right = whole.right() - origin + overhang;
  double selectedFrom = -1, selectedTo = -1;
  for (; offset < row.end && place < right; ++offset) {
    const bool selected = offset >= selectionStart && offset < selectionEnd;
    const double next = measure.Behind(offset, place);
    if (selected && selectedFrom < 0) selectedFrom = place;
    if (selected) selectedTo = next;
    const MlnEditor::Style style = editor_.StyleAt(offset);
    const bool bold = (style & MlnEditor::kBold) != 0;
    Add(!selected ? style
        : bold    ? kSelectedBold
                  : kSelected,
        static_cast<unsigned char>(editor_.At(offset)), {origin + place, top + glyphs.Ascent()});
    place = next;
  }
  // A selection that goes on behind the line shows the line end as one more column.
  if (offset == row.end && row.endsLine && selectionStart <= row.end && selectionEnd > row.end) {
    if (selectedFrom < 0) selectedFrom = place;
    selectedTo = place + glyphs.CellWidth();
  }
  if (selectedFrom >= 0) {
    const double left = std::max(margin, origin + selectedFrom);
    painter.fillRect(QRectF(left, top, origin + selectedTo - left, height) & area, colours_.selection);
  }
  if (glyphs.Font().underline() || glyphs.Font().strikeOut())
    PaintFontLines(painter, std::max(margin, origin + first), origin + place, top);
}

void EditorPainter::PaintFontLines(QPainter& painter, double left, double right, double top) {
  const QFontMetricsF metrics(scene_.Glyphs().Font());
  const double base = top + scene_.Glyphs().Ascent(), thickness = std::max(1.0, std::round(metrics.lineWidth()));
  const QColor& colour = ShownColour(MlnEditor::kPlain);
  if (scene_.Glyphs().Font().underline()) painter.fillRect(QRectF(left, base + metrics.underlinePos(), right - left, thickness), colour);
  if (scene_.Glyphs().Font().strikeOut()) painter.fillRect(QRectF(left, base - metrics.strikeOutPos(), right - left, thickness), colour);
}

void EditorPainter::PaintNumber(std::size_t line, double top) {
  const std::string digits = std::to_string(line + 1);
  const double advance = scene_.Glyphs().Normal().advances['0'];
  double left = scene_.MarginWidth() - kNumberGap - advance * static_cast<double>(digits.size());
  for (const char digit : digits) {
    Add(line == currentLine_ ? kCurrentNumber : kNumbers, static_cast<unsigned char>(digit), {left, top + scene_.Glyphs().Ascent()});
    left += advance;
  }
}

void EditorPainter::Add(std::size_t batch, unsigned char byte, const QPointF& place) {
  if (byte == ' ' || byte == '\t' || byte == 0xA0) return;
  const GlyphTable::Face& face = scene_.Glyphs().FaceOf(IsBold(batch));
  if (face.missing[byte] || face.control[byte]) {
    strange_.push_back({place, byte, batch});
    return;
  }
  Batch& glyphs = batches_[batch];
  if (glyphs.glyphs.empty()) used_.push_back(batch);
  glyphs.glyphs.push_back(face.glyphs[byte]);
  glyphs.places.push_back(place);
}

void EditorPainter::FlushBatch(QPainter& painter, std::size_t number) {
  Batch& batch = batches_[number];
  QGlyphRun run;
  run.setRawFont(scene_.Glyphs().FaceOf(IsBold(number)).font);
  run.setRawData(batch.glyphs.data(), batch.places.data(), static_cast<int>(batch.glyphs.size()));
  painter.setPen(ColourOfBatch(number));
  painter.drawGlyphRun(QPointF(0, 0), run);
  batch.glyphs.clear();
  batch.places.clear();
}

void EditorPainter::Flush(QPainter& painter) {
  // Text that is scrolled to the left must not run into the line numbers.
  const auto isNumber = [](std::size_t batch) { return batch == kNumbers || batch == kCurrentNumber; };
  for (const std::size_t batch : used_)
    if (isNumber(batch)) FlushBatch(painter, batch);
  painter.save();
  const double margin = scene_.MarginWidth();
  if (scene_.Scroll() > 0)
    painter.setClipRect(QRectF(margin, 0, scene_.Size().width() - margin, scene_.Size().height()), Qt::IntersectClip);
  for (const std::size_t batch : used_)
    if (!isNumber(batch)) FlushBatch(painter, batch);
  used_.clear();
  for (const StrangeCharacter& character : strange_) {
    const GlyphTable::Face& face = scene_.Glyphs().FaceOf(IsBold(character.batch));
    painter.setPen(ColourOfBatch(character.batch));
    if (face.control[character.byte]) {
      PaintMark(painter, character.place, face.advances[character.byte]);
      continue;
    }
    QFont font = scene_.Glyphs().Font();
    font.setBold(font.bold() || IsBold(character.batch));
    painter.setFont(font);
    painter.drawText(character.place, QString(QChar(static_cast<char16_t>(CodePointOf(character.byte)))));
  }
  strange_.clear();
  painter.restore();
}

// A character that no font can show, such as NUL: a small box.
void EditorPainter::PaintMark(QPainter& painter, const QPointF& place, double width) const {
  const double height = std::round(scene_.Glyphs().Ascent() * 0.6);
  painter.setPen(colours_.mark);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(std::floor(place.x()) + 1.5, std::floor(place.y() - height) + 0.5, std::max(2.0, std::floor(width) - 3), height));
}

}  // namespace morlan
