#include "tags/gaptext.h"

#include <gtest/gtest.h>

#include "core/editsurface.h"

namespace morlan {
namespace {

// "abcdefgh" with the gap behind "abc" or at one of the ends.
class GapTextTest : public testing::TestWithParam<std::size_t> {
 protected:
  void SetUp() override {
    editor_.SetText("abcdegh<");
    editor_.Select(GetParam(), 0);
    editor_.SetSelText("f");
    text_ = std::string(editor_.FrontText()) + std::string(editor_.BackText());
  }
  MlnEditor editor_;
  std::string text_;
};

TEST_P(GapTextTest, ReadsLikeOneText) {
  const GapText gap(editor_);
  ASSERT_EQ(gap.size(), text_.size());
  std::string copy;
  for (std::size_t i = 0; i < text_.size(); ++i) {
    EXPECT_EQ(gap[i], text_[i]);
    for (std::size_t end = i; end <= text_.size(); ++end) EXPECT_EQ(gap.Between(i, end, copy), text_.substr(i, end - i));
    for (const char character : {'a', 'f', '<', 'x'}) {
      EXPECT_EQ(gap.find(character, i), text_.find(character, i));
      EXPECT_EQ(gap.FindBackwards(character, i), i == 0 ? std::string::npos : text_.rfind(character, i - 1));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Gaps, GapTextTest, testing::Values(0u, 3u, 8u));

}  // namespace
}  // namespace morlan
