#include "core/browserlist.h"

#include <gtest/gtest.h>

#include "core/inifile.h"
#include "core/text.h"
#include "tests/support/memoryfiles.h"

namespace morlan {
namespace {

using Rows = std::vector<std::string>;

struct BrowserList : testing::Test {
  MemoryFiles files;
  INIFile store{files};
  const std::string own{kDefaultBrowser};
  BrowserList() { store.Init("c:\\Morlan7.ini"); }
  void Store(const Rows& browsers, std::string_view current) {
    store.SetSubItemValue("Browser", "CountItem", NumberText(static_cast<std::int64_t>(browsers.size())));
    for (std::size_t i = 0; i < browsers.size(); ++i)
      store.SetSubItemValue("Browser", Concat({"Item", NumberText(static_cast<std::int64_t>(i + 1))}), browsers[i]);
    store.SetSubItemValue("Browser", "Current", current);
  }
  std::string Stored(std::string_view key) { return store.GetSubItemValue("Browser", key); }
};

TEST_F(BrowserList, HasTheSystemsOwnInUseWhenNothingIsStored) { EXPECT_EQ(LoadBrowsers(store), Rows{std::string("{Domyślna}"_pl)}); }

TEST_F(BrowserList, PutsBracketsRoundTheOneInUseWhateverItsLetterCase) {
  Store({"c:\\bin\\Lis", "c:\\bin\\Chart"}, "C:\\BIN\\CHART");
  EXPECT_EQ(LoadBrowsers(store), (Rows{"c:\\bin\\Lis", "{c:\\bin\\Chart}", own}));
}

TEST_F(BrowserList, HasNoBracketsWhenNoRowIsInUse) {
  Store({"c:\\bin\\lis"}, "c:\\bin\\inna");
  EXPECT_EQ(LoadBrowsers(store), (Rows{"c:\\bin\\lis", own}));
}

TEST_F(BrowserList, HasTheSystemsOwnOnceWhenItIsStoredAmongTheOthers) {
  Store({std::string("Domyślna"_pl), "c:\\bin\\lis"}, "c:\\bin\\lis");
  EXPECT_EQ(LoadBrowsers(store), (Rows{own, "{c:\\bin\\lis}"}));
  Store({std::string("Domyślna"_pl), "c:\\bin\\lis"}, "DOMYŚLNA"_pl);
  EXPECT_EQ(LoadBrowsers(store), (Rows{InBrackets(own), "c:\\bin\\lis"}));
}

TEST_F(BrowserList, LeavesOutNumbersWithoutABrowser) {
  Store({"c:\\bin\\lis", "", "c:\\bin\\chart"}, "");
  EXPECT_EQ(LoadBrowsers(store), (Rows{"c:\\bin\\lis", "c:\\bin\\chart", InBrackets(own)}));
}

TEST_F(BrowserList, IsStoredNumberedFromOneWithoutTheSystemsOwnWhereverItStands) {
  SaveBrowsers(store, Rows{"a", own, "{b}", "c"});
  EXPECT_EQ(Stored("CountItem"), "3");
  EXPECT_EQ(Stored("Item1"), "a");
  EXPECT_EQ(Stored("Item2"), "b");
  EXPECT_EQ(Stored("Item3"), "c");
  EXPECT_EQ(Stored("Item4"), "");
  EXPECT_EQ(Stored("Current"), "b");
}

TEST_F(BrowserList, StoresThatTheSystemsOwnIsInUse) {
  Store({"a"}, "a");
  SaveBrowsers(store, Rows{"a", InBrackets(own)});
  EXPECT_EQ(Stored("CountItem"), "1");
  EXPECT_EQ(Stored("Current"), own);
  EXPECT_EQ(LoadBrowsers(store), (Rows{"a", InBrackets(own)}));
}

TEST_F(BrowserList, KeepsABrowserInUseThatNoRowShows) {
  Store({"a"}, "x");
  SaveBrowsers(store, LoadBrowsers(store));
  EXPECT_EQ(Stored("Current"), "x");
}

TEST_F(BrowserList, FallsBackToTheSystemsOwnWhenTheOneInUseIsTakenOff) {
  Store({"a", "b"}, "a");
  SaveBrowsers(store, Rows{"b", own});
  EXPECT_EQ(Stored("Current"), "domyślna"_pl);
  EXPECT_EQ(LoadBrowsers(store), (Rows{"b", InBrackets(own)}));
}

TEST_F(BrowserList, WritesTheCountBeforeTheItemsAndTheOneInUseLast) {
  SaveBrowsers(store, Rows{"{a}", "b"});
  EXPECT_EQ(files.Read("c:\\Morlan7.ini"), "\r\n[Browser]\r\nCountItem=2\r\nItem1=a\r\nItem2=b\r\nCurrent=a\r\n");
}

TEST(BrowserRows, AreBracketedOnceAndUnbracketed) {
  EXPECT_EQ(InBrackets("a"), "{a}");
  EXPECT_EQ(WithoutBrackets("{a}"), "a");
  EXPECT_EQ(WithoutBrackets("a}"), "a}");
  EXPECT_EQ(WithoutBrackets("{"), "{");
  EXPECT_TRUE(HasBrackets("{}"));
}

}  // namespace
}  // namespace morlan
