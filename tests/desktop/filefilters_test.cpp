#include "platform/qt/filefilters.h"

#include <gtest/gtest.h>

#include "core/text.h"

namespace morlan {
namespace {

TEST(FileFilters, DescriptionsAndPatternsStandInTurn) {
  EXPECT_EQ(QtFilters("Pliki HTML (*.HTML,*.HTM,*SHTM)|*.html;*.htm;*.shtm|"),
            QStringList{QStringLiteral("Pliki HTML (*.html *.htm *.shtm)")});
  EXPECT_EQ(QtFilters("Plik HTML (*.HTML)|*.htm,*.html|Pliki kanałów inf. (*.CDF)|*.cdf|"_pl),
            (QStringList{QStringLiteral("Plik HTML (*.htm *.html)"), QStringLiteral("Pliki kanałów inf. (*.cdf)")}));
}

TEST(FileFilters, AllFilesHaveNoDot) {
  EXPECT_EQ(QtFilters("Wszystkie pliki (*.*)|*.*|"), QStringList{QStringLiteral("Wszystkie pliki (*)")});
}

TEST(FileFilters, ProgramsMayHaveAnyName) {
  EXPECT_EQ(QtFilters("Pliki wykonywalne (*.EXE)|*.exe|"), QStringList{QStringLiteral("Pliki wykonywalne (*)")});
}

TEST(FileFilters, ADescriptionWithoutPatternsIsWhole) {
  const std::vector<FileFilter> filters = ReadFilters("Style|*.stl");
  ASSERT_EQ(filters.size(), 1u);
  EXPECT_EQ(filters[0].description, "Style");
  EXPECT_EQ(filters[0].patterns, std::vector<std::string>{"*.stl"});
}

TEST(FileFilters, HalfAPairIsLeftOut) {
  EXPECT_TRUE(QtFilters("").isEmpty());
  EXPECT_TRUE(QtFilters("Opis").isEmpty());
  EXPECT_EQ(QtFilters("A|*.a|B").size(), 1);
}

}  // namespace
}  // namespace morlan
