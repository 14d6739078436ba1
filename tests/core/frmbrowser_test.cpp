// The internal viewer as a form: its keys, its address box, its caption.
#include "core/frmbrowser.h"

#include <gtest/gtest.h>

#include "core/menus.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

// Records what it is asked for; the test tells when a page is there.
class RecordingPage : public WebPage {
 public:
  Record calls;
  void Navigate(std::string_view address) override { calls.push_back("go " + std::string(address)); }
  void Back() override { calls.push_back("back"); }
  void Forward() override { calls.push_back("forward"); }
  void Refresh() override { calls.push_back("refresh"); }
  void Search() override { calls.push_back("search"); }
  void Stop() override { calls.push_back("stop"); }
};

class FrmBrowserTest : public testing::Test {
 protected:
  FrmBrowserTest() {
    viewer_.brwWebBrowser.AttachPage(page_);
    ShowViewer(test_.program, "file://c:\\a.html");
  }
  ~FrmBrowserTest() override { viewer_.brwWebBrowser.DetachPage(page_); }
  static int Press(const std::function<void(KeyPress&)>& handler, std::string_view name) {
    KeyPress press = KeyFromText(name);
    handler(press);
    return press.code;
  }
  TestProgram test_;
  FrmBrowser& viewer_ = test_.program.forms.Get<FrmBrowser>();
  RecordingPage page_;
};

TEST_F(FrmBrowserTest, GoesToTheAddressThatItIsGiven) {
  EXPECT_EQ(page_.calls, Record{"go file://c:\\a.html"});
  EXPECT_EQ(viewer_.cboAddress.Text(), "file://c:\\a.html");
  EXPECT_TRUE(viewer_.brwWebBrowser.Busy());
  EXPECT_TRUE(viewer_.timTimer.Enabled());
}

TEST_F(FrmBrowserTest, WithoutAnAddressItOnlyComesUp) {
  test_.program.DialogResult.clear();
  viewer_.Form_Load();
  EXPECT_EQ(page_.calls.size(), 1u);
}

TEST_F(FrmBrowserTest, EachButtonCallsTheBrowser) {
  for (const char* key : {"Back", "Forward", "Refresh", "Home", "Search", "Stop"}) EXPECT_TRUE(viewer_.tbToolBar.UserPresses(key)) << key;
  EXPECT_EQ(page_.calls, (Record{"go file://c:\\a.html", "back", "forward", "refresh", "go file://c:\\a.html", "search", "stop"}));
}

TEST_F(FrmBrowserTest, KeysDoWhatTheButtonsDo) {
  for (const char* key : {"Alt+Left", "Alt+Right", "F5", "Alt+Home", "Ctrl+F"}) EXPECT_EQ(Press(viewer_.OnKeyDown, key), 0) << key;
  EXPECT_EQ(page_.calls, (Record{"go file://c:\\a.html", "back", "forward", "refresh", "go file://c:\\a.html", "search"}));
  EXPECT_EQ(Press(viewer_.OnKeyDown, "Ctrl+L"), 0);
  EXPECT_NE(Press(viewer_.OnKeyDown, "Ctrl+S"), 0);
  EXPECT_NE(Press(viewer_.OnKeyDown, "F4"), 0);
}

TEST_F(FrmBrowserTest, HomeIsThePageOfTheBeginning) {
  viewer_.brwWebBrowser.Navigate("http://www.example.com/");
  viewer_.tbToolBar.UserPresses("Home");
  EXPECT_EQ(page_.calls.back(), "go file://c:\\a.html");
}

TEST_F(FrmBrowserTest, StopEndsTheTimer) {
  viewer_.tbToolBar.UserPresses("Stop");
  EXPECT_FALSE(viewer_.timTimer.Enabled());
  EXPECT_FALSE(viewer_.brwWebBrowser.Busy());
}

TEST_F(FrmBrowserTest, EnterInTheAddressBoxGoesThere) {
  viewer_.cboAddress.UserSets("www.example.com");
  EXPECT_EQ(page_.calls.size(), 1u);
  EXPECT_NE(Press(viewer_.cboAddress.OnKeyDown, "F2"), 0);
  EXPECT_EQ(Press(viewer_.cboAddress.OnKeyDown, "Enter"), 0);
  EXPECT_EQ(page_.calls.back(), "go www.example.com");
}

TEST_F(FrmBrowserTest, AChosenRowOfTheAddressBoxGoesThere) {
  viewer_.brwWebBrowser.PageCompletes("file://c:\\a.html", "A");
  viewer_.brwWebBrowser.PageCompletes("file://c:\\b.html", "B");
  viewer_.cboAddress.UserSelects(0);
  EXPECT_EQ(page_.calls.back(), "go file://c:\\a.html");
}

TEST_F(FrmBrowserTest, ThePageThatIsThereGivesTheCaptionAndARowOfTheAddressBox) {
  viewer_.brwWebBrowser.PageCompletes("file://c:\\a.html", "Strona główna"_pl);
  EXPECT_EQ(viewer_.Caption(), "Strona główna"_pl);
  viewer_.brwWebBrowser.PageCompletes("file://c:\\b.html", "");
  EXPECT_EQ(viewer_.Caption(), "file://c:\\b.html");
  viewer_.brwWebBrowser.PageCompletes("file://c:\\a.html", "Strona główna"_pl);
  EXPECT_EQ(viewer_.cboAddress.Rows(), (std::vector<std::string>{"file://c:\\a.html", "file://c:\\b.html"}));
}

TEST_F(FrmBrowserTest, TheAddressBoxFollowsALinkButKeepsWhatIsBeingTyped) {
  viewer_.cboAddress.UserSets("www");
  viewer_.brwWebBrowser.PageCompletes("file://c:\\a.html", "A");
  EXPECT_EQ(viewer_.cboAddress.Text(), "www");
  viewer_.brwWebBrowser.PageCompletes("file://c:\\b.html", "B");
  EXPECT_EQ(viewer_.cboAddress.Text(), "file://c:\\b.html");
}

TEST_F(FrmBrowserTest, TheCaptionTellsThatAPageIsBeingFetched) {
  viewer_.timTimer.OnTimer();
  EXPECT_EQ(viewer_.Caption(), "Otwieram...");
  viewer_.brwWebBrowser.PageCompletes("file://c:\\a.html", "A");
  EXPECT_EQ(viewer_.Caption(), "A");
  EXPECT_FALSE(viewer_.timTimer.Enabled());
  viewer_.timTimer.OnTimer();
  EXPECT_EQ(viewer_.Caption(), "A");
}

TEST_F(FrmBrowserTest, LeavingItStopsThePage) {
  HideViewer(test_.program);
  EXPECT_EQ(page_.calls.back(), "stop");
  EXPECT_FALSE(viewer_.timTimer.Enabled());
  EXPECT_EQ(ShownViewer(test_.program), nullptr);
}

TEST(WebBrowser, AnAddressWaitsForThePage) {
  TestProgram test;
  FrmBrowser& viewer = test.program.forms.Get<FrmBrowser>();
  viewer.brwWebBrowser.Navigate("a");
  viewer.brwWebBrowser.Navigate("b");
  viewer.brwWebBrowser.Back();
  RecordingPage page, other;
  viewer.brwWebBrowser.AttachPage(page);
  EXPECT_EQ(page.calls, Record{"go b"});
  viewer.brwWebBrowser.AttachPage(other);
  viewer.brwWebBrowser.DetachPage(page);
  viewer.brwWebBrowser.Refresh();
  EXPECT_EQ(other.calls, Record{"refresh"});
}

}  // namespace
}  // namespace morlan
