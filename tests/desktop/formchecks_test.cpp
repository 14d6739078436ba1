// That the checks of dialogs find what they are there for.
#include "tests/desktop/support/formchecks.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "platform/forms/controls.h"

namespace morlan {
namespace {

class FormChecks : public testing::Test {
 protected:
  FormChecks() { dialog_.resize(400, 300); }
  // A control at a place of the dialog, which has no layout.
  template <class Widget>
  Widget& Put(const QRect& place, const char* name) {
    auto* widget = new Widget(&dialog_);
    widget->setGeometry(place);
    widget->setObjectName(QLatin1StringView(name));
    return *widget;
  }
  QLineEdit& Field(const QRect& place, const char* name) {
    auto& field = Put<QLineEdit>(place, name);
    field.setAccessibleName(QStringLiteral("Nazwa"));
    field.setToolTip(QStringLiteral("Nazwa"));
    return field;
  }
  QDialog& Shown() {
    dialog_.show();
    return dialog_;
  }
  QDialog dialog_;
};

TEST_F(FormChecks, ASoundDialogHasNoFindings) {
  Field({10, 10, 200, 26}, "pierwsze");
  Field({10, 50, 200, 26}, "drugie");
  auto& ok = Put<QPushButton>({10, 90, 90, 26}, "ok");
  ok.setText(QStringLiteral("&Ok"));
  QDialog& dialog = Shown();
  for (const auto check : {ClippedTexts, OverlappingControls, ControlsOutsideTheirParents, NamelessControls, DuplicateMnemonics, TooLarge,
                           OutOfReach, TabJumps, MissingToolTips})
    EXPECT_EQ(check(dialog), Findings());
}

TEST_F(FormChecks, ATextWithTooLittleRoomIsClipped) {
  Put<QLabel>({10, 10, 20, 20}, "napis").setText(QStringLiteral("Szerokość tabeli"));
  Put<QPushButton>({10, 40, 30, 26}, "przycisk").setText(QStringLiteral("Zastąp wszystkie"));
  Put<QCheckBox>({10, 80, 40, 26}, "pole").setText(QStringLiteral("Tylko całe wyrazy"));
  Put<QGroupBox>({10, 120, 40, 60}, "grupa").setTitle(QStringLiteral("Położenie tabeli"));
  Put<QComboBox>({10, 190, 60, 26}, "lista").addItem(QStringLiteral("W miejscu najbardziej dogodnym"));
  EXPECT_EQ(ClippedTexts(Shown()).size(), 5u);
}

TEST_F(FormChecks, ATitleWiderThanTheWindowIsClipped) {
  dialog_.setWindowTitle(QString(100, QLatin1Char('m')));
  EXPECT_EQ(ClippedTexts(Shown()), Findings{"the title is wider than the window"});
}

TEST_F(FormChecks, RowsThatAreScrolledMustFitInWidth) {
  auto& area = Put<QScrollArea>({10, 10, 100, 100}, "obszar");
  area.setWidget(new QWidget);
  area.setWidgetResizable(true);
  auto* column = new QVBoxLayout(area.widget());
  auto* wide = new QLineEdit;
  wide->setMinimumWidth(200);
  column->addWidget(wide);
  EXPECT_EQ(ClippedTexts(Shown()), Findings{"rows that are scrolled are cut off at the right"});
}

TEST_F(FormChecks, ControlsMayTouchButNotOverlap) {
  Field({10, 10, 100, 26}, "a");
  Field({110, 10, 100, 26}, "b");
  Field({100, 30, 100, 26}, "c");
  EXPECT_EQ(OverlappingControls(Shown()), (Findings{"a overlaps c", "b overlaps c"}));
}

TEST_F(FormChecks, AControlMustLieWithinItsParent) {
  Field({350, 10, 100, 26}, "a");
  EXPECT_EQ(ControlsOutsideTheirParents(Shown()), Findings{"a reaches out of its parent"});
}

TEST_F(FormChecks, ASignIsNoNameAndNoExplanation) {
  Put<QPushButton>({10, 10, 30, 26}, "plik").setText(QStringLiteral("..."));
  Put<QLineEdit>({10, 40, 100, 26}, "pole");
  EXPECT_EQ(NamelessControls(Shown()), (Findings{"plik has no accessible name", "pole has no accessible name"}));
  EXPECT_EQ(MissingToolTips(dialog_), (Findings{"plik has no tool tip", "pole has no tool tip"}));
}

TEST_F(FormChecks, AMnemonicOfAHiddenOrDisabledControlIsFree) {
  Put<QPushButton>({10, 10, 90, 26}, "a").setText(QStringLiteral("&Ok"));
  Put<QCheckBox>({10, 40, 90, 26}, "b").setText(QStringLiteral("&Opis"));
  Put<QCheckBox>({10, 70, 90, 26}, "c").setText(QStringLiteral("Rz&ąd"));
  EXPECT_EQ(DuplicateMnemonics(Shown()), Findings{"Alt+O of b is that of a"});
  dialog_.findChild<QCheckBox*>(QStringLiteral("b"))->setEnabled(false);
  EXPECT_EQ(DuplicateMnemonics(dialog_), Findings());
}

TEST_F(FormChecks, ADialogMustFitOnASmallScreen) {
  dialog_.resize(1270, 300);
  EXPECT_EQ(TooLarge(Shown()), Findings{"it takes 1270 by 300"});
}

TEST_F(FormChecks, AFormNeedsAButtonForEnterAndOneForEsc) {
  Form form("f", "F");
  Button ok(form, "ok", "&Ok");
  EXPECT_EQ(MissingButtons(form).size(), 2u);
  form.defaultButton = form.cancelButton = &ok;
  EXPECT_EQ(MissingButtons(form), Findings());
}

TEST_F(FormChecks, WhatOnlyTheMouseReachesIsOutOfReach) {
  Field({10, 10, 100, 26}, "a");
  Field({10, 50, 100, 26}, "b").setFocusPolicy(Qt::ClickFocus);
  Field({10, 90, 100, 26}, "c");
  EXPECT_EQ(OutOfReach(Shown()), Findings{"b is not reached by Tab"});
}

TEST_F(FormChecks, TabMayGoToTheNextColumnButNotBack) {
  auto& a = Field({10, 10, 100, 26}, "a");
  auto& b = Field({10, 50, 100, 26}, "b");
  auto& c = Field({150, 10, 100, 26}, "c");
  EXPECT_EQ(TabJumps(Shown()), Findings());
  QWidget::setTabOrder(&b, &a);
  QWidget::setTabOrder(&a, &c);
  EXPECT_EQ(TabJumps(dialog_), Findings{"Tab jumps from b to a"});
}

}  // namespace
}  // namespace morlan
