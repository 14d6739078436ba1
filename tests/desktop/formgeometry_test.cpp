// How a dialog shares its room among the parts of its layout.
#include "platform/qt/formgeometry.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>

#include "platform/qt/formdialog.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

struct GeometryForm : Form {
  TextBox dlugie{*this, "dlugie"}, krotkie{*this, "krotkie"};
  ComboBox slowo{*this, "slowo"}, wybor{*this, "wybor", ComboBox::Style::ListOnly};
  ListBox lista{*this, "lista"};
  OptionButton lewa{*this, "lewa", "Lewa", "strona"}, prawa{*this, "prawa", "Prawa", "strona", true};
  ColourBox kolor{*this, "kolor", "", RgbColour(200, 0, 0)};
  Button plik{*this, "plik", "..."}, Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};
  GeometryForm() : Form("GeometryForm", "Miejsce") {
    krotkie.WidthInCharacters = slowo.WidthInCharacters = 8;
    defaultButton = &Command2;
    cancelButton = &Command1;
    Command1.OnClick = [this] { Hide(); };
  }
};

class FormGeometry : public DesktopTest {
 protected:
  // Opens the form with a layout, at 600 by 500 pixels, and looks at it.
  void Look(Layout parts, const std::function<void(QWidget& modal)>& look) {
    form.layout = std::move(parts);
    InNextModal([look](QWidget& modal) {
      modal.resize(600, 500);
      Settle();
      look(modal);
      PressIn(modal, Qt::Key_Escape);
    });
    program.platform.windows.ShowModal(form);
  }
  static QRect PlaceOf(const QWidget& widget) { return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()}; }
  GeometryForm form;
};

TEST_F(FormGeometry, FieldsTakeTheWidthOfTheDialogAndFieldsForNumbersDoNot) {
  Look(layout::Rows(layout::Field("Długie"_pl, form.dlugie, &form.plik), layout::Field("Krótkie"_pl, form.krotkie),
                    layout::Field("Słowo"_pl, form.slowo)),
       [](QWidget& modal) {
         auto &wide = Named<QLineEdit>(modal, "dlugie"), &narrow = Named<QLineEdit>(modal, "krotkie");
         EXPECT_GT(wide.width(), 450);
         EXPECT_LT(narrow.width(), 120);
         EXPECT_LT(Named<QComboBox>(modal, "slowo").width(), 160);
         EXPECT_EQ(PlaceOf(narrow).left(), PlaceOf(wide).left());
       });
}

TEST_F(FormGeometry, FileButtonsAndColourSamplesStaySmall) {
  Look(layout::Rows(layout::Field("Plik", form.dlugie, &form.plik), form.kolor), [](QWidget& modal) {
    auto& file = Named<QPushButton>(modal, "plik");
    EXPECT_LE(std::abs(file.width() - file.height()), 10);
    EXPECT_LT(Named<QPushButton>(modal, "kolor").width(), 90);
    EXPECT_EQ(PlaceOf(file).right(), modal.width() - 1 - 12);
  });
}

TEST_F(FormGeometry, AColourBoxThatIsNotSetShowsNoColour) {
  const auto pixel = [](QWidget& modal) { return Named<QPushButton>(modal, "kolor").icon().pixmap(44, 14).toImage().pixelColor(22, 4); };
  QColor set, unset;
  Look(layout::Rows(form.kolor), [&](QWidget& modal) {
    set = pixel(modal);
    form.kolor.Unset();
    unset = pixel(modal);
  });
  EXPECT_EQ(set, QColor(200, 0, 0));
  EXPECT_NE(unset, set);
}

TEST_F(FormGeometry, RoomThatNothingNeedsOpensAboveTheButtons) {
  Look(layout::Rows(layout::Field("Jeden", form.dlugie), layout::Field("Dwa", form.krotkie),
                    layout::ButtonRow(form.Command2, form.Command1)),
       [](QWidget& modal) {
         const QRect first = PlaceOf(Named<QWidget>(modal, "dlugie")), second = PlaceOf(Named<QWidget>(modal, "krotkie"));
         EXPECT_LT(second.top() - first.bottom(), 20);
         EXPECT_GT(PlaceOf(Named<QWidget>(modal, "Command2")).top(), 440);
       });
}

TEST_F(FormGeometry, AListTakesTheRoomDownwards) {
  Look(layout::Rows(layout::Field("Jeden", form.dlugie), form.lista, layout::ButtonRow(form.Command2)),
       [](QWidget& modal) { EXPECT_GT(Named<QListView>(modal, "lista").height(), 350); });
}

