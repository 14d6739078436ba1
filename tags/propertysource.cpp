#include "tags/propertysource.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <utility>

#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kTag = "znacznik", kGroup = "grupa", kRemovable = "nowy", kHiddenButton = "ukryte";
constexpr std::string_view kInclude = "+", kDefault = "=", kSwitchOn = "TRUE", kSwitchOff = "FALSE";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

// In the order of ParamKind and of ParamDialog.
constexpr std::array<std::string_view, 8> kKinds = {"kolor", "tekst", "lista", "plik", "przełącznik"_pl, "zdarzenie", "styl", "okno"};
constexpr std::array<std::string_view, 4> kDialogs = {"kolor", "grafika", "strony", "wszystkie"};

constexpr std::string_view kWrongQuotes = "a word in quotes does not end, or holds a wrong \\";

struct Word {
  std::string text;
  bool quoted = false;

  bool Is(std::string_view keyword) const { return !quoted && text == keyword; }
};
using Words = std::vector<Word>;

// What stands in one line of a block: an attribute, or the name of a group.
struct Entry {
  std::string place;
  ParamRecord param;
  std::string group;
};

struct Block {
  std::string name, info;
  std::vector<Entry> entries;
};

// What is read of a part of a line, or what is wrong with it.
struct Outcome {
  std::string fault;  // empty: nothing is wrong
  static Outcome Wrong(std::initializer_list<std::string_view> message) { return {Concat(message)}; }
};

template <std::size_t Size>
std::optional<std::size_t> RowOf(const std::array<std::string_view, Size>& table, const Word& word) {
  const auto found = std::find_if(table.begin(), table.end(), [&word](std::string_view row) { return word.Is(row); });
  if (found == table.end()) return std::nullopt;
  return static_cast<std::size_t>(found - table.begin());
}

int HexDigit(char character) {
  const std::size_t digit = std::string_view("0123456789abcdef").find(LowerCase(std::string_view(&character, 1)));
  return digit == std::string_view::npos ? -1 : static_cast<int>(digit);
}

// The character that a sequence behind a backslash means; `at` moves behind it. Nothing when it means none.
std::optional<char> Escaped(std::string_view text, std::size_t& at) {
  const char sign = at < text.size() ? text[at] : '\0';
  if (sign == '"' || sign == '\\') return text[at++];
  if (sign != 'x' || at + 2 >= text.size()) return std::nullopt;
  const int high = HexDigit(text[at + 1]), low = HexDigit(text[at + 2]);
  if (high < 0 || low < 0) return std::nullopt;
  at += 3;
  return static_cast<char>(high * 16 + low);
}

std::optional<Word> QuotedWord(std::string_view text, std::size_t& at) {
  Word word{"", true};
  for (++at; at < text.size();) {
    const char character = text[at++];
    if (character == '"') return word;
    const auto meant = character == '\\' ? Escaped(text, at) : std::optional(character);
    if (!meant) return std::nullopt;
    word.text += *meant;
  }
  return std::nullopt;
}

// The word at or behind `at`, which moves behind it; an empty one at the end of the text. Nothing when its quotes are wrong.
std::optional<Word> NextWord(std::string_view text, std::size_t& at) {
  at = std::min(text.find_first_not_of(' ', at), text.size());
  if (at < text.size() && text[at] == '"') return QuotedWord(text, at);
  const std::size_t begin = std::exchange(at, std::min(text.find(' ', at), text.size()));
  return Word{std::string(text.substr(begin, at - begin))};
}

std::optional<Words> WordsOf(std::string_view text) {
  Words words;
  for (std::size_t at = 0; text.find_first_not_of(' ', at) != std::string_view::npos;) {
    auto word = NextWord(text, at);
    if (!word) return std::nullopt;
    words.push_back(std::move(*word));
  }
  return words;
}

Outcome FitsField(std::string_view text, std::size_t width) {
  if (text.size() <= width) return {};
  return Outcome::Wrong({"\"", text, "\" is longer than ", NumberText(static_cast<std::int64_t>(width))});
}

