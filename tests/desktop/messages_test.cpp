#include "platform/qt/messages.h"

#include <QLineEdit>

#include "core/text.h"
#include "platform/qt/qttext.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

struct Row {
  Buttons buttons;
  QStringList captions;
  Answer escape;
};

TEST(Messages, HavePolishButtonsAndAnAnswerToEscape) {
  const Row rows[] = {
      {Buttons::Ok, {QStringLiteral("Ok")}, Answer::Ok},
      {Buttons::YesNo, {QStringLiteral("Tak"), QStringLiteral("Nie")}, Answer::No},
      {Buttons::YesNoCancel, {QStringLiteral("Tak"), QStringLiteral("Nie"), QStringLiteral("Anuluj")}, Answer::Cancel},
      {Buttons::OkCancel, {QStringLiteral("Ok"), QStringLiteral("Anuluj")}, Answer::Cancel},
      {Buttons::RetryCancel, {QStringLiteral("Ponów"), QStringLiteral("Anuluj")}, Answer::Cancel},
      {Buttons::AbortRetryIgnore, {QStringLiteral("Przerwij"), QStringLiteral("Ponów"), QStringLiteral("Ignoruj")}, Answer::Abort},
  };
  for (const Row& row : rows) {
    InNextModal([&row](QWidget& modal) {
      QStringList captions;
      for (const QPushButton* button : modal.findChildren<QPushButton*>()) captions += WithoutMnemonic(button->text());
      captions.sort();
      QStringList wanted = row.captions;
      wanted.sort();
      EXPECT_EQ(captions, wanted);
      PressIn(modal, Qt::Key_Escape);
    });
    EXPECT_EQ(AskMessage({.text = "?", .icon = Icon::Question, .buttons = row.buttons}, nullptr), row.escape);
  }
}

TEST(Messages, TellWhichButtonWasPressed) {
  AnswerNext(QStringLiteral("Ignoruj"));
  EXPECT_EQ(AskMessage({.text = "?", .buttons = Buttons::AbortRetryIgnore}, nullptr), Answer::Ignore);
  AnswerNext(QStringLiteral("Tak"));
  EXPECT_EQ(AskMessage({.text = "?", .buttons = Buttons::YesNo}, nullptr), Answer::Yes);
}

TEST(Messages, TheInputBoxHasRoomForItsTitleAndForAPath) {
  InNextModal([](QWidget& modal) {
    const QString path = QStringLiteral("/home/ala/strony/rodzina/zdjecia.html");
    EXPECT_GE(modal.findChild<QLineEdit*>()->width(), modal.fontMetrics().horizontalAdvance(path));
    PressIn(modal, Qt::Key_Escape);
  });
  AskInput("?", "Krótko"_pl, "", nullptr);
}

TEST(Messages, TheInputBoxGivesTheTextOrNothing) {
  InNextModal([](QWidget& modal) {
    EXPECT_EQ(modal.windowTitle(), QStringLiteral("Tytuł"));
    auto* field = modal.findChild<QLineEdit*>();
    EXPECT_EQ(field->text(), QStringLiteral("stary"));
    field->setText(QStringLiteral("żółw"));
    PressIn(*field, Qt::Key_Return);
  });
  EXPECT_EQ(AskInput("Pytanie", "Tytuł"_pl, "stary", nullptr), std::optional<std::string>("żółw"_pl));
  InNextModal([](QWidget& modal) { PressIn(modal, Qt::Key_Escape); });
  EXPECT_EQ(AskInput("Pytanie", "Tytuł"_pl, "", nullptr), std::nullopt);
}

}  // namespace
}  // namespace morlan
