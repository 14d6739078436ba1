// The script keywords that colouring shows in comments.
#pragma once

#include <array>
#include <string_view>

namespace morlan {

// The names as listed, in the order of the search. A keyword counts where a blank follows it, in any letter case and as
// the tail of a longer word too: "print " holds "int ".
inline constexpr std::array<std::string_view, 54> kJavaKeywords = {
    "ABSTRACT", "BOOLEAN",    "BREAK",     "BYTE",   "CASE",       "CATCH",  "CHAR",      "CLASS", "CONST",  "CONTINUE",     "DEFAULT",
    "DELETE",   "DO",         "DOUBLE",    "ELSE",   "EXTENDS",    "FALSE",  "FINALY",    "FLOAT", "FOR",    "FUNCTION",     "GOTO",
    "IF",       "IMPLEMENTS", "IMPORT",    "IN",     "INSTANCEOF", "INT",    "INTERFACE", "LONG",  "NATIVE", "NEW",          "NULL",
    "PACKAGE",  "PRIVATE",    "PROTECTED", "PUBLIC", "RETURN",     "SHORT",  "STATIC",    "SUPER", "SWITCH", "SYNCHRONIZED", "THIS",
    "THROW",    "THROWS",     "TRANSIENT", "TRUE",   "TRY",        "TYPEOF", "VAR",       "VOID",  "WHILE",  "WITH",
};

// The length of the longest keyword that ends at the end of `text`, 0 when there is none.
std::size_t KeywordAtEnd(std::string_view text);

}  // namespace morlan
