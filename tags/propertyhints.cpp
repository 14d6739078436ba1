#include "tags/propertyhints.h"

#include <vector>

#include "core/defs.h"
#include "core/text.h"
#include "platform/forms/controls.h"
#include "tags/propertysheets.h"

namespace morlan {
namespace {

bool IsListed(ParamKind kind) { return kind != ParamKind::Colour && kind != ParamKind::Dialog; }

}  // namespace

void FillHintList(Program& program, ListBox& list, std::string_view tagName) {
  if (list.Tag == tagName && list.ListCount() != 0) return;
  list.Clear();
  const auto params = ParamsOfTag(program, tagName);
  if (!params) return;
  std::vector<std::string> rows;
  for (const ParamRecord& param : *params)
    if (IsListed(param.kind)) rows.push_back(Concat({param.name, param.kind == ParamKind::Switch ? "" : "="}));
  list.AddItems(rows);
  list.SetListIndex(0);
}

std::string HintBlockText(Program& program, std::string_view tagName) {
  std::string text;
  const auto params = ParamsOfTag(program, tagName);
  if (!params) return text;
  for (const ParamRecord& param : *params) {
    text += Concat({" ", param.name});
    if (param.kind != ParamKind::Switch) text += Concat({"=", DefaultOf(param)});
  }
  return text;
}

}  // namespace morlan
