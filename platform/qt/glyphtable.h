// The glyphs and widths of all 256 characters of Windows-1250 in one font, looked up once, so that painting and
// measuring need no text shaping.
#pragma once

#include <QFont>
#include <QRawFont>
#include <array>
#include <bitset>
#include <memory>

namespace morlan {

class GlyphTable {
 public:
  struct Face {
    QRawFont font;
    std::array<quint32, 256> glyphs{};
    std::array<double, 256> advances{};  // in pixels of the widget, more than 0
    std::bitset<256> missing;            // the font has no glyph: another font must draw the character
    std::bitset<256> control;            // no printable character at all: a mark stands for it
  };

  // The ratio is that of device pixels to those of the widget; places of rows and cells fall on device pixels.
  GlyphTable(const QFont& font, double devicePixelRatio);

  const QFont& Font() const { return font_; }
  const Face& Normal() const { return normal_; }
  const Face& Bold() const;  // made on first use
  const Face& FaceOf(bool bold) const { return bold ? Bold() : normal_; }
  // All characters, bold or not, are CellWidth() wide.
  bool IsUniform() const { return uniform_; }
  double CellWidth() const { return cellWidth_; }  // of a column: tab stops lie 8 of them apart
  double TabWidth() const { return 8 * cellWidth_; }
  double RowHeight() const { return rowHeight_; }
  double Ascent() const { return ascent_; }  // from the top of a row to its base line

 private:
  Face MakeFace(const QFont& font) const;

  QFont font_;
  double ratio_;
  bool uniform_ = false;
  double cellWidth_ = 1, rowHeight_ = 1, ascent_ = 1;
  Face normal_;
  mutable std::unique_ptr<Face> bold_;
};

}  // namespace morlan
