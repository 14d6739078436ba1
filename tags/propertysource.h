// The readable form of the file behind the property sheets, from which the shipped one is built. It is UTF-8, line by line:
//
//   # a comment
//   znacznik NAME INFO                    begins a tag; the rest of the line is the text about it
//   grupa NAME                            begins a group of attributes that several tags share
//     NAME KIND [DETAILS] [= DEFAULT]     an attribute, set in by at least one blank
//     + GROUP                             the attributes of a group, except those that the tag has already
//
// KIND and its DETAILS: "kolor", "tekst", "lista VALUE ...", "plik LIST", "przełącznik" (its default is FALSE), "zdarzenie",
// "styl", "okno" with "kolor", "grafika", "strony" or "wszystkie", and "ukryte" for one whose button is not offered.
// "nowy" in front of an attribute's name tells that the user may remove it; the others are built in.
// Words are parted by blanks. A word in quotes may hold any character, with \" \\ and \xHH for a quote, a backslash and a
// byte. A group may be used above the place where it stands.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tags/propertyfile.h"

namespace morlan {

// One file of the source; its name serves the messages alone.
struct PropertySourceText {
  std::string name, utf8;
};

struct CompiledProperties {
  PropertyFile file;                // the tags in the order of their names; only what is free of faults
  std::vector<std::string> faults;  // "NAME:LINE: what is wrong", in UTF-8; empty when all is well
};

// All texts together are one source. A text that does not fit its field is a fault, never cut.
CompiledProperties CompileProperties(const std::vector<PropertySourceText>& source);

// The source, in UTF-8, that gives the same tags and attributes again, without groups. What a kind has no use for is left
// out. Nothing when the chain of a tag is damaged.
std::optional<std::string> PropertySourceOf(const PropertyFile& file);

}  // namespace morlan
