#include "macros/macrostate.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

TEST(TrimLineEnds, CutsOnePairAtEitherEnd) {
  EXPECT_EQ(TrimLineEnds("\r\na\r\n"), "a");
  EXPECT_EQ(TrimLineEnds("\r\n\r\na\r\n\r\n"), "\r\na\r\n");
  EXPECT_EQ(TrimLineEnds("\n\na"), "a");
  EXPECT_EQ(TrimLineEnds("a"), "a");
  EXPECT_EQ(TrimLineEnds(""), "");
}

TEST(TrimLineEnds, LeavesASingleOne) {
  EXPECT_EQ(TrimLineEnds("\n"), "\n");
  EXPECT_EQ(TrimLineEnds("\na\r"), "\na\r");
  EXPECT_EQ(TrimLineEnds("\r\n\r"), "\r");
}

TEST(HoldsLineEndsOnly, AnEmptyTextCounts) {
  EXPECT_TRUE(HoldsLineEndsOnly(""));
  EXPECT_TRUE(HoldsLineEndsOnly("\r\n\n"));
  EXPECT_FALSE(HoldsLineEndsOnly("\r\n "));
}

TEST(RawMacroParam, ReadsWhatStandsBetweenQuotes) {
  EXPECT_EQ(RawMacroParam("{msgbox prompt=\"Ok?\" title=\"Pytanie\"", "prompt"), "Ok?");
  EXPECT_EQ(RawMacroParam("{msgbox prompt=\"Ok?\" TITLE=\"Pytanie\"", "title"), "Pytanie");
  EXPECT_EQ(RawMacroParam("{msgbox prompt=\"\"", "prompt"), "");
  EXPECT_EQ(RawMacroParam("{msgbox", "prompt"), "");
}

TEST(RawMacroParam, ANameWithoutQuotesIsTrue) { EXPECT_EQ(RawMacroParam("{msgbox prompt=Ok", "prompt"), "true"); }

TEST(RawMacroParam, AValueWithoutItsClosingQuoteRunsToTheEnd) { EXPECT_EQ(RawMacroParam("{print text=\"a b", "text"), "a b"); }

TEST(RawMacroParam, TheFirstPlaceCountsEvenWithinAnotherNameOnPurpose) {
  EXPECT_EQ(RawMacroParam("{for name=\"total\" to=\"5\"", "to"), " to=") << "within a value";
  EXPECT_EQ(RawMacroParam("{insert filetype=\"text\" type=\"file\"", "type"), "text") << "within a longer name";
}

TEST(MacroState, AFilledRecordOfTheNameWinsOverAFreeOne) {
  MacroState state;
  state.MacroVariables[3].name = "a";
  EXPECT_EQ(state.VariableToFill("a"), &state.MacroVariables[3]);
  EXPECT_EQ(state.VariableToFill("b"), &state.MacroVariables[0]);
  for (MacroVariable& record : state.MacroVariables) record.name = "x";
  EXPECT_EQ(state.VariableToFill("b"), nullptr);
}

TEST(MacroState, AVariableHidesALoopOfItsName) {
  MacroState state;
  state.MacroLoops[0] = {"i", 1, 5, 3};
  state.MacroLoopCount = 1;
  EXPECT_EQ(state.ValueOf("i"), "3");
  state.MacroVariables[0] = {"i", "\r\nx\r\n", false};
  EXPECT_EQ(state.ValueOf("i"), "x");
  EXPECT_EQ(state.ValueOf("j"), std::nullopt);
}

}  // namespace
}  // namespace morlan
