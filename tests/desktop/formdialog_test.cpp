#include "platform/qt/formdialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QTableView>

#include "core/text.h"
#include "platform/qt/flattabbar.h"
#include "platform/qt/qtwindows.h"
#include "tests/desktop/support/desktopfixture.h"
#include "tests/support/trialform.h"

namespace morlan {
namespace {

class FormDialogTest : public DesktopTest {
 protected:
  FormDialogTest() {
    using namespace layout;
    form.layout = Rows(Single(form.opis), Field("&Nazwa", form.nazwa), Field("Treść"_pl, form.tresc), Field("&Wybór"_pl, form.wybor),
                       Field("Adres", form.adres, &form.nieczynny), Columns(Single(form.lista), Single(form.wiele)),
                       Group("Strona", Single(form.lewa), Single(form.prawa), Single(form.duze)), Field("Licznik", form.licznik),
                       Single(form.siatka), Single(form.karty), Single(form.pasek), Single(form.obraz), Single(form.ukryty),
                       ButtonRow(form.Command3, form.Command2, form.Command1));
  }
  static Layout Single(Control& control) { return {control}; }
  // Opens the form and does something in it; it must be closed by that.
  void Open(std::function<void(QWidget&)> act) {
    InNextModal(std::move(act));
    program.platform.windows.ShowModal(form);
  }
  void OpenAndLeave(const std::function<void(QWidget&)>& act) {
    Open([act](QWidget& modal) {
      act(modal);
      PressIn(modal, Qt::Key_Escape);
    });
  }

