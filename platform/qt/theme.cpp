#include "platform/qt/theme.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <QPalette>
#include <array>
#include <utility>

namespace morlan {
namespace {

const QString kSchemeChoice = QStringLiteral("Theme");
const QString kDesktopChoice = QStringLiteral("DesktopScheme");
constexpr std::array<const char*, 3> kSchemeNames = {"system", "light", "dark"};

struct RoleColour {
  QPalette::ColorRole role;
  QRgb light, dark;
};

constexpr RoleColour kRoles[] = {
    {QPalette::Window, 0xf3f4f6, 0x25272b},
    {QPalette::WindowText, 0x23272e, 0xe3e5e8},
    {QPalette::Base, 0xffffff, 0x1c1e21},
    {QPalette::AlternateBase, 0xf6f7f9, 0x222428},
    {QPalette::Text, 0x1d2127, 0xe3e5e8},
    {QPalette::PlaceholderText, 0x8a9099, 0x7d838c},
    {QPalette::Button, 0xf3f4f6, 0x303338},
    {QPalette::ButtonText, 0x23272e, 0xe3e5e8},
    {QPalette::BrightText, 0xffffff, 0xffffff},
    {QPalette::ToolTipBase, 0xffffff, 0x35383e},
    {QPalette::ToolTipText, 0x23272e, 0xe3e5e8},
    {QPalette::Highlight, 0x2f6fd0, 0x3569b8},
    {QPalette::HighlightedText, 0xffffff, 0xffffff},
    {QPalette::Link, 0x2f6fd0, 0x78adff},
    {QPalette::LinkVisited, 0x7a4fb5, 0xb79bea},
    {QPalette::Light, 0xffffff, 0x3a3d43},
    {QPalette::Midlight, 0xe8eaee, 0x34373c},
    {QPalette::Mid, 0xc9cdd4, 0x45494f},
    {QPalette::Dark, 0xa9afb8, 0x17181b},
    {QPalette::Shadow, 0x6f757e, 0x0f1012},
};
constexpr QPalette::ColorRole kFadedRoles[] = {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText};
constexpr QRgb kFadedLight = 0xa0a5ad, kFadedDark = 0x6c727a;

QPalette PaletteOf(bool dark) {
  QPalette palette;
  for (const RoleColour& row : kRoles) palette.setColor(row.role, QColor(dark ? row.dark : row.light));
  for (const QPalette::ColorRole role : kFadedRoles) palette.setColor(QPalette::Disabled, role, QColor(dark ? kFadedDark : kFadedLight));
  palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(dark ? 0x3a3d43 : 0xd5d8dd));
  return palette;
}

// A bus is only asked where one runs: connecting must never start one.
bool SessionBusRuns() {
  if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFile::exists(folder + QStringLiteral("/bus"));
}

// 1 is dark, 2 is light, 0 no preference. The answer is a number in up to two wrappings.
uint SchemeIn(QVariant answer) {
  for (int depth = 0; depth < 3 && answer.canConvert<QDBusVariant>(); ++depth) answer = answer.value<QDBusVariant>().variant();
  return answer.toUInt();
}

}  // namespace

Theme::Theme(WindowPlaces& places) : places_(places) {
  const QString name = places.Choice(kSchemeChoice);
  for (std::size_t i = 0; i < kSchemeNames.size(); ++i)
    if (name == QLatin1StringView(kSchemeNames[i])) chosen_ = static_cast<Scheme>(i);
  const QString desktop = places.Choice(kDesktopChoice);
  desktopIsDark_ =
      desktop.isEmpty() ? QGuiApplication::palette().color(QPalette::Window).lightness() < 128 : desktop == QStringLiteral("dark");
  Apply();
}

void Theme::Choose(Scheme scheme) {
  chosen_ = scheme;
  places_.KeepChoice(kSchemeChoice, QLatin1StringView(kSchemeNames[static_cast<std::size_t>(scheme)]));
  Apply();
  if (scheme == Scheme::System) FollowDesktop();
}

void Theme::Apply() {
  const bool dark = chosen_ == Scheme::Dark || (chosen_ == Scheme::System && desktopIsDark_);
  QApplication::setPalette(PaletteOf(dark));
}

void Theme::FollowDesktop() {
  if (chosen_ != Scheme::System || !SessionBusRuns()) return;
  QDBusMessage question =
      QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
                                     QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
  question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
  auto* watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), &context_);
  QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &context_, [this](QDBusPendingCallWatcher* answered) {
    answered->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *answered;
    if (reply.isError()) return;
    const uint scheme = SchemeIn(reply.value().variant());
    const bool dark = scheme == 1;
    if (scheme == 0 || dark == desktopIsDark_) return;
    desktopIsDark_ = dark;
    places_.KeepChoice(kDesktopChoice, dark ? QStringLiteral("dark") : QStringLiteral("light"));
    if (chosen_ == Scheme::System) Apply();
  });
}

}  // namespace morlan
