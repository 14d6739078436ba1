// Names of files between the machine, where a name is any bytes without "/" and NUL (UTF-8 as a rule), and the program,
// where it is Windows-1250.
//
// What the program cannot hold is escaped byte by byte as "¤" and two hexadecimal digits: characters that Windows-1250
// lacks, malformed UTF-8, control characters, "\", and "¤" itself. So every name of the machine has exactly one form here
// from which its bytes come back, and no two names share one: "żółw→.html" is "żółw¤E2¤86¤92.html".
#pragma once

#include <string>
#include <string_view>

namespace morlan {

inline constexpr std::string_view kDrive = "c:";  // the only one; its root is "/"

std::string NameFromNative(std::string_view nativeName);

// A "¤" that starts no escape of the kind above stands for itself. The digits may be of either case.
std::string NameToNative(std::string_view name);

// An absolute native path as a path of the drive: "/home/ala" is "c:\home\ala".
std::string PathFromNative(std::string_view absoluteNative);

// A path that is in the program's form already, but in UTF-8: its separators and escapes stay as they are.
std::string ProgramFormFromUtf8(std::string_view utf8);

}  // namespace morlan
