#include "text/documentcharset.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/text.h"
#include "tags/metatags.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

struct CharSetRow {
  std::string_view name, menu;
};
constexpr CharSetRow kCharSets[] = {
    {"windows-1250", "xmn_win1250"}, {"iso-8859-2", "xmn_iso88592"}, {"ascii", "xmn_ascii"},
    {"utf-8", "mn_unicode"},         {"", "xmn_plcharinne"},
};

}  // namespace

std::string DecodeCharSet(Program& program, std::string text, std::string_view) {
  program.CurrentCharset = "Win1250";
  return text;
}

void MarkCharSet(TEditor& document) {
  for (const CharSetRow& row : kCharSets) document.menu.SetChecked(row.menu, false);
  const std::string content = GetUpperCaseMetaContent(document.EditedText.Text(), "Content-Type");
  const std::string name = LowerCase(GetTagParam(content, "charset"));
  if (name.empty()) return;
  for (const CharSetRow& row : kCharSets)
    if (row.name == name || row.name.empty()) return document.menu.SetChecked(row.menu, true);
}

}  // namespace morlan
