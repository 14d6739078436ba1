#include "tags/propertyfile.h"

#include <algorithm>
#include <limits>
#include <unordered_set>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::size_t kNumberWidth = 4;

// Offsets of the fields from 0 within their record.
constexpr std::size_t kTagNext = 40, kTagFirstParam = 44, kTagInfo = 48;
constexpr std::size_t kParamNext = 40, kParamKind = 44, kParamDefault = 45, kParamListFile = 125, kParamFirstValue = 205,
                      kParamDialogType = 209, kParamDialogVisible = 210, kParamBuiltIn = 211;
constexpr std::size_t kValueNext = 80;
constexpr std::size_t kLargestFile = std::numeric_limits<std::int32_t>::max();

constexpr char DigitOf(int number) { return static_cast<char>('0' + number); }

// The member that a digit stands for; `otherwise` for anything that is none.
template <class Kind>
Kind KindOf(char digit, Kind last, Kind otherwise) {
  const int number = digit - '0';
  return number >= 0 && number <= static_cast<int>(last) ? static_cast<Kind>(number) : otherwise;
}

std::string KeyOf(std::string_view name) { return LowerCase(Trim(name)); }

std::size_t OffsetOf(std::uint32_t position) { return position - 1; }

}  // namespace

std::string_view TrimField(std::string_view field) {
  constexpr std::string_view kNeverWritten("\0\0", 2);
  return field.starts_with(kNeverWritten) ? std::string_view() : Trim(field);
}

PropertyFile::PropertyFile(std::string bytes) : bytes_(std::move(bytes)) { FindTags(); }

void PropertyFile::FindTags() {
  tags_.clear();
  byName_.clear();
  std::unordered_set<std::uint32_t> seen;
  for (std::uint32_t position = 1; HoldsRecord(position, kTagRecordSize) && seen.insert(position).second;) {
    const std::size_t offset = OffsetOf(position);
    tags_.push_back({FieldAt(offset, kNameWidth), FieldAt(offset + kTagInfo, kInfoWidth), position});
    byName_.try_emplace(KeyOf(tags_.back().name), tags_.size() - 1);
    position = NumberAt(offset + kTagNext);
  }
}

bool PropertyFile::HoldsRecord(std::uint32_t position, std::size_t size) const {
  return position != 0 && bytes_.size() >= size && OffsetOf(position) <= bytes_.size() - size;
}

std::uint32_t PropertyFile::NumberAt(std::size_t offset) const {
  std::uint32_t number = 0;
  for (std::size_t i = kNumberWidth; i-- > 0;) number = number << 8 | static_cast<unsigned char>(bytes_[offset + i]);
  return number;
}

std::string PropertyFile::FieldAt(std::size_t offset, std::size_t width) const {
  return std::string(TrimField(std::string_view(bytes_).substr(offset, width)));
}

void PropertyFile::WriteNumber(std::size_t offset, std::uint32_t number) {
  for (std::size_t i = 0; i < kNumberWidth; ++i) bytes_[offset + i] = static_cast<char>(number >> (8 * i) & 0xFF);
}

void PropertyFile::WriteField(std::size_t offset, std::size_t width, std::string_view text) {
  const std::string_view kept = text.substr(0, width);
  std::copy(kept.begin(), kept.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(offset));
  std::fill_n(bytes_.begin() + static_cast<std::ptrdiff_t>(offset + kept.size()), width - kept.size(), ' ');
}

std::uint32_t PropertyFile::AppendRecord(std::size_t size) {
  const auto position = static_cast<std::uint32_t>(bytes_.size() + 1);
  bytes_.append(size, ' ');
  return position;
}

const TagRecord* PropertyFile::TagAt(std::uint32_t position) const {
  const auto found = std::find_if(tags_.begin(), tags_.end(), [position](const TagRecord& tag) { return tag.position == position; });
  return found == tags_.end() ? nullptr : &*found;
}

std::uint32_t PropertyFile::FindTag(std::string_view name) const {
  const std::string key = KeyOf(name);
  const auto found = key.empty() ? byName_.end() : byName_.find(key);
  return found == byName_.end() ? 0 : tags_[found->second].position;
}

