#include "platform/qt/mnemonics.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace morlan {
namespace {

struct MovedRow {
  const char *caption, *taken, *moved;
};

TEST(Mnemonics, MoveToTheFirstFreeLetterOfAWordOrElseToAnyOtherPolishOnesLast) {
  constexpr MovedRow kRows[] = {
      {"&Użyj", "u", "Uż&yj"},
      {"&Użyj", "uyj", "U&żyj"},
      {"&Nowy plik", "n", "Nowy &plik"},
      {"&Nowy plik", "np", "N&owy plik"},
      {"&Tom && Ala", "t", "Tom && &Ala"},
      {"&Ala && Ola", "ao", "A&la && Ola"},
      {"&Ta", "ta", "Ta"},
  };
  for (const MovedRow& row : kRows) {
    QSet<QChar> taken;
    for (const QChar letter : QString::fromUtf8(row.taken)) taken.insert(letter);
    EXPECT_EQ(WithFreeMnemonic(QString::fromUtf8(row.caption), taken), QString::fromUtf8(row.moved)) << row.caption << " " << row.taken;
  }
}

struct Dialog : testing::Test {
  QWidget dialog;
  QPushButton* Button(QWidget* parent, const char* text) { return new QPushButton(QString::fromUtf8(text), parent); }
};

TEST_F(Dialog, LeavesALetterToTheFirstWhoHasIt) {
  auto* field = new QLineEdit(&dialog);
  auto* label = new QLabel(QStringLiteral("&Nazwa"), &dialog);
  label->setBuddy(field);
  const auto* second = Button(&dialog, "&Nowy");
  PartMnemonics(dialog);
  EXPECT_EQ(label->text(), QStringLiteral("&Nazwa"));
  EXPECT_EQ(second->text(), QStringLiteral("N&owy"));
}

TEST_F(Dialog, LetsPagesShareLettersButNotWithWhatStandsBesideThem) {
  auto* tabs = new QTabWidget(&dialog);
  auto *first = new QWidget, *other = new QWidget;
  tabs->addTab(first, QStringLiteral("1"));
  tabs->addTab(other, QStringLiteral("2"));
  const auto *one = Button(first, "&Dodaj"), *two = Button(other, "&Dodaj"), *three = Button(other, "&Opis"), *ok = Button(&dialog, "&Ok");
  PartMnemonics(dialog);
  EXPECT_EQ(one->text(), QStringLiteral("&Dodaj"));
  EXPECT_EQ(two->text(), QStringLiteral("&Dodaj"));
  EXPECT_EQ(three->text(), QStringLiteral("O&pis"));
  EXPECT_EQ(ok->text(), QStringLiteral("&Ok"));
}

TEST_F(Dialog, TakesNoLetterFromALabelThatLeadsNowhere) {
  new QLabel(QStringLiteral("&Opis"), &dialog);
  const auto* ok = Button(&dialog, "&Ok");
  PartMnemonics(dialog);
  EXPECT_EQ(ok->text(), QStringLiteral("&Ok"));
}

}  // namespace
}  // namespace morlan
