// Every macro that comes with the program, run as its user would.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/macros/macroprogram.h"

namespace morlan {
namespace {

class ShippedMacros : public MacroTest {
 protected:
  static std::filesystem::path Folder() { return std::filesystem::path(MORLAN7_TREE) / "MAKRO"; }
  static std::string MacroText(std::string_view name) {
    std::ifstream file(Folder() / (std::string(name) + ".mac"), std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
  }
  // What a macro, named in UTF-8, makes of "abc" with its middle letter selected.
  std::string RunShipped(std::string_view name, std::deque<std::optional<std::string>> inputs = {}) {
    test.windows.inputs = std::move(inputs);
    const std::string text = Run(MacroText(name), "abc", 1, 1);
    EXPECT_TRUE(test.windows.inputs.empty()) << "asked too little";
    return ToUtf8(text);
  }
};

TEST_F(ShippedMacros, WrapInAParagraphOfAClass) { EXPECT_EQ(RunShipped("Akapit z klasą", {"wstep"}), "a<P CLASS=\"wstep\">b</P>c"); }

TEST_F(ShippedMacros, WrapInAQuotation) {
  EXPECT_EQ(RunShipped("Cytat", {"Norwid"}), "a<BLOCKQUOTE>b<BR><CITE>Norwid</CITE></BLOCKQUOTE>c");
  EXPECT_EQ(RunShipped("Cytat", {""}), "a<BLOCKQUOTE>b</BLOCKQUOTE>c");
}

TEST_F(ShippedMacros, WriteTheDate) { EXPECT_EQ(RunShipped("Data dzisiejsza"), "a7 marca 1998bc"); }

TEST_F(ShippedMacros, WriteFactsOfTheDocument) {
  EXPECT_EQ(RunShipped("Informacja o dokumencie"), "a<!-- " + ToUtf8(test.Path("work\\strona.html")) + ", 1998-03-07 12:30 -->bc");
}

TEST_F(ShippedMacros, MakeALongList) {
  EXPECT_EQ(RunShipped("Lista punktów", {"2"}), "a<UL>\r\n  <LI></LI>\r\n  <LI></LI>\r\n</UL>bc");
  EXPECT_EQ(RunShipped("Lista punktów", {"0"}), "a<UL>\r\n</UL>bc");
}

TEST_F(ShippedMacros, WrapInALink) {
  EXPECT_EQ(RunShipped("Odnośnik", {"https://example.org"}), "a<A HREF=\"https://example.org\">b</A>c");
}

TEST_F(ShippedMacros, WrapInAColouredBox) {
  EXPECT_EQ(RunShipped("Ramka w kolorze"), "a<DIV STYLE=\"background: #FFFFCC; border: 1px solid gray; padding: 0.5em\">b</DIV>c");
}

TEST_F(ShippedMacros, WriteAFigure) {
  EXPECT_EQ(RunShipped("Rysunek z podpisem", {"kot.png", "Kot"}),
            "a<FIGURE><IMG SRC=\"kot.png\" ALT=\"Kot\"><FIGCAPTION>Kot</FIGCAPTION></FIGURE>bc");
  EXPECT_EQ(RunShipped("Rysunek z podpisem", {"", "Kot"}), "abc");
}

TEST_F(ShippedMacros, MakeATableOfContents) {
  EXPECT_EQ(RunShipped("Spis rozdziałów", {"2"}),
            "a<OL>\r\n  <LI><A HREF=\"#r1\">Rozdział 1</A></LI>\r\n  <LI><A HREF=\"#r2\">Rozdział 2</A></LI>\r\n</OL>bc");
}

TEST_F(ShippedMacros, WriteAFooter) {
  EXPECT_EQ(RunShipped("Stopka strony", {"Ala"}), "a<HR>\r\n<ADDRESS>Ala, 7 marca 1998</ADDRESS>bc");
  EXPECT_EQ(RunShipped("Stopka strony", {""}), "a<HR>\r\n<ADDRESS>7 marca 1998</ADDRESS>bc");
}

TEST_F(ShippedMacros, MakeATable) {
  EXPECT_EQ(RunShipped("Tabela", {"2", "1"}),
            "a<TABLE>\r\n  <TR>\r\n    <TD></TD>\r\n  </TR>\r\n  <TR>\r\n    <TD></TD>\r\n  </TR>\r\n</TABLE>bc");
}

TEST_F(ShippedMacros, InsertATextFile) {
  test.Write("work\\plik.txt", "raz");
  test.windows.files = {test.Path("work\\plik.txt")};
  EXPECT_EQ(RunShipped("Wstaw plik tekstowy"),
            "a<-- wstawiony plik : " + ToUtf8(test.Path("work\\plik.txt")) + "-->\r\n<PRE>\r\nraz\r\n</PRE>\r\n<-- wstawiony plik -->bc");
  test.windows.files = {std::nullopt};
  EXPECT_EQ(RunShipped("Wstaw plik tekstowy"), "abc");
}

TEST_F(ShippedMacros, WrapInAComment) { EXPECT_EQ(RunShipped("Zakomentuj"), "a<!-- b -->c"); }

TEST_F(ShippedMacros, WriteCapitalsInThePlaceOfTheSelection) {
  EXPECT_EQ(RunShipped("Zamień na wielkie litery", {std::string("żółw"_pl)}), "aŻÓŁWc");
  EXPECT_EQ(RunShipped("Zamień na wielkie litery", {""}), "abc");
}

TEST_F(ShippedMacros, AreAllTestedHere) {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(Folder())) ++count;
  EXPECT_EQ(count, 14u);
}

}  // namespace
}  // namespace morlan
