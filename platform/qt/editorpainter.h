// Paints the visible rows of a text straight from its model.
#pragma once

#include <QColor>
#include <QPainter>
#include <QPalette>
#include <QPointF>
#include <QRectF>
#include <array>
#include <cstddef>
#include <vector>

#include "platform/colour.h"
#include "platform/qt/editorscene.h"

namespace morlan {

struct EditorColours {
  Colour base = 0;
  QColor background, currentLine, selection, selectedText, margin, marginText, marginCurrent, mark, caret;
  static EditorColours From(const QPalette& palette);
};

// The glyphs of all rows are gathered by colour first, so that a whole page takes a handful of drawing calls.
class EditorPainter {
 public:
  explicit EditorPainter(EditorScene& scene) : scene_(scene), editor_(scene.Editor()) {}

  void SetColours(const EditorColours& colours);
  const EditorColours& Colours() const { return colours_; }
  // Paints everything but the caret within the area.
  void Paint(QPainter& painter, const QRectF& area);
  // The colour in which a style is shown on the present background.
  const QColor& ShownColour(MlnEditor::Style style);

 private:
  // Glyphs that share one colour and one face.
  struct Batch {
    std::vector<quint32> glyphs;
    std::vector<QPointF> places;
  };
  struct StrangeCharacter {
    QPointF place;
    unsigned char byte;
    std::size_t batch;
  };
  struct ShownStyle {
    Colour model = 0;
    bool known = false;
    QColor shown;
  };
  // Numbers of batches: a style's own number, or one of these.
  static constexpr std::size_t kSelected = 256, kSelectedBold = 257, kNumbers = 258, kCurrentNumber = 259, kBatches = 260;

  void PaintRow(QPainter& painter, const RowSpan& row, double top, const QRectF& area);
  void PaintNumber(std::size_t line, double top);
  void Add(std::size_t batch, unsigned char byte, const QPointF& place);
  void Flush(QPainter& painter);
  void FlushBatch(QPainter& painter, std::size_t number);
  void PaintMark(QPainter& painter, const QPointF& place, double width) const;
  void PaintFontLines(QPainter& painter, double left, double right, double top);
  QColor ColourOfBatch(std::size_t batch);
  static bool IsBold(std::size_t batch) { return batch < kSelected ? (batch & MlnEditor::kBold) != 0 : batch == kSelectedBold; }

  EditorScene& scene_;
  const MlnEditor& editor_;
  EditorColours colours_;
  std::size_t currentLine_ = 0;
  std::array<Batch, kBatches> batches_;
  std::vector<std::size_t> used_;
  std::vector<StrangeCharacter> strange_;
  std::array<ShownStyle, 128> shown_;
};

}  // namespace morlan