// "NAME INFO" behind the keyword of a block.
Outcome ReadHead(std::string_view head, Block& block) {
  std::size_t at = 0;
  const auto name = NextWord(head, at);
  const std::string_view rest = Trim(head.substr(at));
  std::size_t behindInfo = 0;
  const auto info = rest.starts_with('"') ? NextWord(rest, behindInfo) : std::optional(Word{std::string(rest)});
  if (!name || !info) return Outcome::Wrong({kWrongQuotes});
  if (Trim(name->text).empty()) return Outcome::Wrong({"a name is missing"});
  block.name = name->text;
  block.info = info->text;
  const Outcome fits = FitsField(block.name, kNameWidth);
  return fits.fault.empty() ? FitsField(block.info, kInfoWidth) : fits;
}

Outcome ReadDialog(const Words& details, ParamRecord& param) {
  const auto dialog = details.empty() ? std::nullopt : RowOf(kDialogs, details.front());
  const bool hidden = details.size() == 2 && details.back().Is(kHiddenButton);
  if (!dialog || details.size() > (hidden ? 2 : 1)) return Outcome::Wrong({"a dialog needs one of kolor, grafika, strony, wszystkie"});
  param.dialogType = static_cast<ParamDialog>(*dialog);
  param.dialogVisible = !hidden;
  return {};
}

Outcome ReadList(const Words& details, ParamRecord& param) {
  for (const Word& word : details) {
    const Outcome fits = FitsField(word.text, kValueWidth);
    if (!fits.fault.empty()) return fits;
    if (std::find(param.values.begin(), param.values.end(), word.text) != param.values.end())
      return Outcome::Wrong({"the value \"", word.text, "\" stands twice"});
    param.values.push_back(word.text);
  }
  return {};
}

Outcome ReadDetails(const Words& details, ParamRecord& param) {
  switch (param.kind) {
    case ParamKind::List:
      return ReadList(details, param);
    case ParamKind::Dialog:
      return ReadDialog(details, param);
    case ParamKind::ListFromFile:
      if (details.size() != 1) return Outcome::Wrong({"a list from a file needs the file's name and nothing else"});
      param.listFile = details.front().text;
      return FitsField(param.listFile, kValueWidth);
    default:
      return details.empty() ? Outcome{} : Outcome::Wrong({"\"", details.front().text, "\" has no meaning for this kind"});
  }
}

// Takes the "= DEFAULT" off the end of the words.
Outcome TakeDefault(Words& words, ParamRecord& param) {
  if (param.kind == ParamKind::Switch) param.defaultValue = kSwitchOff;
  const auto sign = std::find_if(words.begin(), words.end(), [](const Word& word) { return word.Is(kDefault); });
  if (sign == words.end()) return {};
  if (words.end() - sign != 2) return Outcome::Wrong({"\"=\" needs one value behind it"});
  param.defaultValue = words.back().text;
  words.erase(sign, words.end());
  const bool isState = param.defaultValue == kSwitchOn || param.defaultValue == kSwitchOff;
  if (param.kind == ParamKind::Switch && !isState && !param.defaultValue.empty())
    return Outcome::Wrong({"a switch is TRUE or FALSE, not \"", param.defaultValue, "\""});
  return FitsField(param.defaultValue, kValueWidth);
}

Outcome ReadParam(Words words, ParamRecord& param) {
  param.builtIn = !words.front().Is(kRemovable);
  if (!param.builtIn) words.erase(words.begin());
  if (words.size() < 2) return Outcome::Wrong({"an attribute needs a name and a kind"});
  const auto kind = RowOf(kKinds, words[1]);
  if (!kind) return Outcome::Wrong({"\"", words[1].text, "\" is no kind of attribute"});
  param.name = words.front().text;
  param.kind = static_cast<ParamKind>(*kind);
  words.erase(words.begin(), words.begin() + 2);
  if (Trim(param.name).empty()) return Outcome::Wrong({"a name is missing"});
  const Outcome fits = FitsField(param.name, kNameWidth);
  if (!fits.fault.empty()) return fits;
  const Outcome taken = TakeDefault(words, param);
  return taken.fault.empty() ? ReadDetails(words, param) : taken;
}

// Reads the lines into blocks, and then the blocks into a file.
class Compiler {
 public:
  void Read(const PropertySourceText& source);
  CompiledProperties Result();

