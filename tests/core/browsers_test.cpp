// The pop-up list of browsers.
#include "core/browsers.h"

#include <gtest/gtest.h>

#include "core/menus.h"
#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

class BrowsersTest : public testing::Test {
 protected:
  void Store(const std::vector<std::string>& paths, std::string_view count = "") {
    std::int64_t n = 0;
    for (const std::string& path : paths) ini().SetSubItemValue("Browser", Concat({"Item", NumberText(++n)}), path);
    ini().SetSubItemValue("Browser", "CountItem", count.empty() ? NumberText(n) : std::string(count));
  }
  void Show(std::function<void(Browsers&)> act) {
    test_.windows.modals.push_back([act](Form& form) { act(static_cast<Browsers&>(form)); });
    EXPECT_TRUE(test_.program.forms.ShowByName("Browsers"));
  }
  static void Press(Browsers& form, std::string_view name) {
    KeyPress press = KeyFromText(name);
    form.List.OnKeyDown(press);
  }
  INIFile& ini() { return test_.program.MainIni; }
  TestProgram test_;
};

TEST_F(BrowsersTest, ListsTheShortNames) {
  Store({"c:\\usr\\bin\\lis.exe", "c:\\opt\\sowa", "c:\\a.b.exe"});
  Show([](Browsers& form) { EXPECT_EQ(form.List.Rows(), (std::vector<std::string>{"lis", "sowa", "a.b"})); });
}

TEST_F(BrowsersTest, AClickShowsThePageInThatBrowser) {
  test_.Write("work\\lis.exe", "");
  test_.Write("work\\sowa.exe", "");
  Store({test_.Path("work\\lis.exe"), test_.Path("work\\sowa.exe")});
  test_.OpenText("x");
  Show([](Browsers& form) {
    form.List.UserSelects(1);
    EXPECT_FALSE(form.IsVisible());
  });
  const std::string line = Concat({test_.Path("work\\sowa.exe"), " ", test_.Path("work\\Morlan7.html")});
  EXPECT_EQ(test_.Asked(), (Record{"modal Browsers \"Przeglądarki\"", Concat({"start ", Quoted(line), " 3"}), "closed Browsers"}));
}

TEST_F(BrowsersTest, TheStoredChoiceStays) {
  Store({"c:\\nie\\ma.exe"});
  ini().SetSubItemValue("Browser", "Current", "domyślna"_pl);
  Show([](Browsers& form) { form.List.UserClicks(); });
  EXPECT_EQ(test_.Asked()[1], "message \"Nie mogę otworzyć przeglądarki\" \"Morlan7\" stop ok");
  EXPECT_EQ(ini().GetSubItemValue("Browser", "Current"), "domyślna"_pl);
}

TEST_F(BrowsersTest, ArrowsMoveAndEnterChooses) {
  Store({"c:\\a.exe", "c:\\b.exe", "c:\\c.exe"});
  Show([](Browsers& form) {
    EXPECT_EQ(form.List.ListIndex(), 0);
    for (const auto& [key, row] : std::vector<std::pair<std::string_view, int>>{
             {"Down", 1}, {"Down", 2}, {"Down", 2}, {"Up", 1}, {"Home", 0}, {"Up", 0}, {"End", 2}}) {
      Press(form, key);
      EXPECT_EQ(form.List.ListIndex(), row) << key;
    }
    EXPECT_TRUE(form.IsVisible());
    Press(form, "Enter");
    EXPECT_FALSE(form.IsVisible());
  });
  EXPECT_EQ(test_.Asked().size(), 3u);  // the list, the message of the missing browser, the list's end
}

TEST_F(BrowsersTest, EscClosesIt) {
  Store({"c:\\a.exe"});
  Show([](Browsers& form) { form.UserCloses(); });
  EXPECT_EQ(test_.Asked(), (Record{"modal Browsers \"Przeglądarki\"", "closed Browsers"}));
}

TEST_F(BrowsersTest, WithoutBrowsersItTellsWhereTheyAreAdded) {
  Show([](Browsers& form) {
    EXPECT_EQ(form.List.ListCount(), 0u);
    EXPECT_TRUE(form.Hint.Visible());
    Press(form, "Enter");
    EXPECT_TRUE(form.IsVisible());
  });
  Store({"c:\\a.exe"});
  Show([](Browsers& form) { EXPECT_FALSE(form.Hint.Visible()); });
}

TEST_F(BrowsersTest, AGarbledCountIsNone) {
  for (const std::string_view count : {"-4", "x", "2000000000"}) {
    Store({"c:\\a.exe"}, count);
    Show([](Browsers& form) { EXPECT_EQ(form.List.ListCount(), 0u); });
  }
}

TEST_F(BrowsersTest, ACountThatIsTooLargeStopsAtTheBrowsersThatThereAre) {
  Store({"c:\\a.exe"}, "7");
  Show([](Browsers& form) { EXPECT_EQ(form.List.ListCount(), 1u); });
}

}  // namespace
}  // namespace morlan