ParamRecord PropertyFile::ReadParam(std::uint32_t position) const {
  const std::size_t offset = OffsetOf(position);
  ParamRecord record;
  record.name = FieldAt(offset, kNameWidth);
  record.kind = KindOf(bytes_[offset + kParamKind], ParamKind::Dialog, ParamKind::Text);
  record.defaultValue = FieldAt(offset + kParamDefault, kValueWidth);
  record.listFile = FieldAt(offset + kParamListFile, kValueWidth);
  record.dialogType = KindOf(bytes_[offset + kParamDialogType], ParamDialog::AllFiles, ParamDialog::AllFiles);
  record.dialogVisible = bytes_[offset + kParamDialogVisible] == '1';
  record.builtIn = bytes_[offset + kParamBuiltIn] == '1';
  record.position = position;
  return record;
}

bool PropertyFile::ReadValues(ParamRecord& record, std::size_t& budget) const {
  std::uint32_t next = NumberAt(OffsetOf(record.position) + kParamFirstValue);
  while (next != 0) {
    if (!HoldsRecord(next, kValueRecordSize) || budget-- == 0) return false;
    record.values.push_back(FieldAt(OffsetOf(next), kValueWidth));
    next = NumberAt(OffsetOf(next) + kValueNext);
  }
  return true;
}

std::optional<std::vector<ParamRecord>> PropertyFile::Params(std::uint32_t tag) const {
  if (!TagAt(tag)) return std::nullopt;
  std::vector<ParamRecord> params;
  // No more records can belong to a tag than the file has room for; so circles end, and chains that share their tails.
  std::size_t budget = bytes_.size() / kValueRecordSize;
  std::uint32_t next = NumberAt(OffsetOf(tag) + kTagFirstParam);
  while (next != 0) {
    if (!HoldsRecord(next, kParamRecordSize) || budget-- == 0) return std::nullopt;
    params.push_back(ReadParam(next));
    if (!ReadValues(params.back(), budget)) return std::nullopt;
    next = NumberAt(OffsetOf(next) + kParamNext);
  }
  return params;
}

bool PropertyFile::IsBuiltIn(std::uint32_t tag) const {
  const auto params = Params(tag);
  return params && std::any_of(params->begin(), params->end(), [](const ParamRecord& param) { return param.builtIn; });
}

std::uint32_t PropertyFile::AddTag(const TagRecord& record) {
  const std::string_view name = Trim(Trim(record.name).substr(0, kNameWidth));
  if (name.empty() || FindTag(name) != 0 || bytes_.size() + kTagRecordSize > kLargestFile) return 0;
  if (tags_.empty()) bytes_.clear();  // what is too short for a record is none
  const std::uint32_t position = AppendRecord(kTagRecordSize);
  const std::size_t offset = OffsetOf(position);
  WriteField(offset, kNameWidth, name);
  WriteNumber(offset + kTagNext, 0);
  WriteNumber(offset + kTagFirstParam, 0);
  WriteField(offset + kTagInfo, kInfoWidth, record.info);
  if (!tags_.empty()) WriteNumber(OffsetOf(tags_.back().position) + kTagNext, position);
  tags_.push_back({std::string(name), FieldAt(offset + kTagInfo, kInfoWidth), position});
  byName_.try_emplace(KeyOf(name), tags_.size() - 1);
  return position;
}

bool PropertyFile::RemoveTag(std::uint32_t tag) {
  const TagRecord* record = TagAt(tag);
  if (!record) return false;
  const auto index = static_cast<std::size_t>(record - tags_.data());
  if (index > 0) {
    WriteNumber(OffsetOf(tags_[index - 1].position) + kTagNext, NumberAt(OffsetOf(tag) + kTagNext));
  } else if (tags_.size() > 1) {
    // The first record is always the first tag, so the second one moves there.
    bytes_.replace(0, kTagRecordSize, bytes_.substr(OffsetOf(tags_[1].position), kTagRecordSize));
  } else {
    bytes_.clear();
  }
  FindTags();
  return true;
}

bool PropertyFile::SetInfo(std::uint32_t tag, std::string_view info) {
  if (!TagAt(tag)) return false;
  WriteField(OffsetOf(tag) + kTagInfo, kInfoWidth, info);
  FindTags();
  return true;
}

