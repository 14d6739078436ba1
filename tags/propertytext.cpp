#include "tags/propertytext.h"

#include <algorithm>
#include <iterator>

#include "core/text.h"
#include "tags/tageditor.h"
#include "tags/tagscan.h"

namespace morlan {
namespace {

// Attributes whose values may hold blanks.
constexpr std::string_view kTextAttributes[] = {"src", "href", "face", "content", "name", "value", "alt"};

void WriteAttribute(TagText& tag, const SheetAttribute& attribute) {
  if (attribute.value.empty()) return;
  const std::string name = Concat({" ", attribute.name});
  const bool isSwitch = attribute.kind == ParamKind::Switch;
  if (isSwitch && EqualNoCase(attribute.value, "TRUE"))
    tag.Literal(name);
  else if (!isSwitch || !EqualNoCase(attribute.value, "FALSE"))
    tag.Quoted(Concat({name, "="}), attribute.value);
}

}  // namespace

std::string PropertyText(const SheetValues& values) {
  TagText tag(Concat({"<", values.tagName}));
  for (const SheetAttribute& attribute : values.attributes) WriteAttribute(tag, attribute);
  for (const SheetAttribute& event : values.events) WriteAttribute(tag, event);
  if (values.style) tag.Quoted(" STYLE=", *values.style);
  if (values.cssClass) tag.Quoted(" CLASS=", *values.cssClass);
  return tag.Close();
}

std::string ReadAttribute(std::string_view tag, std::string_view name) {
  const bool mayHoldBlanks =
      std::any_of(std::begin(kTextAttributes), std::end(kTextAttributes), [&](std::string_view row) { return EqualNoCase(row, name); });
  return mayHoldBlanks ? GetTagTextParam(tag, name) : GetTagParam(tag, name);
}

std::string TagNameOf(std::string_view tag) {
  const std::string_view behind = tag.substr(std::min<std::size_t>(1, tag.size()));
  return std::string(behind.substr(0, behind.find_first_of(" \t\r\n>")));
}

}  // namespace morlan