TEST_F(FormGeometry, GroupsSideBySideAreOfOneWidthAndTheirRowsStayTogether) {
  Look(layout::Rows(layout::Columns(layout::Group("Jedna", layout::Field("A", form.krotkie)),
                                    layout::Group("Druga", layout::Field("Dłuższy napis"_pl, form.slowo), form.lewa, form.prawa))),
       [](QWidget& modal) {
         const QList<QGroupBox*> groups = modal.findChildren<QGroupBox*>();
         ASSERT_EQ(groups.size(), 2);
         EXPECT_LE(std::abs(groups[0]->width() - groups[1]->width()), 1);
         EXPECT_EQ(groups[0]->height(), groups[1]->height());
         EXPECT_LT(Named<QWidget>(modal, "krotkie").geometry().top(), 60);
       });
}

TEST_F(FormGeometry, ABoxMakesItsListWhenItOpens) {
  form.slowo.AddItems({"jeden", "dwa"});
  Look(layout::Rows(form.slowo), [](QWidget& modal) {
    auto& box = Named<QComboBox>(modal, "slowo");
    EXPECT_TRUE(box.findChildren<QListView*>().isEmpty());
    box.showPopup();
    EXPECT_EQ(box.view()->model()->rowCount(), 2);
    EXPECT_GT(box.view()->sizeHintForRow(0), box.fontMetrics().height());
    box.hidePopup();
    EXPECT_EQ(box.completer(), nullptr);
  });
}

TEST_F(FormGeometry, TypingFindsARowOfABoxThatWasNeverOpened) {
  form.wybor.AddItems({"jeden", "dwa", "trzy"});
  Look(layout::Rows(form.wybor), [](QWidget& modal) {
    auto& box = Named<QComboBox>(modal, "wybor");
    TypeIn(box, QStringLiteral("t"));
    EXPECT_EQ(box.currentText(), QStringLiteral("trzy"));
  });
  EXPECT_EQ(form.wybor.Text(), "trzy");
}

TEST_F(FormGeometry, TabStopsAtTheChosenOptionOfAGroup) {
  Look(layout::Rows(form.lewa, form.prawa), [this](QWidget& modal) {
    auto &left = Named<QRadioButton>(modal, "lewa"), &right = Named<QRadioButton>(modal, "prawa");
    EXPECT_FALSE(left.focusPolicy() & Qt::TabFocus);
    EXPECT_TRUE(right.focusPolicy() & Qt::TabFocus);
    form.lewa.UserSets();
    EXPECT_TRUE(left.focusPolicy() & Qt::TabFocus);
    EXPECT_FALSE(right.focusPolicy() & Qt::TabFocus);
  });
}

TEST_F(FormGeometry, TabFollowsTheLayoutAndNotTheOrderOfDeclaration) {
  EXPECT_EQ(InOrder(layout::Rows(layout::Columns(layout::Rows(form.slowo, form.krotkie), layout::Field("D", form.dlugie, &form.plik)))),
            (std::vector<Control*>{&form.slowo, &form.krotkie, &form.dlugie, &form.plik}));
}

TEST_F(FormGeometry, EnterDoesNotPressAButtonOfAnotherPage) {
  bool pressed = false;
  form.Command2.OnClick = [&pressed] { pressed = true; };
  Look(layout::Pages(layout::Group("Jedna", form.dlugie, layout::ButtonRow(form.Command2)), layout::Group("Druga", form.krotkie)),
       [&pressed](QWidget& modal) {
         modal.findChild<QTabWidget*>()->setCurrentIndex(1);
         PressIn(Named<QLineEdit>(modal, "krotkie"), Qt::Key_Return);
         EXPECT_FALSE(pressed);
         modal.findChild<QTabWidget*>()->setCurrentIndex(0);
         PressIn(Named<QLineEdit>(modal, "dlugie"), Qt::Key_Return);
         EXPECT_TRUE(pressed);
       });
}

TEST_F(FormGeometry, AWindowIsAsWideAsItsTitle) {
  form.SetCaption("Bardzo długi tytuł okna, które samo jest wąskie i ma jedno krótkie pole"_pl);
  form.layout = layout::Rows(form.krotkie);
  InNextModal([](QWidget& modal) {
    EXPECT_GT(modal.width(), modal.fontMetrics().horizontalAdvance(modal.windowTitle()));
    PressIn(modal, Qt::Key_Escape);
  });
  program.platform.windows.ShowModal(form);
}

}  // namespace
}  // namespace morlan