 private:
  // The attributes of a tag while they are gathered. A group counts once in a tag.
  struct Gathering {
    std::vector<ParamRecord> params;
    std::set<std::string> names, groups;
  };

  void ReadLine(std::string_view text);
  void BeginBlock(std::string_view text);
  void ReadEntry(std::string_view text);
  void AddEntry(Entry entry);
  void GatherOwn(const Block& tag, Gathering& gathering);
  void GatherGroup(const Entry& include, Gathering& gathering);
  void Fault(std::string_view place, std::string_view message) { faults_.push_back(Concat({place, ToUtf8(message)})); }

  std::map<std::string, Block> tags_, groups_;  // by their names in small letters
  std::string place_;                           // "NAME:LINE: " of the line that is being read
  Block* block_ = nullptr;                      // the one that lines go to
  Block discarded_;                             // takes the lines below a heading that is wrong
  std::vector<std::string> faults_;
};

void Compiler::Read(const PropertySourceText& source) {
  block_ = nullptr;
  std::string_view rest = source.utf8;
  if (rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
  for (std::int64_t number = 1; !rest.empty(); ++number) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    std::string_view utf8 = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (utf8.ends_with('\r')) utf8.remove_suffix(1);
    place_ = Concat({source.name, ":", NumberText(number), ": "});
    const std::string text = FromUtf8(utf8);
    if (ToUtf8(text) == utf8)
      ReadLine(text);
    else
      Fault(place_, "holds a character that Windows-1250 lacks");
  }
}

void Compiler::ReadLine(std::string_view text) {
  const std::string_view content = Trim(text);
  if (content.empty() || content.starts_with('#')) return;
  if (content.find('\t') != std::string_view::npos)
    Fault(place_, "holds a tab where a blank is meant");
  else if (text.starts_with(' '))
    ReadEntry(content);
  else
    BeginBlock(content);
}

void Compiler::BeginBlock(std::string_view text) {
  block_ = &discarded_;
  const std::string_view keyword = text.substr(0, text.find(' '));
  const bool isGroup = keyword == kGroup;
  if (!isGroup && keyword != kTag) return Fault(place_, Concat({"\"", keyword, "\" begins neither a tag nor a group"}));
  Block block;
  const Outcome head = ReadHead(text.substr(keyword.size()), block);
  if (!head.fault.empty()) return Fault(place_, head.fault);
  if (isGroup && !block.info.empty()) return Fault(place_, "a group has no text about it");
  const auto [at, isNew] = (isGroup ? groups_ : tags_).try_emplace(LowerCase(Trim(block.name)), block);
  if (!isNew) return Fault(place_, Concat({"\"", block.name, "\" stands twice"}));
  block_ = &at->second;
}

void Compiler::ReadEntry(std::string_view text) {
  if (!block_) return Fault(place_, "stands before the first tag");
  const auto words = WordsOf(text);
  if (!words) return Fault(place_, kWrongQuotes);
  Entry entry{place_, {}, ""};
  if (!words->front().Is(kInclude)) {
    const Outcome read = ReadParam(*words, entry.param);
    if (!read.fault.empty()) return Fault(place_, read.fault);
  } else if (words->size() == 2) {
    entry.group = LowerCase(words->back().text);
  } else {
    return Fault(place_, "\"+\" needs the name of one group");
  }
  AddEntry(std::move(entry));
}

void Compiler::AddEntry(Entry entry) {
  const std::string name = LowerCase(Trim(entry.param.name));
  for (const Entry& other : block_->entries)
    if (!name.empty() && name == LowerCase(Trim(other.param.name))) return Fault(place_, Concat({"\"", name, "\" stands twice"}));
  block_->entries.push_back(std::move(entry));
}

void Compiler::GatherOwn(const Block& tag, Gathering& gathering) {
  for (const Entry& entry : tag.entries) {
    if (!entry.group.empty())
      GatherGroup(entry, gathering);
    else if (gathering.names.insert(LowerCase(Trim(entry.param.name))).second)
      gathering.params.push_back(entry.param);
    else
      Fault(entry.place, Concat({"\"", entry.param.name, "\" comes from a group above already"}));
  }
}

