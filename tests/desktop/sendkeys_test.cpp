#include "platform/qt/sendkeys.h"

#include <QLineEdit>

#include "tests/desktop/support/desktopfixture.h"

namespace morlan {
namespace {

struct Row {
  const char* keys;
  const char* text;
};

TEST(SendKeys, TypesTextsAndNamedKeys) {
  const Row rows[] = {
      {"abc", "abc"},        {"ab{LEFT}c", "acb"}, {"ab{BS}", "a"},      {"{y 3}", "yyy"}, {"{+}{{}{}}", "+{}"}, {"ab{HOME}{DEL 2}c", "c"},
      {"{NOSUCHKEY}a", "a"}, {"a{", "a"},          {"ab+{LEFT}c", "ac"}, {"", ""},
  };
  for (const Row& row : rows) {
    QLineEdit field;
    PostKeys(row.keys, field);
    Settle();
    EXPECT_EQ(field.text(), QLatin1StringView(row.text)) << row.keys;
  }
}

}  // namespace
}  // namespace morlan
