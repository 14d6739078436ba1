#include "text/documentcharset.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct DocumentCharset : testing::Test {
  TestProgram test;
  // The entries of the menu that are ticked for a page with that content of its META tag.
  std::string MarkedFor(std::string_view content) {
    TEditor& document = test.OpenText(Concat({"<HEAD><META HTTP-EQUIV=\"Content-Type\" CONTENT=\"", content, "\"></HEAD>"}));
    MarkCharSet(document);
    std::string marked;
    for (const char* name : {"xmn_win1250", "xmn_iso88592", "xmn_ascii", "mn_unicode", "xmn_plcharinne"})
      if (document.menu.IsChecked(name)) marked += name;
    return marked;
  }
};

TEST_F(DocumentCharset, TicksTheEntryOfTheNamedSet) {
  EXPECT_EQ(MarkedFor("text/html;CHARSET=windows-1250"), "xmn_win1250");
  EXPECT_EQ(MarkedFor("text/html;charset=ISO-8859-2"), "xmn_iso88592");
  EXPECT_EQ(MarkedFor("text/html;charset=ascii"), "xmn_ascii");
  EXPECT_EQ(MarkedFor("text/html;charset=utf-8"), "mn_unicode");
  EXPECT_EQ(MarkedFor("text/html;charset=koi8-r"), "xmn_plcharinne");
}

TEST_F(DocumentCharset, ATagWithoutASetTicksNothing) { EXPECT_EQ(MarkedFor("text/html"), ""); }

TEST_F(DocumentCharset, LoadingKeepsTheBytes) {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  test.program.CurrentCharset = "inny";
  EXPECT_EQ(test.program.passes.decode(bytes, "c:\\a.html"), bytes);
  EXPECT_EQ(test.program.CurrentCharset, "Win1250");
}

}  // namespace
}  // namespace morlan
