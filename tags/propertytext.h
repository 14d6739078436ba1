// What a property sheet holds, and the tag that it becomes.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tags/propertyfile.h"

namespace morlan {

struct SheetAttribute {
  std::string name;
  ParamKind kind = ParamKind::Text;
  std::string value;
};

struct SheetValues {
  std::string tagName;
  std::vector<SheetAttribute> attributes, events;  // in the order of the sheet; those without a value are not written
  std::optional<std::string> style, cssClass;      // nothing: not used
};

// Values stand in quotes, numbers too, and quotes within them are not escaped. A switch is a bare name where it is "TRUE" and
// absent where it is "FALSE"; another value of a switch is written as of any attribute.
std::string PropertyText(const SheetValues& values);

// The attribute's value in a tag, by the reader that suits its name; empty when it is not there.
std::string ReadAttribute(std::string_view tag, std::string_view name);

// The first word behind the "<".
std::string TagNameOf(std::string_view tag);

}  // namespace morlan