void Compiler::GatherGroup(const Entry& include, Gathering& gathering) {
  const auto group = groups_.find(include.group);
  if (group == groups_.end()) return Fault(include.place, Concat({"there is no group \"", include.group, "\""}));
  if (!gathering.groups.insert(include.group).second) return;
  for (const Entry& entry : group->second.entries) {
    if (!entry.group.empty())
      GatherGroup(entry, gathering);
    else if (gathering.names.insert(LowerCase(Trim(entry.param.name))).second)
      gathering.params.push_back(entry.param);
  }
}

CompiledProperties Compiler::Result() {
  CompiledProperties result;
  for (const auto& [name, block] : tags_) {
    Gathering gathering;
    GatherOwn(block, gathering);
    const std::uint32_t tag = result.file.AddTag({block.name, block.info});
    for (const ParamRecord& param : gathering.params)
      if (result.file.AddParam(tag, param) == 0) Fault("", Concat({"the file has no room for \"", name, "\""}));
  }
  result.faults = std::move(faults_);
  return result;
}

bool NeedsQuotes(std::string_view text) {
  constexpr std::string_view kWithMeaning[] = {kInclude, kDefault, kRemovable, kHiddenButton};
  return text.empty() || text.front() == '#' ||
         std::find(std::begin(kWithMeaning), std::end(kWithMeaning), text) != std::end(kWithMeaning) ||
         std::any_of(text.begin(), text.end(), [](char c) { return (c >= 0 && c <= ' ') || c == '"'; });
}

std::string QuotedText(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string quoted = "\"";
  for (const char character : text) {
    const auto byte = static_cast<unsigned char>(character);
    if (byte < ' ') {
      quoted += {'\\', 'x', kDigits[byte / 16], kDigits[byte % 16]};
    } else {
      if (character == '"' || character == '\\') quoted += '\\';
      quoted += character;
    }
  }
  return quoted + '"';
}

std::string WordText(std::string_view text) { return NeedsQuotes(text) ? QuotedText(text) : std::string(text); }

// The text about a tag runs to the end of its line, so blanks within it need no quotes.
std::string InfoText(std::string_view info) {
  const bool plain = !info.starts_with('"') && std::none_of(info.begin(), info.end(), [](char c) { return c >= 0 && c < ' '; });
  return plain ? std::string(info) : QuotedText(info);
}

std::string DetailsText(const ParamRecord& param) {
  std::string text;
  if (param.kind == ParamKind::ListFromFile) text = Concat({" ", WordText(param.listFile)});
  if (param.kind == ParamKind::List)
    for (const std::string& value : param.values) text += Concat({" ", WordText(value)});
  if (param.kind == ParamKind::Dialog) {
    text = Concat({" ", kDialogs[static_cast<std::size_t>(param.dialogType)]});
    if (!param.dialogVisible) text += Concat({" ", kHiddenButton});
  }
  return text;
}

std::string ParamText(const ParamRecord& param) {
  const std::string_view usual = param.kind == ParamKind::Switch ? kSwitchOff : std::string_view();
  std::string text = param.builtIn ? "  " : Concat({"  ", kRemovable, " "});
  text += Concat({WordText(param.name), " ", kKinds[static_cast<std::size_t>(param.kind)], DetailsText(param)});
  if (param.defaultValue != usual) text += Concat({" ", kDefault, " ", WordText(param.defaultValue)});
  return text + "\n";
}

}  // namespace

CompiledProperties CompileProperties(const std::vector<PropertySourceText>& source) {
  Compiler compiler;
  for (const PropertySourceText& text : source) compiler.Read(text);
  return compiler.Result();
}

std::optional<std::string> PropertySourceOf(const PropertyFile& file) {
  std::string text;
  for (const TagRecord& tag : file.Tags()) {
    const auto params = file.Params(tag.position);
    if (!params) return std::nullopt;
    if (!text.empty()) text += "\n";
    text += Concat({kTag, " ", WordText(tag.name), tag.info.empty() ? "" : " ", InfoText(tag.info), "\n"});
    for (const ParamRecord& param : *params) text += ParamText(param);
  }
  return ToUtf8(text);
}

}  // namespace morlan
