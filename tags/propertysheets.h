// The program's own file of tags and their attributes, and what may be done with it.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tags/propertyfile.h"
#include "tags/stylesource.h"

namespace morlan {

class Program;

// Keeps what was read, since hints ask on every key: the file is read again only when its length has changed or somebody
// asks for it. A missing file is an empty one.
class PropertySheets {
 public:
  explicit PropertySheets(Program& program) : program_(program) {}

  const PropertyFile& File();
  void ReadAnew() { readLength_.reset(); }
  // Compares the file with what was read, which costs less than to read it.
  void ReadIfChanged();
  // Reads, changes and writes. False, with the file as it was, when the change says so or the file cannot be written.
  bool Change(const std::function<bool(PropertyFile& file)>& change);

  StyleSource styles;

 private:
  std::string Path() const;
  void ForgetHints();  // what the hints show of a tag may be old

  Program& program_;
  PropertyFile file_;
  std::optional<std::uint64_t> readLength_;  // nothing before the first reading
};

PropertySheets& SheetsOf(Program& program);

// Names count without regard to case and to the blanks round them.
std::uint32_t FindTagRecord(Program& program, std::string_view name);  // position of its record, 0 when there is none
// The tag is described, and what the file says of it can be read.
bool HasPropertySheet(Program& program, std::string_view name);
// The tag's parameters in the order of the file; nothing when it has no sheet.
std::optional<std::vector<ParamRecord>> ParamsOfTag(Program& program, std::string_view name);

// False when the name is taken or empty, or the file cannot be written.
bool AddTagRecord(Program& program, const TagRecord& record);
// What is built in stays, with a message. False when nothing was removed.
bool RemoveTagRecord(Program& program, std::string_view name);
bool RemoveParamRecord(Program& program, std::string_view tag, std::string_view name);

// What the user reads when the file cannot be written.
extern const std::string_view kSheetsNotWritten;

// What a fresh row shows: a colour's "0" is no colour.
std::string_view DefaultOf(const ParamRecord& param);

}  // namespace morlan