  TrialForm form{program};
};

TEST_F(FormDialogTest, ShowsTheValuesOfTheForm) {
  form.lista.SetListIndex(1);
  form.wybor.SetListIndex(2);
  form.siatka.SetCell(1, 2, "komórka"_pl);
  OpenAndLeave([this](QWidget& modal) {
    EXPECT_EQ(modal.windowTitle(), QStringLiteral("Próba"));
    EXPECT_EQ(Named<QLabel>(modal, "opis").text(), QStringLiteral("Opis"));
    EXPECT_EQ(Named<QLineEdit>(modal, "nazwa").text(), QStringLiteral("abc"));
    EXPECT_EQ(Named<QComboBox>(modal, "wybor").currentText(), QStringLiteral("trzy"));
    EXPECT_EQ(Named<QListView>(modal, "lista").currentIndex().row(), 1);
    EXPECT_TRUE(Named<QRadioButton>(modal, "lewa").isChecked());
    EXPECT_EQ(Named<QSpinBox>(modal, "licznik").value(), 3);
    EXPECT_EQ(Named<QTableView>(modal, "siatka").model()->index(2, 1).data().toString(), QStringLiteral("komórka"));
    EXPECT_EQ(Named<FlatTabBar>(modal, "karty").count(), 2);
    EXPECT_FALSE(Named<QPushButton>(modal, "ukryty").isVisible());
    EXPECT_FALSE(Named<QPushButton>(modal, "nieczynny").isEnabled());
    EXPECT_TRUE(Named<QPushButton>(modal, "Command2").isDefault());
    EXPECT_EQ(Named<QLineEdit>(modal, "nazwa").accessibleName(), QStringLiteral("Nazwa"));
    EXPECT_TRUE(form.IsVisible());
  });
  EXPECT_FALSE(form.IsVisible());
  EXPECT_EQ(form.View(), nullptr);
}

TEST_F(FormDialogTest, TheUsersChangesReachTheForm) {
  OpenAndLeave([](QWidget& modal) {
    auto& name = Named<QLineEdit>(modal, "nazwa");
    name.selectAll();
    TypeIn(name, QStringLiteral("żab"));
    Named<QPlainTextEdit>(modal, "tresc").setPlainText(QStringLiteral("a\nb"));
    PressIn(Named<QComboBox>(modal, "wybor"), Qt::Key_Down);
    PressIn(Named<QListView>(modal, "lista"), Qt::Key_Down);
    Named<QCheckBox>(modal, "duze").click();
    Named<QRadioButton>(modal, "prawa").click();
    Named<QSpinBox>(modal, "licznik").setValue(7);
    Named<FlatTabBar>(modal, "karty").setCurrentIndex(1);
    Named<QToolButton>(modal, "bold").click();
    auto& grid = Named<QTableView>(modal, "siatka");
    grid.setCurrentIndex(grid.model()->index(1, 1));
    grid.model()->setData(grid.model()->index(1, 1), QStringLiteral("x"));
  });
  EXPECT_EQ(form.nazwa.Text(), "żab"_pl);
  EXPECT_EQ(form.tresc.Text(), "a\r\nb");
  EXPECT_EQ(form.wybor.Text(), "jeden");
  EXPECT_EQ(form.lista.SelectedRow(), "Ala");
  EXPECT_TRUE(form.duze.Value());
  EXPECT_TRUE(form.prawa.Value());
  EXPECT_FALSE(form.lewa.Value());
  EXPECT_EQ(form.licznik.Value(), 7);
  EXPECT_EQ(form.karty.Selected(), 1);
  EXPECT_EQ(form.siatka.Cell(1, 1), "x");
  EXPECT_NE(std::find(form.events.begin(), form.events.end(), "pasek bold"), form.events.end());
}

TEST_F(FormDialogTest, ACharacterThatTheProgramLacksBecomesAQuestionMark) {
  OpenAndLeave([](QWidget& modal) {
    auto& name = Named<QLineEdit>(modal, "nazwa");
    name.selectAll();
    TypeIn(name, QStringLiteral("π"));
    EXPECT_EQ(name.text(), QStringLiteral("?"));
  });
  EXPECT_EQ(form.nazwa.Text(), "?");
}

TEST_F(FormDialogTest, TheProgramsChangesReachTheScreen) {
  OpenAndLeave([this](QWidget& modal) {
    form.nazwa.SetText("nowa");
    form.lista.AddItem("czwarty");
    form.lista.SetListIndex(3);
    form.adres.SetText("c.html");
    form.wiele.SetSelected(0, true);
    form.wiele.SetSelected(2, true);
    form.duze.SetValue(true);
    form.prawa.SetValue(true);
    form.siatka.SetSize(3, 4);
    form.ukryty.SetVisible(true);
    form.nieczynny.SetEnabled(true);
    form.Command2.SetCaption("&Gotowe");
    form.SetCaption("Inna");
    Settle();
    EXPECT_EQ(Named<QLineEdit>(modal, "nazwa").text(), QStringLiteral("nowa"));
    EXPECT_EQ(Named<QListView>(modal, "lista").model()->rowCount(), 4);
    EXPECT_EQ(Named<QListView>(modal, "lista").currentIndex().row(), 3);
    EXPECT_EQ(Named<QComboBox>(modal, "adres").currentText(), QStringLiteral("c.html"));
    EXPECT_EQ(Named<QListView>(modal, "wiele").selectionModel()->selectedIndexes().size(), 2);
    EXPECT_TRUE(Named<QCheckBox>(modal, "duze").isChecked());
    EXPECT_TRUE(Named<QRadioButton>(modal, "prawa").isChecked());
    EXPECT_FALSE(Named<QRadioButton>(modal, "lewa").isChecked());
    EXPECT_EQ(Named<QTableView>(modal, "siatka").model()->columnCount(), 3);
    EXPECT_TRUE(Named<QPushButton>(modal, "ukryty").isVisible());
    EXPECT_TRUE(Named<QPushButton>(modal, "nieczynny").isEnabled());
    EXPECT_EQ(Named<QPushButton>(modal, "Command2").text(), QStringLiteral("&Gotowe"));
    EXPECT_EQ(modal.windowTitle(), QStringLiteral("Inna"));
  });
  // What the program sets raises no event.
  EXPECT_EQ(std::find(form.events.begin(), form.events.end(), "lista czwarty"), form.events.end());
}

TEST_F(FormDialogTest, EnterPressesTheDefaultButton) {
  Open([](QWidget& modal) { PressIn(Named<QLineEdit>(modal, "nazwa"), Qt::Key_Return); });
  EXPECT_EQ(std::count(form.events.begin(), form.events.end(), "ok"), 1);
}

TEST_F(FormDialogTest, EscapeAndTheCloseButtonPressTheCancelButton) {
  Open([](QWidget& modal) { PressIn(modal, Qt::Key_Escape); });
  Open([](QWidget& modal) { modal.close(); });
  EXPECT_EQ(std::count(form.events.begin(), form.events.end(), "ok"), 0);
}

TEST_F(FormDialogTest, EnterInAListDoesWhatADoubleClickDoes) {
  form.lista.SetListIndex(0);
  OpenAndLeave([this](QWidget& modal) {
    PressIn(Named<QListView>(modal, "lista"), Qt::Key_Return);
    EXPECT_TRUE(form.IsVisible());
  });
  EXPECT_NE(std::find(form.events.begin(), form.events.end(), "lista dbl"), form.events.end());
}

TEST_F(FormDialogTest, ASwallowedKeyGoesNoFurther) {
  OpenAndLeave([](QWidget& modal) {
    QKeyEvent help(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    help.ignore();
    QApplication::sendEvent(&Named<QLineEdit>(modal, "nazwa"), &help);
    EXPECT_TRUE(help.isAccepted());
  });
}

TEST_F(FormDialogTest, ThePictureTellsWhereTheMouseIs) {
  OpenAndLeave([](QWidget& modal) { ClickAt(Named<QWidget>(modal, "obraz"), QPoint(10, 20)); });
  EXPECT_NE(std::find(form.events.begin(), form.events.end(), "down 10,20"), form.events.end());
  EXPECT_NE(std::find(form.events.begin(), form.events.end(), "up 10,20"), form.events.end());
}

TEST_F(FormDialogTest, LabelsOfFieldsThatFollowEachOtherLineUp) {
  OpenAndLeave([](QWidget& modal) {
    const QWidget &first = Named<QWidget>(modal, "wybor"), &second = Named<QWidget>(modal, "adres");
    EXPECT_EQ(first.mapTo(&modal, QPoint()).x(), second.mapTo(&modal, QPoint()).x());
    int buddies = 0;
    for (const QLabel* label : modal.findChildren<QLabel*>()) buddies += label->buddy() == &first;
    EXPECT_EQ(buddies, 1);
  });
}

TEST_F(FormDialogTest, ALabelThatTheLayoutLeavesOpenFollowsTheCaption) {
  form.nazwa.SetCaption("&Imię"_pl);
  form.layout = layout::Rows(layout::Field("", form.nazwa), layout::Field("Adres", form.adres));
  OpenAndLeave([this](QWidget& modal) {
    const auto& name = Named<QLineEdit>(modal, "nazwa");
    const auto labels = [&] {
      QStringList texts;
      for (const QLabel* label : modal.findChildren<QLabel*>()) texts += label->text();
      return texts.join(QLatin1Char(' '));
    };
    EXPECT_EQ(labels(), QStringLiteral("&Imię Adres"));
    form.nazwa.SetCaption("Nazwis&ko");
    form.adres.SetCaption("Ulica");
    EXPECT_EQ(labels(), QStringLiteral("Nazwis&ko Adres"));
    EXPECT_EQ(name.accessibleName(), QStringLiteral("Nazwisko"));
  });
}

TEST_F(FormDialogTest, TabGoesThroughTheControlsAsOneReadsAndToTheChosenOption) {
  OpenAndLeave([](QWidget& modal) {
    const char* order[] = {"nazwa", "tresc", "wybor", "adres", "lista", "wiele", "lewa", "duze", "licznik"};
    Named<QWidget>(modal, order[0]).setFocus();
    for (const char* name : order) {
      ASSERT_NE(modal.focusWidget(), nullptr);
      EXPECT_EQ(modal.focusWidget()->objectName(), QLatin1StringView(name));
      PressIn(*modal.focusWidget(), Qt::Key_Tab);
    }
  });
}

TEST_F(FormDialogTest, AQuestionInsideADialogIsAnsweredThere) {
  OpenAndLeave([](QWidget& modal) {
    AnswerNext(QStringLiteral("Nie"));
    Named<QPushButton>(modal, "Command3").click();
  });
  EXPECT_NE(std::find(form.events.begin(), form.events.end(), "nie"), form.events.end());
}

TEST_F(FormDialogTest, AFormThatHidesItselfWhileLoadingIsNeverShown) {
  form.OnLoad = [this] { form.Hide(); };
  program.platform.windows.ShowModal(form);
  EXPECT_FALSE(form.IsVisible());
}

TEST_F(FormDialogTest, AFormBesideTheWindowLetsTheProgramGoOn) {
  program.platform.windows.Show(form);
  EXPECT_TRUE(form.IsVisible());
  form.Hide();
  EXPECT_EQ(form.View() == nullptr || !form.IsVisible(), true);
  Settle();
  program.platform.windows.Show(form);
  EXPECT_TRUE(form.IsVisible());
  form.Hide();
}

TEST_F(FormDialogTest, TimersTickWhileTheFormIsUp) {
  int ticks = 0;
  form.zegar.OnTimer = [&ticks] { ++ticks; };
  form.zegar.SetInterval(5);
  OpenAndLeave([this, &ticks](QWidget&) {
    form.zegar.SetEnabled(true);
    EXPECT_TRUE(WaitFor([&ticks] { return ticks >= 2; }));
    form.zegar.SetEnabled(false);
  });
}

TEST_F(FormDialogTest, TheSizeIsRemembered) {
  OpenAndLeave([](QWidget& modal) { modal.resize(700, 900); });
  OpenAndLeave([](QWidget& modal) { EXPECT_EQ(modal.width(), 700); });
}

}  // namespace
}  // namespace morlan
