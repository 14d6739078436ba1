#include "platform/qt/glyphtable.h"

#include <QFontMetricsF>
#include <QString>
#include <algorithm>
#include <cmath>

#include "platform/encoding.h"

namespace morlan {
namespace {

QChar CharacterOf(std::size_t byte) { return QChar(static_cast<char16_t>(CodePointOf(static_cast<unsigned char>(byte)))); }

bool IsControl(QChar character) { return character.category() == QChar::Other_Control; }

// The printable characters of ASCII are all equally wide.
bool HasOneWidth(const GlyphTable::Face& face) {
  const double width = face.advances[' '];
  return std::all_of(face.advances.begin() + ' ', face.advances.begin() + 0x7F,
                     [&](double other) { return std::abs(other - width) < 0.01; });
}

}  // namespace

GlyphTable::GlyphTable(const QFont& font, double devicePixelRatio) : font_(font), ratio_(devicePixelRatio) {
  const QFontMetricsF metrics(font_);
  ascent_ = std::round(metrics.ascent() * ratio_) / ratio_;
  rowHeight_ = std::max(1.0, std::ceil((metrics.ascent() + metrics.descent() + std::max(1.0, metrics.leading())) * ratio_) / ratio_);
  normal_ = MakeFace(font_);
  uniform_ = HasOneWidth(normal_);
  cellWidth_ = normal_.advances[uniform_ ? ' ' : '0'];
  if (!uniform_) return;
  cellWidth_ = std::max(1.0, std::round(cellWidth_ * ratio_)) / ratio_;
  normal_.advances.fill(cellWidth_);
}

const GlyphTable::Face& GlyphTable::Bold() const {
  if (bold_) return *bold_;
  QFont font = font_;
  font.setBold(true);
  bold_ = std::make_unique<Face>(MakeFace(font));
  if (uniform_) bold_->advances.fill(cellWidth_);
  return *bold_;
}

GlyphTable::Face GlyphTable::MakeFace(const QFont& font) const {
  Face face;
  face.font = QRawFont::fromFont(font);
  QString all;
  for (std::size_t byte = 0; byte < 256; ++byte) all.append(CharacterOf(byte));
  const QList<quint32> glyphs = face.font.glyphIndexesForString(all);
  const QList<QPointF> advances = face.font.advancesForGlyphIndexes(glyphs);
  const QFontMetricsF metrics(font);
  for (std::size_t byte = 0; byte < 256; ++byte) {
    const auto index = static_cast<qsizetype>(byte);
    const bool known = index < glyphs.size() && glyphs[index] != 0;
    face.control[byte] = IsControl(all[index]);
    face.missing[byte] = !known && !face.control[byte];
    face.glyphs[byte] = known ? glyphs[index] : 0;
    const double advance =
        known && !face.control[byte] ? advances[index].x() : metrics.horizontalAdvance(face.control[byte] ? QChar(u'x') : all[index]);
    face.advances[byte] = std::max(1.0, advance);
  }
  return face;
}

}  // namespace morlan
