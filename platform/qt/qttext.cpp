#include "platform/qt/qttext.h"

namespace morlan {

QString ToQt(std::string_view text) {
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* to = result.data();
  for (const char character : text) *to++ = QChar(static_cast<char16_t>(CodePointOf(static_cast<unsigned char>(character))));
  return result;
}

std::string FromQt(const QString& text, Unmappable unmappable) {
  const QByteArray utf8 = text.toUtf8();
  return FromUtf8({utf8.constData(), static_cast<std::size_t>(utf8.size())}, unmappable);
}

QString WithoutMnemonic(const QString& caption) {
  QString result;
  result.reserve(caption.size());
  for (qsizetype i = 0; i < caption.size(); ++i) {
    if (caption[i] == u'&' && ++i == caption.size()) break;
    result += caption[i];
  }
  return result;
}

}  // namespace morlan
