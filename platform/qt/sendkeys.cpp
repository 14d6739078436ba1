#include "platform/qt/sendkeys.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>

#include "core/text.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

struct NamedKey {
  std::string_view name;
  Qt::Key key;
};

constexpr NamedKey kNamedKeys[] = {
    {"BACKSPACE", Qt::Key_Backspace},
    {"BS", Qt::Key_Backspace},
    {"BKSP", Qt::Key_Backspace},
    {"BREAK", Qt::Key_Pause},
    {"CAPSLOCK", Qt::Key_CapsLock},
    {"DELETE", Qt::Key_Delete},
    {"DEL", Qt::Key_Delete},
    {"DOWN", Qt::Key_Down},
    {"END", Qt::Key_End},
    {"ENTER", Qt::Key_Return},
    {"ESC", Qt::Key_Escape},
    {"HELP", Qt::Key_Help},
    {"HOME", Qt::Key_Home},
    {"INSERT", Qt::Key_Insert},
    {"INS", Qt::Key_Insert},
    {"LEFT", Qt::Key_Left},
    {"PGDN", Qt::Key_PageDown},
    {"PGUP", Qt::Key_PageUp},
    {"PRTSC", Qt::Key_Print},
    {"RIGHT", Qt::Key_Right},
    {"TAB", Qt::Key_Tab},
    {"UP", Qt::Key_Up},
};
constexpr int kFunctionKeys = 16, kMostRepeats = 1000;

struct Stroke {
  int key = 0;
  QString text;
};

Stroke StrokeOfCharacter(char character) {
  const QString text = ToQt({&character, 1});
  return {text.toUpper().front().unicode(), text};
}

Stroke StrokeOfName(std::string_view name) {
  if (name.size() == 1) return StrokeOfCharacter(name.front());
  for (const NamedKey& named : kNamedKeys)
    if (EqualNoCase(named.name, name)) return {named.key, {}};
  const std::int32_t number = EqualNoCase(name.substr(0, 1), "F") ? LeadingInteger(name.substr(1)) : 0;
  return number >= 1 && number <= kFunctionKeys ? Stroke{Qt::Key_F1 + number - 1, {}} : Stroke{};
}

void Post(QWidget& widget, const Stroke& stroke, Qt::KeyboardModifiers modifiers) {
  if (stroke.key == 0) return;
  const QString text = modifiers & (Qt::ControlModifier | Qt::AltModifier) ? QString() : stroke.text;
  QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyPress, stroke.key, modifiers, text));
  QCoreApplication::postEvent(&widget, new QKeyEvent(QEvent::KeyRelease, stroke.key, modifiers, text));
}

Qt::KeyboardModifiers ModifierOf(char sign) {
  return sign == '^' ? Qt::ControlModifier : sign == '%' ? Qt::AltModifier : sign == '+' ? Qt::ShiftModifier : Qt::NoModifier;
}

// Sends what stands in braces at the front of the text and gives back what follows them.
std::string_view PostBraced(std::string_view keys, QWidget& widget, Qt::KeyboardModifiers modifiers) {
  const std::size_t end = keys.find('}', 2);
  if (end == std::string_view::npos) return {};
  const std::string_view inside = keys.substr(1, end - 1);
  const std::size_t blank = inside.find(' ', 1);
  const int times =
      blank == std::string_view::npos ? 1 : std::clamp(static_cast<int>(LeadingInteger(inside.substr(blank))), 0, kMostRepeats);
  for (int i = 0; i < times; ++i) Post(widget, StrokeOfName(inside.substr(0, blank)), modifiers);
  return keys.substr(end + 1);
}

}  // namespace

void PostKeys(std::string_view keys, QWidget& widget) {
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  while (!keys.empty()) {
    if (const Qt::KeyboardModifiers more = ModifierOf(keys.front())) {
      modifiers |= more;
      keys.remove_prefix(1);
      continue;
    }
    if (keys.front() == '{') {
      keys = PostBraced(keys, widget, modifiers);
    } else {
      Post(widget, keys.front() == '~' ? StrokeOfName("ENTER") : StrokeOfCharacter(keys.front()), modifiers);
      keys.remove_prefix(1);
    }
    modifiers = Qt::NoModifier;
  }
}

}  // namespace morlan
