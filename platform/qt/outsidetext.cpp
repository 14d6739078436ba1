#include "platform/qt/outsidetext.h"

#include <QLatin1StringView>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr QLatin1StringView kCrLf("\r\n"), kLf("\n");

}  // namespace

std::string FromOutside(QString text) { return FromQt(text.replace(kCrLf, kLf).replace(kLf, kCrLf), Unmappable::NumericReference); }

QString ToOutside(std::string_view text) { return ToQt(text).replace(kCrLf, kLf); }

}  // namespace morlan
