// The file of character sets, "CharSets.Def": records of 184 bytes, numbered from 1.
//
//   offset  bytes
//        0      2  a marker, not read; 0 in records that are made here
//        2     40  name, padded with blanks
//       42    100  description, padded with blanks
//      142     20  the code of each national letter in this set, 0 where it has none
//      162     22  not read; blanks in records that are made here
//
// The codes stand in the order of kNationalLetters; two places behind them are spare. Bytes behind the last whole record do
// not count.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/encoding.h"

namespace morlan {

inline constexpr std::size_t kCharSetRecordSize = 184;
inline constexpr std::size_t kCharSetNameSize = 40;
inline constexpr std::size_t kCharSetInfoSize = 100;
inline constexpr std::size_t kCharSetCodeCount = 20;
// A file that is longer is none: nothing of it is read.
inline constexpr std::size_t kLargestCharSetFile = 1'000'000;

inline constexpr std::string_view kNationalLetters = "ęĘóÓąĄśŚłŁżŻźŹćĆńŃ"_pl;

// The set in which texts are edited.
inline constexpr std::string_view kBaseCharSet = "Win1250";

using CharSetCodes = std::array<unsigned char, kCharSetCodeCount>;

struct CharSetRecord {
  std::string name, info;
  CharSetCodes codes{};
  bool operator==(const CharSetRecord&) const = default;
};

class CharSetFile {
 public:
  explicit CharSetFile(std::string bytes = "");

  std::size_t CharSetCount() const { return bytes_.size() / kCharSetRecordSize; }
  // Nothing below 1 and above the count.
  std::optional<CharSetRecord> CharSetByIndex(std::size_t index) const;
  // The first record of that name, in the same letter case.
  std::optional<CharSetRecord> CharSetByName(std::string_view name) const;
  // Overwrites the record of the same name, else appends one. Texts are cut to their fields. False, and nothing changes, where
  // the file would get too long.
  bool CharSetSave(const CharSetRecord& record);
  std::vector<std::string> CharSetNames() const;

  const std::string& Bytes() const { return bytes_; }

 private:
  std::size_t IndexOf(std::string_view name) const;  // 0 when there is none
  std::string_view Field(std::size_t index, std::size_t offset, std::size_t size) const;
  std::string bytes_;
};

}  // namespace morlan
