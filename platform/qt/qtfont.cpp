#include "platform/qt/qtfont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr int kAnySize = 10;

}  // namespace

QFont ToQtFont(const FontChoice& choice) {
  QFont font = choice.name.empty() ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : QFont(ToQt(choice.name));
  font.setStyleHint(QFont::Monospace);
  if (choice.size > 0) font.setPointSizeF(choice.size);
  font.setBold(choice.bold);
  font.setItalic(choice.italic);
  font.setUnderline(choice.underline);
  font.setStrikeOut(choice.strikeThrough);
  return font;
}

QFont WithStyleName(QFont font) {
  const QString family = font.family();
  for (const QString& style : QFontDatabase::styles(family)) {
    const QFont candidate = QFontDatabase::font(family, style, kAnySize);
    if (candidate.weight() != font.weight() || candidate.italic() != font.italic()) continue;
    font.setStyleName(style);
    return font;
  }
  return font;
}

FontChoice FromQtFont(const QFont& font) {
  const QString family = font.family();
  const double points = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
  return {FromQt(family.left(family.indexOf(QLatin1String(" [")))), points, font.bold(), font.italic(), font.underline(), font.strikeOut()};
}

}  // namespace morlan
