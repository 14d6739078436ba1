#include "platform/qt/messages.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPainter>
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

struct MessageSign {
  Icon icon;
  QRgb colour;
  char16_t sign;
};

constexpr MessageSign kSigns[] = {
    {Icon::Stop, 0xc93a3a, u'×'},
    {Icon::Question, 0x2f6fd0, u'?'},
    {Icon::Warning, 0xd18a1b, u'!'},
    {Icon::Information, 0x2f6fd0, u'i'},
};
constexpr int kSignSize = 36;
constexpr int kInputInCharacters = 56;

QPixmap PictureOf(const MessageSign& sign, qreal ratio) {
  QPixmap picture(QSize(kSignSize, kSignSize) * ratio);
  picture.setDevicePixelRatio(ratio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(sign.colour));
  painter.drawEllipse(QRectF(1, 1, kSignSize - 2, kSignSize - 2));
  QFont font = painter.font();
  font.setPixelSize(kSignSize * 2 / 3);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(QRectF(0, 0, kSignSize, kSignSize), Qt::AlignCenter, QString(QChar(sign.sign)));
  return picture;
}

}  // namespace

Answer AskMessage(const MessageRequest& request, QWidget* parent) {
  QMessageBox box(QMessageBox::NoIcon, ToQt(request.title), ToQt(request.text), QMessageBox::NoButton, parent);
  for (const MessageSign& sign : kSigns)
    if (sign.icon == request.icon) box.setIconPixmap(PictureOf(sign, box.devicePixelRatioF()));
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
  // Room for the title, and for a path.
  dialog.resize(dialog.sizeHint().expandedTo(QSize(dialog.fontMetrics().averageCharWidth() * kInputInCharacters, 0)));
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return FromQt(dialog.textValue());
}

}  // namespace morlan
