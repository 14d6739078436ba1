#include "platform/posix/commandline.h"

#include <gtest/gtest.h>

namespace morlan {
namespace {

struct Row {
  std::string_view line;
  std::vector<std::string> arguments;
};

class SplitCommandLineTest : public testing::TestWithParam<Row> {};

TEST_P(SplitCommandLineTest, Splits) { EXPECT_EQ(SplitCommandLine(GetParam().line), GetParam().arguments) << GetParam().line; }

INSTANTIATE_TEST_SUITE_P(Arguments, SplitCommandLineTest,
                         testing::Values(Row{"", {}}, Row{"  \t ", {}}, Row{"p", {"p"}}, Row{" p  a\tb ", {"p", "a", "b"}},
                                         Row{R"(p "a b" c)", {"p", "a b", "c"}}, Row{R"(p a" b"c)", {"p", "a bc"}},
                                         Row{R"(p "")", {"p", ""}}, Row{R"(p "a)", {"p", "a"}},
                                         Row{R"(p "a ""b"" c")", {"p", R"(a "b" c)"}},
                                         Row{R"(p $(rm) `x` 'a b' *)", {"p", "$(rm)", "`x`", "'a", "b'", "*"}}));
INSTANTIATE_TEST_SUITE_P(Backslashes, SplitCommandLineTest,
                         testing::Values(Row{R"(p a\b\\c)", {"p", R"(a\b\\c)"}}, Row{R"(p a\"b)", {"p", R"(a"b)"}},
                                         Row{R"(p a\\"b c")", {"p", R"(a\b c)"}}, Row{R"(p a\\\"b c)", {"p", R"(a\"b)", "c"}},
                                         Row{R"(p "c:\dom\\" x)", {"p", R"(c:\dom\)", "x"}}, Row{R"(p "a\" b")", {"p", R"(a" b)"}},
                                         Row{R"(p c:\dom\)", {"p", R"(c:\dom\)"}}));
INSTANTIATE_TEST_SUITE_P(InTheProgramBackslashesAreThemselves, SplitCommandLineTest,
                         testing::Values(Row{R"("c:\a b\" x)", {R"(c:\a b\)", "x"}}, Row{R"(c:\p\\"q r" x)", {R"(c:\p\\q r)", "x"}}));

}  // namespace
}  // namespace morlan
