#include "text/amountinwords.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {
namespace {

struct Row {
  std::string_view number, words;
};
constexpr Row kRows[] = {
    {"1", "jeden"},
    {"5", "pięć"_pl},
    {"10", "dziesięć"_pl},
    {"11", "jedenście"_pl},
    {"12", "dwanaście"_pl},
    {"20", "dwadzieścia"_pl},
    {"21", "dwadzieścia jeden"_pl},
    {"100", "sto"},
    {"105", "sto  pięć"_pl},
    {"999", "dziewięćset dziewięćdziesiąt dziewięć"_pl},
    {"1000", "jeden tysiąc"_pl},
    {"2000", "dwa tysiące"_pl},
    {"5000", "pięć tysięcy"_pl},
    {"15000", "piętnaście tysięcy"_pl},
    {"20000", "dwadzieścia"_pl},
    {"21000", "dwadzieścia jeden tysiąc"_pl},
    {"100000", "sto"},
    {"  42 zł"_pl, "czterdzieści dwa"_pl},
    {"12,50", "dwanaście"_pl},
};

TEST(AmountInWords, WritesNumbersByTheirDigits) {
  for (const Row& row : kRows) EXPECT_EQ(AmountInWords(row.number), row.words) << row.number;
}

TEST(AmountInWords, NoughtAndWhatIsNoNumberGiveTheFirstError) {
  for (const std::string_view text : {"", "0", "abc", "000", "-5"})
    EXPECT_EQ(AmountInWords(text), "bląd 01! -- liczba jest równa zero lub argument nie jest iczbą "_pl) << text;
}

TEST(AmountInWords, SevenDigitsGiveTheSecondError) {
  for (const std::string_view text : {"1000000", "99999999999999999999999999"})
    EXPECT_EQ(AmountInWords(text), "bląd 02! -- argument ma wiecej niz 6 cyfr "_pl) << text;
}

// The same words once more, from the left and from the stems that Polish numerals share.
class SecondOpinion {
 public:
  std::string Words(unsigned number) const {
    char digits[8];
    std::snprintf(digits, sizeof digits, "%06u", number);
    const auto d = [&](int i) { return static_cast<std::size_t>(digits[i] - '0'); };
    std::string text = Hundreds(d(0)) + " ";
    text += d(1) == 1 ? Teen(d(2)) + std::string(" tysięcy  "_pl) : Tens(d(1)) + " " + Ones(d(2)) + Thousand(d(2));
    text += Hundreds(d(3)) + " ";
    text += d(4) == 1 ? Teen(d(5)) : Tens(d(4)) + " " + Ones(d(5));
    return std::string(Trim(text));
  }

 private:
  using Text = std::string;
  static Text P(std::string_view text) { return Text(text); }
  static Text Ones(std::size_t d) {
    static const std::vector<Text> kStems = {"",           "jeden",       "dwa",    "trzy",  "cztery",
                                             P("pięć"_pl), P("sześć"_pl), "siedem", "osiem", P("dziewięć"_pl)};
    return kStems[d];
  }
  static Text Teen(std::size_t d) {
    static const std::vector<Text> kStems = {"",       "jeden",    "dwana",   "trzyna",          "czterna", P("piętna"_pl),
                                             "szesna", "siedemna", "osiemna", P("dziewiętna"_pl)};
    return d == 0 ? P("dziesięć"_pl) : kStems[d] + P("ście"_pl);
  }
  static Text Tens(std::size_t d) {
    if (d < 2) return "";
    if (d == 2) return P("dwadzieścia"_pl);
    if (d == 4) return P("czterdzieści"_pl);
    return d < 5 ? Ones(d) + P("dzieści"_pl) : Ones(d) + P("dziesiąt"_pl);
  }
  static Text Hundreds(std::size_t d) {
    if (d < 3) return d == 0 ? "" : d == 1 ? "sto" : P("dwieście"_pl);
    return d < 5 ? Ones(d) + "sta" : Ones(d) + "set";
  }
  static Text Thousand(std::size_t d) {
    if (d == 0) return "";
    return P(d == 1 ? " tysiąc "_pl : d < 5 ? " tysiące "_pl : " tysięcy "_pl);
  }
};

TEST(AmountInWords, AgreesWithASecondOpinionOnAllNumbers) {
  const SecondOpinion opinion;
  for (unsigned number = 1; number <= 999999; ++number) {
    const std::string words = AmountInWords(std::to_string(number));
    if (words != opinion.Words(number)) FAIL() << number << ": " << words;
  }
}

class ValToString : public testing::Test {
 protected:
  void Ask(std::string_view answer) {
    test.record.clear();
    test.windows.inputs.push_back(std::string(answer));
    test.program.commands.RunMenu("mn_valtostring");
  }
  TestProgram test;
};

TEST_F(ValToString, WritesTheWordsAtTheCaret) {
  test.OpenText("Razem: .").EditedText.SetSelStart(7);
  Ask("1234");
  EXPECT_EQ(test.Text(), "Razem: jeden tysiąc dwieście trzydzieści cztery."_pl);
}

TEST_F(ValToString, SevenCharactersAreTooMany) {
  test.OpenText("x");
  Ask("1234567");
  EXPECT_EQ(test.Text(), "x");
  EXPECT_EQ(test.Asked().back(), "message \"Za długa liczba. Maks. 6 cyfr\" \"Morlan7\" stop ok");
}

TEST_F(ValToString, AnErrorGoesIntoTheDocumentToo) {
  test.OpenText("");
  Ask("abc");
  EXPECT_EQ(test.Text(), "bląd 01! -- liczba jest równa zero lub argument nie jest iczbą "_pl);
}

TEST_F(ValToString, AnEmptyAnswerWritesNothing) {
  test.OpenText("x");
  Ask("");
  EXPECT_EQ(test.Text(), "x");
}

class Words : public testing::Test {
 protected:
  // The command on a text that is selected whole.
  void Run(std::string_view text) {
    test.OpenText(text).EditedText.Select(0, text.size());
    test.record.clear();
    test.program.commands.RunMenu("mn_words");
  }
  TestProgram test;
};

TEST_F(Words, TakeThePlaceOfTheSelectedNumber) {
  Run("105");
  EXPECT_EQ(test.Text(), "sto  pięć"_pl);
  test.program.commands.RunMenu("xmn_undo");
  EXPECT_EQ(test.Text(), "105");
}

TEST_F(Words, NeedANumber) {
  for (const std::string_view text : {"", "abc", "12a"}) {
    Run(text);
    EXPECT_EQ(test.Text(), text);
    EXPECT_EQ(test.Asked().back(), "message \"Ta opcja wymaga zaznaczenie fragmentu będącego liczbą\" \"Morlan7\" warning ok");
  }
}

TEST_F(Words, TakeSixDigitsAtMost) {
  Run("1234567");
  EXPECT_EQ(test.Text(), "1234567");
  EXPECT_EQ(test.Asked().back(), "message \"Zaznaczona liczba nie może być dłuższa niż 6 cyfr\" \"Morlan7\" warning ok");
}

}  // namespace
}  // namespace morlan
