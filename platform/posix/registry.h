// The registry kept as a text file in UTF-8, one value a line: key, tab, name, tab, value. In all three a control character and
// "%" stand as "%" and two hexadecimal digits. Keys and names are the same whatever their letter case.
#pragma once

#include <string>

#include "platform/services.h"

namespace morlan {

class FileRegistry : public Registry {
 public:
  // `nativePath` is the file; it need not exist, its folder must when a value is set.
  explicit FileRegistry(std::string nativePath);

  // A value that is there already costs no writing. False when the file could not be read or replaced.
  bool SetString(std::string_view key, std::string_view name, std::string_view value) override;
  std::optional<std::string> GetString(std::string_view key, std::string_view name) override;

 private:
  std::string nativePath_;
};

}  // namespace morlan
