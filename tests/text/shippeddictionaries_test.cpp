// The dictionaries that come with the program: what is right is known, what is misspelt is found.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "core/text.h"
#include "platform/posix/files.h"
#include "text/mlndictionary.h"

namespace morlan {
namespace {

constexpr std::size_t kMostBytes = 12'000'000;

std::string NativePath(const std::string& name) { return MORLAN7_TREE "/SLOWNIKI/" + name; }

struct ShippedDictionary {
  PosixFiles files;
  MlnDictionary control{files};
  explicit ShippedDictionary(const std::string& extension, std::uint8_t language) {
    for (std::size_t i = 0; i < 3; ++i) control.File[i] = files.FromNative(NativePath(std::string("morlan7") + "siu"[i] + "." + extension));
    control.Language = language;
  }
  // The unknown words of a text in UTF-8, which are in UTF-8 too.
  std::vector<std::string> Unknown(std::string_view text) {
    std::vector<std::string> unknown;
    control.MlnDictionary_MissSpeld = [&](const std::string& word, std::string&, std::size_t, std::size_t) {
      unknown.push_back(ToUtf8(word));
    };
    bool finished = false;
    control.MlnDictionary_CheckingFinished = [&] { finished = true; };
    control.Text = FromUtf8(text);
    control.Start();
    EXPECT_TRUE(finished) << "there is no dictionary";
    return unknown;
  }
};

struct Polish : testing::Test, ShippedDictionary {
  Polish() : ShippedDictionary("pol", 1) {}
};
struct English : testing::Test, ShippedDictionary {
  English() : ShippedDictionary("ang", 2) {}
};

using Texts = std::vector<std::string>;

TEST(ShippedDictionaries, AreSmall) {
  for (const char* extension : {"pol", "ang"}) {
    const auto bits = std::filesystem::file_size(NativePath(std::string("morlan7s.") + extension));
    EXPECT_EQ(bits, 750'001u);
    EXPECT_LE(bits + std::filesystem::file_size(NativePath(std::string("morlan7i.") + extension)), kMostBytes);
  }
}

TEST_F(Polish, KnowsARunningText) {
  EXPECT_EQ(
      Unknown(
          "<H1>Witamy na stronie domowej!</H1>\r\n<P>Mieszkam w Krakowie, niedaleko Wawelu, i zbieram znaczki. W roku 1998 pojechaliśmy "
          "nad morze; zdjęcia z biało-czerwoną flagą można obejrzeć w galerii. Książki Kennedy'ego czytałbym godzinami. "
          "G&oacute;ry, &#380;aglówki i WYCIECZKI – to jest to!</P><IMG SRC=\"wawel.gif\" ALT=\"Zamek królewski\">"
          "Pisz na adres ala@wp.pl lub zajrzyj na www.onet.pl."),
      Texts{});
}

TEST_F(Polish, FindsMisspeltWordsInARunningText) {
  EXPECT_EQ(Unknown("<P>Wiatamy na naszej stronnie! <B>Pżyjechaliśmy</B> nad może z Krakowa. warszawa jest <IMG ALT=\"ładnna\">"),
            (Texts{"Wiatamy", "stronnie", "Pżyjechaliśmy", "warszawa", "ładnna"}));
}

TEST_F(Polish, FindsCommonMisspellings) {
  std::ifstream list(MORLAN7_SOURCE_DIR "/tests/text/misspellings.txt");
  std::string misspelt, meant, page, right;
  std::size_t count = 0;
  for (; list >> misspelt >> meant; ++count) {
    page += misspelt + "\n";
    right += meant + "\n";
  }
  ASSERT_EQ(count, 1000u);
  EXPECT_GE(Unknown(page).size(), 990u);
  EXPECT_EQ(Unknown(right), Texts{});
}

TEST_F(Polish, KnowsTheWordsOfItsList) {
  std::ifstream list("/usr/share/dict/polish");
  ASSERT_TRUE(list) << "the list that the dictionary is made of";
  std::string word, page;
  std::size_t count = 0;
  for (std::size_t line = 0; std::getline(list, word); ++line) {
    if (line % 43 != 0) continue;
    page += word + "\r\n";
    ++count;
  }
  ASSERT_GE(count, 100'000u);
  EXPECT_EQ(Unknown(page), Texts{});
}

TEST_F(Polish, ProposesTheRightWordForMostMisspellings) {
  ASSERT_TRUE(control.OpenDictionaries());
  std::ifstream list(MORLAN7_SOURCE_DIR "/tests/text/misspellings.txt");
  std::string misspelt, meant;
  std::size_t proposed = 0;
  while (list >> misspelt >> meant)
    for (const std::string& word : control.Similar(FromUtf8(misspelt))) proposed += ToUtf8(word) == meant;
  EXPECT_GE(proposed, 950u);
}

TEST_F(English, KnowsARunningTextAndFindsMisspeltWords) {
  EXPECT_EQ(Unknown("Welcome to London's colour and color galleries: it's a well-known place, isn't it? I'VE SEEN THE TOWER. "
                    "Welcom to my hompage, recieve the dog's definately."),
            (Texts{"Welcom", "hompage", "recieve", "definately"}));
}

}  // namespace
}  // namespace morlan