bool PropertyFile::HasRoom(const ParamRecord& record) const {
  const std::size_t needed = kParamRecordSize + record.values.size() * kValueRecordSize;
  return bytes_.size() + needed <= kLargestFile;
}

void PropertyFile::WriteValues(std::uint32_t param, const std::vector<std::string>& values) {
  std::size_t link = OffsetOf(param) + kParamFirstValue;
  std::uint32_t old = NumberAt(link);  // records of the old values are used again as far as they reach
  for (const std::string& value : values) {
    // In a damaged file they may lie on each other, so each is looked at when its turn comes.
    const bool isUsedAgain = HoldsRecord(old, kValueRecordSize);
    const std::uint32_t position = isUsedAgain ? old : AppendRecord(kValueRecordSize);
    old = isUsedAgain ? NumberAt(OffsetOf(old) + kValueNext) : 0;
    WriteField(OffsetOf(position), kValueWidth, value);
    WriteNumber(link, position);
    link = OffsetOf(position) + kValueNext;
  }
  WriteNumber(link, 0);
}

void PropertyFile::WriteParam(std::uint32_t position, const ParamRecord& record) {
  const std::size_t offset = OffsetOf(position);
  WriteField(offset, kNameWidth, Trim(record.name));
  bytes_[offset + kParamKind] = DigitOf(static_cast<int>(record.kind));
  WriteField(offset + kParamDefault, kValueWidth, record.defaultValue);
  WriteField(offset + kParamListFile, kValueWidth, record.listFile);
  bytes_[offset + kParamDialogType] = DigitOf(static_cast<int>(record.dialogType));
  bytes_[offset + kParamDialogVisible] = DigitOf(record.dialogVisible);
  bytes_[offset + kParamBuiltIn] = DigitOf(record.builtIn);
  WriteValues(position, record.values);
}

std::size_t PropertyFile::LinkTo(const TagRecord& tag, const std::vector<ParamRecord>& params, std::size_t index) const {
  return index == 0 ? OffsetOf(tag.position) + kTagFirstParam : OffsetOf(params[index - 1].position) + kParamNext;
}

namespace {

std::size_t IndexOfParam(const std::vector<ParamRecord>& params, std::string_view name) {
  const std::string key = KeyOf(name);
  const auto found = std::find_if(params.begin(), params.end(), [&key](const ParamRecord& param) { return KeyOf(param.name) == key; });
  return static_cast<std::size_t>(found - params.begin());
}

}  // namespace

std::uint32_t PropertyFile::AddParam(std::uint32_t tag, const ParamRecord& record) {
  const auto params = Params(tag);
  const std::string_view name = Trim(record.name).substr(0, kNameWidth);
  if (!params || name.empty() || IndexOfParam(*params, name) != params->size() || !HasRoom(record)) return 0;
  const std::uint32_t position = AppendRecord(kParamRecordSize);
  WriteNumber(OffsetOf(position) + kParamNext, 0);
  WriteNumber(OffsetOf(position) + kParamFirstValue, 0);
  WriteParam(position, record);
  WriteNumber(LinkTo(*TagAt(tag), *params, params->size()), position);
  return position;
}

bool PropertyFile::RemoveParam(std::uint32_t tag, std::string_view name) {
  const auto params = Params(tag);
  const std::size_t index = params ? IndexOfParam(*params, name) : 0;
  if (!params || index == params->size()) return false;
  WriteNumber(LinkTo(*TagAt(tag), *params, index), NumberAt(OffsetOf((*params)[index].position) + kParamNext));
  return true;
}

bool PropertyFile::ReplaceParam(std::uint32_t tag, std::string_view name, const ParamRecord& record) {
  const auto params = Params(tag);
  const std::size_t index = params ? IndexOfParam(*params, name) : 0;
  const std::string_view newName = Trim(record.name).substr(0, kNameWidth);
  if (!params || index == params->size() || newName.empty() || !HasRoom(record)) return false;
  const std::size_t taken = IndexOfParam(*params, newName);
  if (taken != params->size() && taken != index) return false;
  WriteParam((*params)[index].position, record);
  return true;
}

}  // namespace morlan
