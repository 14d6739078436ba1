// The dialog of the settings in the real window.
#include "core/configuration.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QColorDialog>
#include <QFontDialog>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSet>
#include <QTabWidget>

#include "core/documents.h"
#include "platform/qt/editorview.h"
#include "platform/qt/qttext.h"
#include "platform/qt/statusline.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

class ConfigurationWindow : public DesktopTest {
 protected:
  ConfigurationWindow() {
    Start();
    Write("work/a.html", "<html><b>tekst</b></html>");
    OpenDocument(program, Path("work/a.html"));
    Settle();
  }
  // Opens the dialog by its menu entry; it must be closed by what is done in it.
  void Open(std::function<void(QWidget&)> act) {
    InNextModal(std::move(act));
    program.commands.RunMenu("xmn_configuration");
    Settle();
  }
  EditorWidget& View() { return dynamic_cast<EditorWidget&>(Editor()); }
  static QTabWidget& Pages(QWidget& dialog) { return *dialog.findChild<QTabWidget*>(); }
  static void Confirm(QWidget& dialog) { Named<QPushButton>(dialog, "Command2").click(); }
  static int Pixels(QWidget& widget, const QColor& colour) {
    const QImage picture = widget.grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x) count += picture.pixelColor(x, y) == colour;
    return count;
  }
};

TEST_F(ConfigurationWindow, AFontChangesTheTextAndTheSampleAtOnce) {
  const double before = View().Scene().CaretArea(0, 1).height();
  Open([](QWidget& modal) {
    Pages(modal).setCurrentIndex(1);
    InNextModal([](QWidget& chooser) {
      auto& dialog = dynamic_cast<QFontDialog&>(chooser);
      EXPECT_FALSE(dialog.currentFont().italic()) << "an upright font is shown as such";
      QFont font(QStringLiteral("DejaVu Sans Mono"));
      font.setPointSize(24);
      dialog.setCurrentFont(font);
      dialog.accept();
    });
    Named<QPushButton>(modal, "Command3").click();
    EXPECT_EQ(Named<QLabel>(modal, "Label1").font().pointSize(), 24);
    Confirm(modal);
  });
  EXPECT_EQ(program.ActiveEditor->Font().size, 24);
  EXPECT_GT(View().Scene().CaretArea(0, 1).height(), before * 1.8);
}

TEST_F(ConfigurationWindow, AColourIsSeenInTheTextAtOnce) {
  const QColor colour(200, 0, 100);
  EXPECT_EQ(Pixels(*View().viewport(), colour), 0);
  Open([&](QWidget& modal) {
    Pages(modal).setCurrentIndex(1);
    InNextModal([&](QWidget& chooser) {
      auto& dialog = dynamic_cast<QColorDialog&>(chooser);
      EXPECT_EQ(dialog.currentColor(), QColor(0, 0, 255));
      dialog.setCurrentColor(colour);
      dialog.accept();
    });
    Named<QPushButton>(modal, "TagsColor").click();
    Confirm(modal);
  });
  EXPECT_GT(Pixels(*View().viewport(), colour), 0);
}

TEST_F(ConfigurationWindow, TheFontsColourIsSeenWhileColouringIsOff) {
  const QColor colour(0, 110, 90);
  program.MainIni.SetSubItemValue("EditorFont", "FontSize", "30");
  Open([&](QWidget& modal) {
    Pages(modal).setCurrentIndex(1);
    InNextModal([&](QWidget& chooser) {
      dynamic_cast<QColorDialog&>(chooser).setCurrentColor(colour);
      dynamic_cast<QColorDialog&>(chooser).accept();
    });
    Named<QPushButton>(modal, "FontColor").click();
    EXPECT_GT(Pixels(Named<QLabel>(modal, "Label1"), colour), 0);
    Named<QCheckBox>(modal, "UseColorize").click();
    Confirm(modal);
  });
  EXPECT_GT(Pixels(*View().viewport(), colour), 0);
  EXPECT_EQ(Pixels(*View().viewport(), QColor(0, 0, 255)), 0) << "nothing is coloured any more";
}

