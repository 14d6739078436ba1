#include "text/charsetfile.h"

#include <algorithm>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kNameOffset = 2;
constexpr std::size_t kInfoOffset = kNameOffset + kCharSetNameSize;
constexpr std::size_t kCodesOffset = kInfoOffset + kCharSetInfoSize;
constexpr char kBlank = ' ';

std::string Padded(std::string_view text, std::size_t size) {
  std::string field(text.substr(0, size));
  field.resize(size, kBlank);
  return field;
}

std::string EmptyRecord() {
  std::string record(kCharSetRecordSize, kBlank);
  std::fill_n(record.begin(), kNameOffset, '\0');
  return record;
}

}  // namespace

CharSetFile::CharSetFile(std::string bytes) : bytes_(std::move(bytes)) {
  if (bytes_.size() > kLargestCharSetFile) bytes_.clear();
}

std::string_view CharSetFile::Field(std::size_t index, std::size_t offset, std::size_t size) const {
  return std::string_view(bytes_).substr((index - 1) * kCharSetRecordSize + offset, size);
}

std::optional<CharSetRecord> CharSetFile::CharSetByIndex(std::size_t index) const {
  if (index < 1 || index > CharSetCount()) return std::nullopt;
  CharSetRecord record;
  record.name = Trim(Field(index, kNameOffset, kCharSetNameSize));
  record.info = Trim(Field(index, kInfoOffset, kCharSetInfoSize));
  const std::string_view codes = Field(index, kCodesOffset, kCharSetCodeCount);
  std::copy(codes.begin(), codes.end(), record.codes.begin());
  return record;
}

std::size_t CharSetFile::IndexOf(std::string_view name) const {
  for (std::size_t index = 1; index <= CharSetCount(); ++index)
    if (Trim(Field(index, kNameOffset, kCharSetNameSize)) == name) return index;
  return 0;
}

std::optional<CharSetRecord> CharSetFile::CharSetByName(std::string_view name) const { return CharSetByIndex(IndexOf(name)); }

bool CharSetFile::CharSetSave(const CharSetRecord& record) {
  const std::string name = Padded(record.name, kCharSetNameSize);
  std::size_t index = IndexOf(Trim(name));
  if (index == 0) {
    const std::size_t end = CharSetCount() * kCharSetRecordSize;
    if (end + kCharSetRecordSize > kLargestCharSetFile) return false;
    bytes_.resize(end);
    bytes_ += EmptyRecord();
    index = CharSetCount();
  }
  const std::size_t start = (index - 1) * kCharSetRecordSize;
  bytes_.replace(start + kNameOffset, kCharSetNameSize, name);
  bytes_.replace(start + kInfoOffset, kCharSetInfoSize, Padded(record.info, kCharSetInfoSize));
  std::copy(record.codes.begin(), record.codes.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(start + kCodesOffset));
  return true;
}

std::vector<std::string> CharSetFile::CharSetNames() const {
  std::vector<std::string> names;
  for (std::size_t index = 1; index <= CharSetCount(); ++index) names.emplace_back(Trim(Field(index, kNameOffset, kCharSetNameSize)));
  return names;
}

}  // namespace morlan
