// The conversion of many pages in the real window: it goes on by itself, and the window takes clicks meanwhile.
#include "text/conventer.h"

#include <gtest/gtest.h>

#include <QLineEdit>

#include "platform/qt/qttext.h"
#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

constexpr int kPages = 60;

class ConventerWindow : public DesktopTest {
 protected:
  ConventerWindow() {
    // Two sets are enough; the target UTF-8 needs none of its own.
    CharSetFile sets;
    sets.CharSetSave({"Win1250", "", {0xEA, 0xCA, 0xF3, 0xD3, 0xB9, 0xA5}});
    sets.CharSetSave({"iso-8859-2", "", {0xEA, 0xCA, 0xF3, 0xD3, 0xB1, 0xA1}});
    Write("program/CharSets.Def", sets.Bytes());
    for (int page = 0; page < kPages; ++page) Write(PageName(page), kOld);
    Start();
  }
  static std::string PageName(int page) { return "work/" + std::to_string(page) + ".html"; }
  int ConvertedCount() {
    int count = 0;
    for (int page = 0; page < kPages; ++page) {
      const std::string bytes = ReadFile(PageName(page));
      EXPECT_TRUE(bytes == kOld || bytes == kNew) << "nothing is half written";
      count += bytes == kNew;
    }
    return count;
  }
  void Open(const std::function<void(QWidget& dialog)>& act) {
    InNextModal(act);
    program.commands.RunMenu("mn_conventer");
    Settle();
  }
  Conventer& Shown() { return program.forms.Get<Conventer>(); }
  void StartIn(QWidget& dialog) {
    Named<QLineEdit>(dialog, "FileName").setFocus();
    TypeIn(Named<QLineEdit>(dialog, "FileName"), ToQt(Path("work")));
    Shown().AskForName.UserSets(false);
    Shown().OverWrite.UserSets(true);
    Named<QPushButton>(dialog, "Command2").click();
  }

  const std::string kOld = "<html><head><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=iso-8859-2\"></head>\xB1</html>";
  const std::string kNew = "<html><head><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html;CHARSET=UTF-8\"></head>\xC4\x85</html>";
};

TEST_F(ConventerWindow, AllPagesAreConvertedByThemselves) {
  Open([this](QWidget& dialog) {
    StartIn(dialog);
    EXPECT_FALSE(Named<QLineEdit>(dialog, "FileName").isEnabled());
    EXPECT_TRUE(WaitFor([this] { return Shown().Command2.Enabled(); }));
    EXPECT_TRUE(Named<QLineEdit>(dialog, "FileName").isEnabled());
    Named<QPushButton>(dialog, "Command1").click();
  });
  EXPECT_EQ(ConvertedCount(), kPages);
}

TEST_F(ConventerWindow, AClickStopsTheWorkBetweenTwoPages) {
  int seen = 0;
  Open([&](QWidget& dialog) {
    StartIn(dialog);
    EXPECT_TRUE(WaitFor([&] { return Shown().Progress.Caption() != "Plik 1 z 60: 0.html"; }));
    auto& button = Named<QPushButton>(dialog, "Command1");
    EXPECT_EQ(button.text(), QStringLiteral("Prz&erwij"));
    button.click();
    seen = ConvertedCount();
    EXPECT_GT(seen, 0);
    EXPECT_LT(seen, kPages);
    Settle();
    EXPECT_TRUE(dialog.isVisible());
    PressIn(dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(ConvertedCount(), seen) << "nothing goes on behind it";
}

}  // namespace
}  // namespace morlan
