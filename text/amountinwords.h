// Whole numbers of up to six digits in Polish words.
#pragma once

#include <string>
#include <string_view>

namespace morlan {

class Program;

// The number at the front of a text in words. The last digit of the thousands alone chooses their word, and a nought there
// drops it; the blanks that empty digits leave between words stay. Nought, what is no number and a number of more digits
// give the text of an error.
std::string AmountInWords(std::string_view text);

// "&Zapisz słownie": asks for a number and writes its words at the caret.
void mn_valtostring_Click(Program& program);
// Puts the selected number's words in its place.
void mn_words_Click(Program& program);

}  // namespace morlan
