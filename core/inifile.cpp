#include "core/inifile.h"

#include <algorithm>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kHeader = "[Orvil Dantrel's - MORLAN - INI File (C)1997]\r\n";
constexpr std::string_view kTemporaryName = "inifile.tmp";

std::string ItemKey(std::string_view item) { return LowerCase(Concat({"[", item, "]"})); }
std::string SubItemKey(std::string_view subItem) { return LowerCase(Concat({subItem, "="})); }
std::string SubItemLine(std::string_view subItem, std::string_view value) { return Concat({subItem, "=", value, CrLf}); }

// The lines of a text, without their ends. Only CR LF ends a line; what stands behind the last one is a line as well.
class Lines {
 public:
  explicit Lines(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }

  bool Next(std::string_view& line) {
    if (AtEnd()) return false;
    const std::size_t end = std::min(rest_.find(CrLf), rest_.size());
    line = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + CrLf.size(), rest_.size()));
    return true;
  }

 private:
  std::string_view rest_;
};

// What stands behind the "=" of a line whose name, blanks removed, is that of the key; nothing for any other line.
class SubItemOfLine {
 public:
  SubItemOfLine(std::string_view line, std::string_view key) {
    const std::size_t equals = line.find('=');
    if (equals == line.npos || LowerCase(INIFile::KillSpaces(line.substr(0, equals + 1))) != key) return;
    found = true;
    name = line.substr(0, equals + 1);
    value = line.substr(equals + 1);
  }
  bool found = false;
  std::string_view name;  // with its blanks and the "="
  std::string_view value;
};

}  // namespace

INIFile::INIFile(Files& files) : files_(files) {}

void INIFile::Init(std::string_view fileName) {
  errorValue_.clear();
  fileName_ = fileName;
}

void INIFile::SetError(std::string_view value) { errorValue_ = value; }

std::string INIFile::GetSubItemValue(std::string_view item, std::string_view subItem) {
  const std::optional<std::string> text = files_.Read(fileName_);
  if (!text) {
    files_.WriteInPlace(fileName_, "");  // binary access makes a missing file; any other failure stays one
    return errorValue_;
  }
  const std::size_t itemPosition = FindNoCase(*text, ItemKey(item));
  if (itemPosition == 0) return errorValue_;
  const std::size_t nextItem = Find(*text, "[", itemPosition + 2);
  const std::size_t sectionEnd = nextItem > 0 ? nextItem : text->size();

  const std::string key = SubItemKey(subItem);
  const std::string_view searched = std::string_view(*text).substr(0, sectionEnd - 1 + key.size());
  const std::size_t keyPosition = FindNoCase(searched, key, itemPosition);
  if (keyPosition == 0) return errorValue_;

  const std::size_t lineEnd = Find(*text, "\r", keyPosition);
  const std::size_t valuePosition = keyPosition + key.size();
  const std::size_t valueEnd = lineEnd > 0 ? lineEnd : text->size();
  return valueEnd > valuePosition ? text->substr(valuePosition - 1, valueEnd - valuePosition) : "";
}

void INIFile::SetSubItemValue(std::string_view item, std::string_view subItem, std::string_view value) {
  std::optional<std::string> text = files_.Read(fileName_);
  if (!text && files_.WriteInPlace(fileName_, "")) text = files_.Read(fileName_);
  if (!text) return;
  std::size_t itemPosition = FindNoCase(*text, ItemKey(item));
  if (itemPosition == 0) {
    *text += Concat({CrLf, "[", item, "]", CrLf});
    itemPosition = FindNoCase(*text, ItemKey(item));
  }
  const std::size_t close = itemPosition + item.size() + 1;
  const std::size_t nextItem = Find(*text, "[", close + 3);
  const std::size_t sectionEnd = nextItem > 0 ? nextItem - 1 : text->size();

  const std::size_t keyPosition = FindNoCase(*text, SubItemKey(subItem), close);
  if (keyPosition == 0 || keyPosition > sectionEnd) {
    text->insert(sectionEnd, SubItemLine(subItem, value));
  } else {
    // Without a CR the old text follows the new value as a whole.
    const std::size_t lineEnd = Find(*text, "\r", keyPosition);
    const std::string rest = lineEnd > 0 ? text->substr(lineEnd - 1) : *text;
    *text = Concat({text->substr(0, keyPosition - 1), subItem, "=", value, rest});
  }
  files_.WriteInPlace(fileName_, *text);
}

