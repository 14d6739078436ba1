#include "text/amountinwords.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "core/defs.h"
#include "core/document.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/insertcommands.h"

namespace morlan {
namespace {

using Words = std::array<std::string_view, 10>;  // by the digit

// clang-format off
constexpr Words kOnes = {"", "jeden", "dwa", "trzy", "cztery", "pięć"_pl, "sześć"_pl, "siedem", "osiem", "dziewięć"_pl};
// "jedenście" is what earlier versions wrote; documents and macros reckon with it.
constexpr Words kTeens = {"dziesięć"_pl, "jedenście"_pl, "dwanaście"_pl, "trzynaście"_pl, "czternaście"_pl,
                          "piętnaście"_pl, "szesnaście"_pl, "siedemnaście"_pl, "osiemnaście"_pl, "dziewiętnaście"_pl};
constexpr Words kTens = {"", "dziesięć"_pl, "dwadzieścia"_pl, "trzydzieści"_pl, "czterdzieści"_pl,
                         "pięćdziesiąt"_pl, "sześćdziesiąt"_pl, "siedemdziesiąt"_pl, "osiemdziesiąt"_pl, "dziewięćdziesiąt"_pl};
constexpr Words kHundreds = {"", "sto", "dwieście"_pl, "trzysta", "czterysta",
                             "pięćset"_pl, "sześćset"_pl, "siedemset", "osiemset", "dziewięćset"_pl};
constexpr Words kThousands = {"", " tysiąc "_pl, " tysiące "_pl, " tysiące "_pl, " tysiące "_pl,
                              " tysięcy "_pl, " tysięcy "_pl, " tysięcy "_pl, " tysięcy "_pl, " tysięcy "_pl};
// clang-format on

constexpr std::string_view kNought = "bląd 01! -- liczba jest równa zero lub argument nie jest iczbą "_pl;
constexpr std::string_view kTooLong = "bląd 02! -- argument ma wiecej niz 6 cyfr "_pl;

constexpr std::size_t kMostDigits = 6;
constexpr std::uint64_t kLargest = 999999;

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

// Stops growing above the largest number that has words.
std::uint64_t NumberInFront(std::string_view text) {
  std::uint64_t number = 0;
  for (const char character : TrimLeft(text)) {
    if (!IsDigit(character)) break;
    number = std::min<std::uint64_t>(number * 10 + static_cast<std::uint64_t>(character - '0'), kLargest + 1);
  }
  return number;
}

std::string WordsOf(std::uint64_t number) {
  std::array<std::size_t, kMostDigits> digit{};  // from the right
  for (std::size_t& d : digit) {
    d = number % 10;
    number /= 10;
  }
  std::string words = digit[1] == 1 ? std::string(kTeens[digit[0]]) : Concat({kTens[digit[1]], " ", kOnes[digit[0]]});
  words = Concat({kHundreds[digit[2]], " ", words});
  if (digit[4] == 1)
    words = Concat({kTeens[digit[3]], " tysięcy "_pl, " ", words});
  else
    words = Concat({kTens[digit[4]], " ", kOnes[digit[3]], kThousands[digit[3]], words});
  words = Concat({kHundreds[digit[5]], " ", words});
  return std::string(Trim(words));
}

void ShowMessage(Program& program, std::string_view text) {
  program.platform.windows.Message({.text = std::string(text), .icon = Icon::Warning});
}

}  // namespace

std::string AmountInWords(std::string_view text) {
  const std::uint64_t number = NumberInFront(text);
  if (number == 0) return std::string(kNought);
  if (number > kLargest) return std::string(kTooLong);
  return WordsOf(number);
}

void mn_valtostring_Click(Program& program) {
  const std::string answer =
      program.platform.windows.Input("Podaj liczbę, którą mam zapisać słownie (maks. 6 cyfr)"_pl, "Zapisz słownie"_pl, "").value_or("");
  if (answer.size() > kMostDigits) return ShowError(program, "Za długa liczba. Maks. 6 cyfr"_pl);
  if (!answer.empty() && program.ActiveDocument) program.ActiveDocument->InsertAtCaret(AmountInWords(answer));
}

void mn_words_Click(Program& program) {
  if (!program.ActiveEditor) return;
  const std::string selected = program.ActiveEditor->SelText();
  const std::string_view digits = Trim(selected);
  if (digits.empty() || !std::all_of(digits.begin(), digits.end(), IsDigit))
    return ShowMessage(program, "Ta opcja wymaga zaznaczenie fragmentu będącego liczbą"_pl);
  if (digits.size() > kMostDigits) return ShowMessage(program, "Zaznaczona liczba nie może być dłuższa niż 6 cyfr"_pl);
  ReplaceSelection(program, AmountInWords(digits));
}

}  // namespace morlan
