// The file that describes tags and their attributes for property sheets and hints: binary records linked by their positions
// in the file, which count bytes from 1; 0 ends a chain. Numbers have 32 bits, the low byte first. Texts are Windows-1250,
// filled up with blanks to the width of their field, cut where they are longer, and compared without regard to case.
//
// A tag, 88 bytes. The first record of the file is the first tag.
//    1  40  Name
//   41   4  Next: the next tag
//   45   4  FirstParam: the tag's first parameter
//   49  40  Info
// A parameter, 212 bytes.
//    1  40  Name
//   41   4  Next: the tag's next parameter
//   45   1  Kind: "0" to "7"
//   46  80  DefaultValue
//  126  80  ListFile: a file of the folder of lists, without its folder and its ".lst"
//  206   4  FirstValue: the first of the parameter's own values
//  210   1  DialogType: "0" to "3"
//  211   1  DialogVisible: "1" or "0"
//  212   1  BuiltIn: "1" or "0"
// A value, 84 bytes.
//    1  80  Text
//   81   4  Next: the parameter's next value
//
// A record that is taken out of its chain stays in the file as bytes that nothing points at. A tag is built in while one of
// its parameters is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace morlan {

inline constexpr std::size_t kTagRecordSize = 88, kParamRecordSize = 212, kValueRecordSize = 84;
inline constexpr std::size_t kNameWidth = 40, kInfoWidth = 40, kValueWidth = 80;

// The order is that of the kinds' digits in the file. A Style makes no row of its own: it gives the sheet its page for the
// attributes "class" and "style". The default of a Colour may be "0", which is no colour.
enum class ParamKind { Colour, Text, List, ListFromFile, Switch, Event, Style, Dialog };
enum class ParamDialog { Colour, Pictures, Pages, AllFiles };

struct TagRecord {
  std::string name, info{};
  std::uint32_t position = 0;  // where it was read; 0 for a record that is not in a file yet
  bool operator==(const TagRecord&) const = default;
};

struct ParamRecord {
  std::string name;
  ParamKind kind = ParamKind::Text;
  std::string defaultValue{};
  std::string listFile{};             // for ListFromFile
  std::vector<std::string> values{};  // for List
  ParamDialog dialogType = ParamDialog::AllFiles;
  bool dialogVisible = true;  // the button of a Dialog is offered
  bool builtIn = false;
  std::uint32_t position = 0;  // as of a tag
  bool operator==(const ParamRecord&) const = default;
};

// The file's bytes and what is found in them. Any bytes can be given: a chain of tags counts up to the place where it leaves
// the file or comes round to itself; a tag whose parameters or values do so has none.
class PropertyFile {
 public:
  PropertyFile() = default;
  explicit PropertyFile(std::string bytes);

  const std::string& Bytes() const { return bytes_; }
  // In the order of the chain.
  const std::vector<TagRecord>& Tags() const { return tags_; }
  // The tag of that name, 0 when there is none. Blanks round the name do not count, an empty name is never found.
  std::uint32_t FindTag(std::string_view name) const;
  // The parameters of the tag at a position, in the order of the chain; nothing when there is no tag, or its chain is damaged.
  std::optional<std::vector<ParamRecord>> Params(std::uint32_t tag) const;
  bool IsBuiltIn(std::uint32_t tag) const;

  // Appends the tag and links it behind the last one; its position, 0 when it has no name, the name is taken or the file is full.
  std::uint32_t AddTag(const TagRecord& record);
  // Takes the tag out of the chain. Built-in ones go too. Positions that were told before may not hold any more.
  bool RemoveTag(std::uint32_t tag);
  bool SetInfo(std::uint32_t tag, std::string_view info);

  // As of tags, within the chain of one tag.
  std::uint32_t AddParam(std::uint32_t tag, const ParamRecord& record);
  bool RemoveParam(std::uint32_t tag, std::string_view name);
  // Writes over the parameter of that name, in its place.
  bool ReplaceParam(std::uint32_t tag, std::string_view name, const ParamRecord& record);

 private:
  void FindTags();
  const TagRecord* TagAt(std::uint32_t position) const;
  bool HoldsRecord(std::uint32_t position, std::size_t size) const;
  bool HasRoom(const ParamRecord& record) const;
  std::uint32_t NumberAt(std::size_t offset) const;
  std::string FieldAt(std::size_t offset, std::size_t width) const;
  void WriteNumber(std::size_t offset, std::uint32_t number);
  void WriteField(std::size_t offset, std::size_t width, std::string_view text);
  std::uint32_t AppendRecord(std::size_t size);
  void WriteParam(std::uint32_t position, const ParamRecord& record);
  void WriteValues(std::uint32_t param, const std::vector<std::string>& values);
  ParamRecord ReadParam(std::uint32_t position) const;
  bool ReadValues(ParamRecord& record, std::size_t& budget) const;
  // Where the number stands that points at the parameter: its own tag's FirstParam, or the Next of the one before.
  std::size_t LinkTo(const TagRecord& tag, const std::vector<ParamRecord>& params, std::size_t index) const;

  std::string bytes_;
  std::vector<TagRecord> tags_;
  std::unordered_map<std::string, std::size_t> byName_;  // lower-case name to index in tags_, the first one of a name
};

// A text of a fixed field: nothing when its first two bytes are 0, else the text without the blanks round it.
std::string_view TrimField(std::string_view field);

}  // namespace morlan