std::string INIFile::GetSubItemValueSlow(std::string_view item, std::string_view subItem) {
  const std::string itemKey = ItemKey(item), key = SubItemKey(subItem);
  bool inSection = false;
  OpenFile();
  Lines lines(content_);
  for (std::string_view line; lines.Next(line);) {
    inSection = inSection || EqualNoCase(line, itemKey);
    const SubItemOfLine found(line, key);
    if (!inSection || !found.found) continue;
    const std::string value(found.value);
    CloseFile();
    return value;
  }
  CloseFile();
  return errorValue_;
}

void INIFile::SetSubItemValue2(std::string_view item, std::string_view subItem, std::string_view value) {
  CreateItem(item);
  CreateSubItem(item, subItem);
  RewriteSubItem(item, subItem, [&](std::string_view name) { temporary_ += Concat({name, value, CrLf}); });
}

void INIFile::RemoveSubItem(std::string_view item, std::string_view subItem) {
  CreateItem(item);
  RewriteSubItem(item, subItem, [](std::string_view) {});
}

void INIFile::RewriteSubItem(std::string_view item, std::string_view subItem, const std::function<void(std::string_view name)>& print) {
  const std::string itemKey = ItemKey(item), key = SubItemKey(subItem);
  bool inSection = false, done = false;
  OpenFile();
  OpenTmp();
  Lines lines(content_);
  for (std::string_view line; lines.Next(line);) {
    inSection = inSection || EqualNoCase(line, itemKey);
    const SubItemOfLine found(line, key);
    if (inSection && !done && found.found) {
      done = true;
      print(found.name);
    } else {
      PrintToTmp(line);
    }
  }
  ReplaceByTmp();
}

void INIFile::CreateSubItem(std::string_view item, std::string_view subItem) {
  const std::string itemKey = ItemKey(item);
  const std::string newLine = SubItemLine(subItem, "");
  OpenFile();
  OpenTmp();
  Lines lines(content_);
  for (std::string_view line; lines.Next(line);) {
    PrintToTmp(line);
    // The line that ends an item may be the same item's line again.
    while (EqualNoCase(line, itemKey)) {
      bool done = false;
      line = {};
      while (!done && lines.Next(line)) {
        done = line.starts_with('[');
        if (!done && StartsWithNoCase(line, subItem)) {
          CloseFile();
          KillTmp();
          return;
        }
        if (done) temporary_ += newLine;
        PrintToTmp(line);
      }
      if (done) continue;
      temporary_ += newLine;
      break;
    }
  }
  ReplaceByTmp();
}

void INIFile::CreateItem(std::string_view item) {
  const std::string itemKey = ItemKey(item);
  OpenFile();
  Lines lines(content_);
  bool exists = false;
  for (std::string_view line; !exists && lines.Next(line);) exists = EqualNoCase(line, itemKey);
  CloseFile();
  if (exists) return;
  AppendFile();
  appended_ = Concat({"[", item, "]", CrLf});
  CloseFile();
}

void INIFile::CreateFile() { files_.Write(fileName_, kHeader); }

void INIFile::OpenFile() {
  std::optional<std::string> content = files_.Read(fileName_);
  if (!content) {
    CreateFile();
    content = files_.Read(fileName_);
  }
  content_ = content.value_or("");
  mode_ = content ? Mode::Input : Mode::Closed;
}

void INIFile::CloseFile() {
  if (mode_ == Mode::Append && !appended_.empty()) files_.Append(fileName_, appended_);
  mode_ = Mode::Closed;
  content_.clear();
  appended_.clear();
}

void INIFile::AppendFile() {
  appended_.clear();
  mode_ = files_.Append(fileName_, "") ? Mode::Append : Mode::Closed;
}

void INIFile::OpenTmp() {
  temporary_.clear();
  temporaryOpen_ = files_.Write(kTemporaryName, "");
}

bool INIFile::CloseTmp() {
  const bool written = temporaryOpen_ && files_.Write(kTemporaryName, temporary_);
  temporaryOpen_ = false;
  temporary_.clear();
  return written;
}

void INIFile::KillTmp() {
  CloseTmp();
  files_.Delete(kTemporaryName);
}

void INIFile::PrintToTmp(std::string_view line) {
  temporary_ += line;
  temporary_ += CrLf;
}

// The store is replaced in one step, so that it is never missing; without a temporary file it stays as it is.
void INIFile::ReplaceByTmp() {
  const bool opened = mode_ == Mode::Input;
  const std::string text = temporary_;
  CloseFile();
  if (CloseTmp() && opened && files_.Write(fileName_, text)) files_.Delete(kTemporaryName);
}

std::string INIFile::KillSpaces(std::string_view text) {
  std::string result(text);
  std::erase(result, ' ');
  return result;
}

}  // namespace morlan
