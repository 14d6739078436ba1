#include "bench/pages.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::array kWords = {
    "strona"_pl, "główna"_pl,  "zażółć"_pl,   "gęślą"_pl,  "jaźń"_pl,   "łódź"_pl,    "i"_pl,       "w"_pl,         "na"_pl,
    "świat"_pl,  "książka"_pl, "Kraków"_pl,   "źródło"_pl, "żółw"_pl,   "obrazek"_pl, "tekst"_pl,   "odnośnik"_pl,  "tabela"_pl,
    "ramka"_pl,  "lista"_pl,   "nowości"_pl,  "o"_pl,      "mnie"_pl,   "zdjęcia"_pl, "wakacje"_pl, "ćwiczenie"_pl, "szkoła"_pl,
    "muzyka"_pl, "poczta"_pl,  "wyszukaj"_pl, "pomoc"_pl,  "powrót"_pl, "dalej"_pl,   "więcej"_pl,  "program"_pl,   "edytor"_pl,
};
constexpr std::array<std::string_view, 10> kInline = {"B", "I", "U", "EM", "STRONG", "tt", "sub", "sup", "code", "small"};
constexpr std::array<std::string_view, 8> kNames = {"index", "oferta", "galeria", "kontakt", "mapa", "linki", "archiwum", "ksiega"};
constexpr std::array<std::string_view, 6> kColours = {"#FF0000", "navy", "#00A080", "white", "#c0c0c0", "maroon"};

// A plain linear congruential generator; its seed is fixed.
class Dice {
 public:
  std::size_t Below(std::size_t limit) {
    state_ = state_ * 6364136223846793005u + 1442695040888963407u;
    return static_cast<std::size_t>((state_ >> 33) % limit);
  }
  template <class Row>
  std::string_view From(const Row& row) {
    return row[Below(row.size())];
  }

 private:
  std::uint64_t state_ = 19980307;
};

class PageWriter {
 public:
  explicit PageWriter(std::size_t bytes) : wanted_(bytes) { page_.reserve(bytes + 4096); }

  std::string Write() {
    Add({"<html>\r\n<head>\r\n<title>", "Strona główna"_pl, "</title>\r\n",
         "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1250\">\r\n</head>\r\n<body bgcolor=#FFFFFF>\r\n"});
    while (page_.size() + 16 < wanted_) WriteBlock();
    Add({"</body>\r\n</html>\r\n"});
    return std::move(page_);
  }

 private:
  void Add(std::initializer_list<std::string_view> pieces) {
    for (const std::string_view piece : pieces) page_ += piece;
  }
  void WriteBlock() {
    switch (dice_.Below(12)) {
      case 0:
        return WriteTable();
      case 1:
        return WriteList();
      case 2:
        return WriteComment();
      case 3:
        return dice_.Below(3) == 0 ? WriteScript() : WriteLinks();
      case 4:
      case 5:
        return WriteLinks();
      default:
        return WriteParagraph();
    }
  }
  void WriteWords(std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) Add({i == 0 ? "" : " ", dice_.From(kWords)});
  }
  // An attribute in one of the three ways of quoting.
  void WriteAttribute(std::string_view name, std::string_view value) {
    constexpr std::array<std::string_view, 3> kMarks = {"\"", "'", ""};
    const std::string_view mark = dice_.From(kMarks);
    Add({" ", name, "=", mark, value, mark});
  }
  void WriteEmphasis() {
    const std::string_view tag = dice_.From(kInline);
    Add({"<", tag, ">"});
    WriteWords(1 + dice_.Below(2));
    Add({"</", tag, ">"});
  }
  void WriteParagraph() {
    Add({"<p"});
    if (dice_.Below(3) == 0) WriteAttribute("align", "center");
    Add({">"});
    const std::size_t pieces = 4 + dice_.Below(6);
    for (std::size_t i = 0; i < pieces; ++i) {
      WriteWords(6 + dice_.Below(10));
      Add({" "});
      WriteEmphasis();
      Add({dice_.Below(5) == 0 ? "<br>\r\n" : " "});
    }
    Add({"</p>\r\n"});
  }
  void WriteLinks() {
    const std::size_t count = 2 + dice_.Below(4);
    for (std::size_t i = 0; i < count; ++i) {
      Add({"<a"});
      WriteAttribute("href", Concat({dice_.From(kNames), ".html"}));
      Add({">"});
      WriteWords(3 + dice_.Below(4));
      Add({"</a> | "});
    }
    Add({"<img"});
    WriteAttribute("src", Concat({"obrazki/", dice_.From(kNames), ".gif"}));
    WriteAttribute("width", "120");
    Add({" alt=\""});
    WriteWords(2);
    Add({"\"><br>\r\n"});
  }
  void WriteTable() {
    Add({"<table"});
    WriteAttribute("border", "1");
    WriteAttribute("width", "100%");
    Add({">\r\n"});
    for (std::size_t row = 2 + dice_.Below(3); row > 0; --row) {
      Add({"<tr>"});
      for (std::size_t cell = 3; cell > 0; --cell) WriteCell();
      Add({"</tr>\r\n"});
    }
    Add({"</table>\r\n"});
  }
  void WriteCell() {
    Add({"<td"});
    if (dice_.Below(3) == 0) WriteAttribute("bgcolor", dice_.From(kColours));
    Add({">"});
    dice_.Below(2) == 0 ? WriteEmphasis() : WriteWords(5);
    Add({"</td>"});
  }
  void WriteList() {
    Add({"<ul>\r\n"});
    for (std::size_t item = 2 + dice_.Below(5); item > 0; --item) {
      Add({"<li><font"});
      WriteAttribute("color", dice_.From(kColours));
      Add({">"});
      WriteWords(3 + dice_.Below(5));
      Add({"</font></li>\r\n"});
    }
    Add({"</ul>\r\n"});
  }
  void WriteComment() {
    Add({"<!-- "});
    WriteWords(2 + dice_.Below(6));
    Add({" -->\r\n"});
  }
  void WriteScript() {
    Add({"<script language=\"JavaScript\">\r\n<!--\r\nfunction ", dice_.From(kNames), "(x) {\r\n  var napis = \""});
    WriteWords(2);
    Add({"\";\r\n  if (x == null) return false;\r\n  for (i = 0; i < x.length; i++) napis += x[i];\r\n"});
    Add({"  return new String(napis);\r\n}\r\n//-->\r\n</script>\r\n"});
  }

  std::string page_;
  std::size_t wanted_;
  Dice dice_;
};

}  // namespace

std::string GeneratedPage(std::size_t bytes) { return PageWriter(bytes).Write(); }

}  // namespace morlan