TEST_F(ConfigurationWindow, PanelsComeAndGoAtOnce) {
  QWidget* status = nullptr;
  for (QWidget* widget : Window().findChildren<QWidget*>())
    if (dynamic_cast<StatusLine*>(widget)) status = widget;
  ASSERT_NE(status, nullptr);
  EXPECT_TRUE(status->isVisible());
  for (const bool visible : {false, true}) {
    Open([](QWidget& modal) {
      Pages(modal).setCurrentIndex(2);
      Named<QCheckBox>(modal, "SSCheck1(1)").click();
      Confirm(modal);
    });
    EXPECT_EQ(status->isVisible(), visible);
  }
}

TEST_F(ConfigurationWindow, FitsOnASmallScreenWithAllTabsInSight) {
  Open([](QWidget& modal) {
    EXPECT_LE(modal.frameGeometry().width(), 1280);
    EXPECT_LE(modal.frameGeometry().height(), 680);
    EXPECT_GE(Pages(modal).tabBar()->width(), Pages(modal).tabBar()->sizeHint().width());
    PressIn(modal, Qt::Key_Escape);
  });
}

TEST_F(ConfigurationWindow, KeepsItsSizeWhateverTheFont) {
  QSize size;
  const auto look = [&](QWidget& modal) {
    size = modal.size();
    PressIn(modal, Qt::Key_Escape);
  };
  Open(look);
  const QSize before = size;
  program.MainIni.SetSubItemValue("EditorFont", "FontSize", "96");
  Open(look);
  EXPECT_EQ(size, before);
}

TEST_F(ConfigurationWindow, HasEachMnemonicOnceOnAPage) {
  Open([](QWidget& modal) {
    for (int page = 0; page < Pages(modal).count(); ++page) {
      Pages(modal).setCurrentIndex(page);
      Settle();
      QSet<QString> taken;
      const auto take = [&](const QString& text) {
        const QString letter = QKeySequence::mnemonic(text).toString();
        EXPECT_FALSE(!letter.isEmpty() && taken.contains(letter)) << page << " " << text.toStdString();
        taken.insert(letter);
      };
      for (const auto* button : modal.findChildren<QAbstractButton*>())
        if (button->isVisible()) take(button->text());
      for (const auto* label : modal.findChildren<QLabel*>())
        if (label->isVisible() && label->buddy()) take(label->text());
    }
    PressIn(modal, Qt::Key_Escape);
  });
}

TEST_F(ConfigurationWindow, EveryControlSaysWhatItIsAndDoes) {
  Open([this](QWidget& modal) {
    for (Control* control : program.forms.Get<configuration>().Controls()) {
      auto* widget = modal.findChild<QWidget*>(ToQt(control->Name()));
      ASSERT_NE(widget, nullptr) << control->Name();
      if (widget->focusPolicy() == Qt::NoFocus) continue;
      const auto* button = qobject_cast<QAbstractButton*>(widget);
      EXPECT_TRUE(!widget->accessibleName().isEmpty() || (button && button->text().size() > 2)) << control->Name();
      EXPECT_TRUE(!widget->toolTip().isEmpty() || widget->objectName() == QStringLiteral("Command2") ||
                  widget->objectName() == QStringLiteral("Command1"))
          << control->Name();
    }
    PressIn(modal, Qt::Key_Escape);
  });
}

TEST_F(ConfigurationWindow, EnterConfirmsWithTheFieldThatIsBeingTyped) {
  Open([](QWidget& modal) {
    Pages(modal).setCurrentIndex(3);
    auto& time = Named<QLineEdit>(modal, "AutoSaveTime");
    time.setFocus();
    time.selectAll();
    TypeIn(time, QStringLiteral("7x"));
    PressIn(time, Qt::Key_Return);
  });
  EXPECT_EQ(program.MainIni.GetSubItemValue("AutoSave", "AutoSaveTime"), "7");
}

}  // namespace
}  // namespace morlan
