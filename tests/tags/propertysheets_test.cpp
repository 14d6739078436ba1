#include "tags/propertysheets.h"

#include "tests/tags/sheetfixture.h"

namespace morlan {
namespace {

using PropertySheetsTest = SheetTest;

TEST_F(PropertySheetsTest, ATagIsAddedToTheFile) {
  EXPECT_TRUE(AddTagRecord(test_.program, {.name = "nowy", .info = "Opis"}));
  EXPECT_EQ(PropertyFile(test_.Read("program\\Morlan7.tpf")).Tags().back().info, "Opis");
  EXPECT_FALSE(AddTagRecord(test_.program, {.name = "NOWY"}));
  EXPECT_NE(FindTagRecord(test_.program, "Nowy"), 0u);
}

TEST_F(PropertySheetsTest, WhatIsBuiltInStaysWithAMessage) {
  const std::string before = test_.Read("program\\Morlan7.tpf");
  test_.Asked();
  EXPECT_FALSE(RemoveTagRecord(test_.program, "Input"));
  EXPECT_FALSE(RemoveParamRecord(test_.program, "input", "Checked"));
  EXPECT_EQ(test_.Asked(), (Record{"message \"Ten znacznik nie może zostać usunięty\" \"Morlan7\" stop ok",
                                   "message \"Ten parametr nie może zostać usunięty\" \"Morlan7\" stop ok"}));
  EXPECT_EQ(test_.Read("program\\Morlan7.tpf"), before);
}

TEST_F(PropertySheetsTest, OtherEntriesAreRemoved) {
  EXPECT_TRUE(RemoveParamRecord(test_.program, "input", "size"));
  EXPECT_TRUE(RemoveTagRecord(test_.program, "PUSTY"));
  const PropertyFile file(test_.Read("program\\Morlan7.tpf"));
  EXPECT_EQ(file.FindTag("pusty"), 0u);
  EXPECT_EQ(file.Params(1)->size(), 8u);
  EXPECT_FALSE(RemoveTagRecord(test_.program, "pusty"));
  EXPECT_FALSE(RemoveParamRecord(test_.program, "input", "size"));
}

TEST_F(PropertySheetsTest, TheFirstTagOfAllMakesTheFile) {
  TestProgram other;
  EXPECT_TRUE(AddTagRecord(other.program, {.name = "a"}));
  EXPECT_EQ(other.Read("program\\Morlan7.tpf").size(), kTagRecordSize);
}

TEST_F(PropertySheetsTest, AFileThatCannotBeWrittenChangesNothing) {
  TestProgram other;
  other.files.CreateDirectory(other.Path("program\\Morlan7.tpf"));
  EXPECT_FALSE(AddTagRecord(other.program, {.name = "a"}));
  EXPECT_EQ(FindTagRecord(other.program, "a"), 0u);
}

TEST_F(PropertySheetsTest, ZeroIsNoColourAndOnlyForColours) {
  EXPECT_EQ(DefaultOf({.name = "c", .kind = ParamKind::Colour, .defaultValue = "0"}), "");
  EXPECT_EQ(DefaultOf({.name = "c", .kind = ParamKind::Colour, .defaultValue = "Red"}), "Red");
  EXPECT_EQ(DefaultOf({.name = "c", .kind = ParamKind::Text, .defaultValue = "0"}), "0");
}

}  // namespace
}  // namespace morlan
