// A program with macros that the tests write.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/text.h"
#include "tests/support/testprogram.h"

namespace morlan {

class MacroTest : public testing::Test {
 protected:
  // What a macro makes of a document, with a stretch of it selected.
  std::string Run(std::string_view macro, std::string_view text = "", std::size_t start = 0, std::size_t length = 0) {
    test.OpenText(text).EditedText.Select(start, length);
    return RunAgain(macro);
  }
  std::string RunAgain(std::string_view macro) {
    test.Write("program\\MAKRO\\proba.mac", macro);
    test.record.clear();
    EXPECT_TRUE(test.program.runMacro("proba"));
    return test.Text();
  }
  // The messages of the last run, as "text|title".
  std::vector<std::string> Messages() {
    std::vector<std::string> messages;
    for (const std::string& line : test.record)
      if (line.starts_with("message ")) messages.push_back(line);
    return messages;
  }
  static std::string Message(std::string_view text, std::string_view title, std::string_view icon = "stop") {
    return Concat({"message ", Quoted(text), " ", Quoted(title), " ", icon, " ok"});
  }
  // A macro that fails: its own message, the message of the end, and an untouched document.
  void ExpectFatal(std::string_view macro, std::string_view text, std::string_view title) {
    EXPECT_EQ(Run(macro, "nietkniety"), "nietkniety") << macro;
    const std::vector<std::string> expected = {
        Message(text, title),
        Message("Podczas wykomywania makrodefinicji występił błąd krytyczny. Makro przerwane"_pl, "Błąd krytyczny makro!"_pl)};
    EXPECT_EQ(Messages(), expected) << macro;
  }

  TestProgram test;
};

}  // namespace morlan
