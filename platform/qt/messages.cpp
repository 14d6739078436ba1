#include "platform/qt/messages.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <span>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

struct AnswerButton {
  Answer answer;
  const char16_t* caption;
  QMessageBox::ButtonRole role;
};

constexpr AnswerButton kOk = {Answer::Ok, u"Ok", QMessageBox::AcceptRole};
constexpr AnswerButton kCancel = {Answer::Cancel, u"&Anuluj", QMessageBox::RejectRole};
constexpr AnswerButton kYes = {Answer::Yes, u"&Tak", QMessageBox::YesRole};
constexpr AnswerButton kNo = {Answer::No, u"&Nie", QMessageBox::NoRole};
constexpr AnswerButton kAbort = {Answer::Abort, u"&Przerwij", QMessageBox::RejectRole};
constexpr AnswerButton kRetry = {Answer::Retry, u"P&onów", QMessageBox::AcceptRole};
constexpr AnswerButton kIgnore = {Answer::Ignore, u"&Ignoruj", QMessageBox::AcceptRole};

// The first button is the default one; `escape` is the place of the one that Esc presses.
struct ButtonSet {
  std::array<const AnswerButton*, 3> buttons;
  std::size_t count, escape;
};

ButtonSet SetOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::YesNo:
      return {{&kYes, &kNo}, 2, 1};
    case Buttons::YesNoCancel:
      return {{&kYes, &kNo, &kCancel}, 3, 2};
    case Buttons::OkCancel:
      return {{&kOk, &kCancel}, 2, 1};
    case Buttons::RetryCancel:
      return {{&kRetry, &kCancel}, 2, 1};
    case Buttons::AbortRetryIgnore:
      return {{&kAbort, &kRetry, &kIgnore}, 3, 0};
    case Buttons::Ok:
      break;
  }
  return {{&kOk}, 1, 0};
}

QMessageBox::Icon QtIcon(Icon icon) {
  switch (icon) {
    case Icon::Stop:
      return QMessageBox::Critical;
    case Icon::Question:
      return QMessageBox::Question;
    case Icon::Warning:
      return QMessageBox::Warning;
    case Icon::Information:
      return QMessageBox::Information;
    case Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

Answer AskMessage(const MessageRequest& request, QWidget* parent) {
  QMessageBox box(QtIcon(request.icon), ToQt(request.title), ToQt(request.text), QMessageBox::NoButton, parent);
  box.setTextFormat(Qt::PlainText);
  const ButtonSet set = SetOf(request.buttons);
  std::array<QPushButton*, 3> buttons = {};
  for (std::size_t i = 0; i < set.count; ++i) buttons[i] = box.addButton(QString::fromUtf16(set.buttons[i]->caption), set.buttons[i]->role);
  box.setDefaultButton(buttons[0]);
  box.setEscapeButton(buttons[set.escape]);
  box.exec();
  for (std::size_t i = 0; i < set.count; ++i)
    if (box.clickedButton() == buttons[i]) return set.buttons[i]->answer;
  return set.buttons[set.escape]->answer;
}

std::optional<std::string> AskInput(std::string_view prompt, std::string_view title, std::string_view text, QWidget* parent) {
  QInputDialog dialog(parent);
  dialog.setInputMode(QInputDialog::TextInput);
  dialog.setWindowTitle(ToQt(title));
  dialog.setLabelText(ToQt(prompt));
  dialog.setTextValue(ToQt(text));
  dialog.setOkButtonText(QStringLiteral("Ok"));
  dialog.setCancelButtonText(QStringLiteral("&Anuluj"));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return FromQt(dialog.textValue());
}

}  // namespace morlan
