#include "platform/posix/registry.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/encoding.h"
#include "tests/platform/nativefolder.h"

namespace morlan {
namespace {

constexpr std::string_view kVerb = "htmlfile\\shell\\Morlan7";

class FileRegistryTest : public testing::Test {
 protected:
  FileRegistryTest() : registry((folder.path / "rejestr").string()) {}
  NativeFolder folder;
  FileRegistry registry;
};

TEST_F(FileRegistryTest, KeepsValuesForTheNextRun) {
  EXPECT_EQ(registry.GetString(kVerb, ""), std::nullopt);
  EXPECT_TRUE(registry.SetString(kVerb, "", "&Edytuj w Morlan7 żółw"_pl));
  EXPECT_TRUE(registry.SetString(kVerb, "x", "1"));
  EXPECT_EQ(folder.Get("rejestr"), "htmlfile\\shell\\Morlan7\t\t&Edytuj w Morlan7 żółw\nhtmlfile\\shell\\Morlan7\tx\t1\n");
  FileRegistry next((folder.path / "rejestr").string());
  EXPECT_EQ(next.GetString("HTMLFILE\\shell\\morlan7", ""), "&Edytuj w Morlan7 żółw"_pl);
  EXPECT_EQ(next.GetString(kVerb, "X"), "1");
}

TEST_F(FileRegistryTest, ReplacesAValueInPlace) {
  registry.SetString("a", "", "1");
  registry.SetString("b", "", "2");
  registry.SetString("A", "", "3");
  EXPECT_EQ(folder.Get("rejestr"), "a\t\t3\nb\t\t2\n");
}

TEST_F(FileRegistryTest, AValueThatIsThereCostsNoWriting) {
  registry.SetString("a", "", "1");
  const auto before = std::filesystem::last_write_time(folder.path / "rejestr") - std::chrono::hours(1);
  std::filesystem::last_write_time(folder.path / "rejestr", before);
  EXPECT_TRUE(registry.SetString("a", "", "1"));
  EXPECT_EQ(std::filesystem::last_write_time(folder.path / "rejestr"), before);
}

TEST_F(FileRegistryTest, TabsLineEndsAndPercentSignsComeBack) {
  const std::string odd = "100%\t\r\n%41";
  EXPECT_TRUE(registry.SetString(odd, odd, odd));
  EXPECT_EQ(folder.Get("rejestr").find('\r'), std::string::npos);
  EXPECT_EQ(registry.GetString(odd, odd), odd);
}

TEST_F(FileRegistryTest, LinesThatAreNoEntriesAreSkipped) {
  folder.Put("rejestr", "nic\n\na\tb\nk\tn\tv%4\nz\t\tostatni%2");
  EXPECT_EQ(registry.GetString("k", "n"), "v%4");
  EXPECT_EQ(registry.GetString("z", ""), "ostatni%2");
  EXPECT_EQ(registry.GetString("a", "b"), std::nullopt);
}

TEST_F(FileRegistryTest, AFileThatCannotBeReadIsNotReplaced) {
  std::filesystem::create_directory(folder.path / "rejestr");
  EXPECT_FALSE(registry.SetString("a", "", "1"));
  EXPECT_EQ(registry.GetString("a", ""), std::nullopt);
}

TEST_F(FileRegistryTest, AMissingFolderIsAFailure) {
  FileRegistry nowhere((folder.path / "brak/rejestr").string());
  EXPECT_FALSE(nowhere.SetString("a", "", "1"));
}

}  // namespace
}  // namespace morlan
