#include "platform/qt/qtclipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "platform/qt/qttext.h"

namespace morlan {

std::optional<std::string> QtClipboard::Text() {
  const QClipboard& clipboard = *QGuiApplication::clipboard();
  const QMimeData* data = clipboard.mimeData();
  if (!data || !data->hasText()) return std::nullopt;
  QString outside = data->text();
  if (outside == outside_) return text_;
  outside_ = outside;
  outside.replace(QLatin1StringView("\r\n"), QLatin1StringView("\n")).replace(QLatin1Char('\n'), QLatin1StringView("\r\n"));
  text_ = FromQt(outside, Unmappable::NumericReference);
  return text_;
}

void QtClipboard::SetText(std::string_view text) {
  if (text != text_ || outside_.isEmpty()) {
    text_ = text;
    outside_ = ToQt(text).replace(QLatin1StringView("\r\n"), QLatin1StringView("\n"));
  }
  QGuiApplication::clipboard()->setText(outside_);
}

}  // namespace morlan
