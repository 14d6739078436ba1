#include "text/documentcharset.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/text.h"
#include "tags/metatags.h"
#include "tags/tagscan.h"
#include "text/similarityscore.h"

namespace morlan {
namespace {

constexpr std::string_view kUtf8 = "utf-8";
constexpr std::string_view kAscii = "ascii";
constexpr std::string_view kNotConverted = "win1250";
constexpr std::string_view kSymbolsEntry = "xmn_symbols";
constexpr std::string_view kEntries[] = {"xmn_win1250", "xmn_iso88592", "xmn_ascii", "xmn_plcharinne", "mn_unicode"};

std::string_view EntryFor(std::string_view name, bool isKnown) {
  if (SimilarityScore(name, "windows-1250") > kSimilarEnough) return "xmn_win1250";
  if (name == "iso-8859-2") return "xmn_iso88592";
  if (name == kAscii) return "xmn_ascii";
  return isKnown ? "xmn_plcharinne" : "";
}

// The best record; nothing where even that is not alike enough.
std::optional<CharSetRecord> MostAlike(const CharSetFile& file, std::string_view name) {
  std::size_t best = 0, index = 0;
  int bestScore = kSimilarEnough;
  for (const std::string& candidate : file.CharSetNames()) {
    ++index;
    const int score = SimilarityScore(name, candidate);
    if (score <= bestScore) continue;
    bestScore = score;
    best = index;
  }
  return file.CharSetByIndex(best);
}

std::string CharSetName(std::string_view content) { return LowerCase(GetTagParam(content, "charset")); }

// The codes that letters have in a text of that set: those that it lacks stay what they were.
CharSetCodes WrittenCodes(const CharSetFile& file, const CharSetCodes& target) {
  CharSetCodes codes = file.CharSetByName(kBaseCharSet).value_or(CharSetRecord()).codes;
  for (std::size_t i = 0; i < codes.size(); ++i)
    if (target[i] != 0) codes[i] = target[i];
  return codes;
}

}  // namespace

DeclaredCharSet CharSetOfName(const CharSetFile& file, std::string_view name) {
  const std::string lower = LowerCase(name);
  DeclaredCharSet declared;
  if (lower == kUtf8) {
    declared.kind = DeclaredCharSet::Kind::Utf8;
    declared.menu = "mn_unicode";
    return declared;
  }
  const auto record = MostAlike(file, lower);
  declared.kind = record ? DeclaredCharSet::Kind::Table : DeclaredCharSet::Kind::Unknown;
  declared.menu = EntryFor(lower, record.has_value());
  if (record) declared.record = *record;
  return declared;
}

DeclaredCharSet CharSetOfText(const CharSetFile& file, std::string_view text) {
  const std::string content = GetMetaContentOfText(text, "Content-Type");
  return content.empty() ? DeclaredCharSet() : CharSetOfName(file, CharSetName(content));
}

DecodedText DecodeText(const CharSetFile& file, std::string bytes, const TellStatus& tell) {
  const DeclaredCharSet declared = CharSetOfText(file, bytes);
  DecodedText decoded;
  decoded.menu = declared.menu;
  if (declared.kind == DeclaredCharSet::Kind::None || declared.kind == DeclaredCharSet::Kind::Unknown) {
    decoded.text = std::move(bytes);
    return decoded;
  }
  if (declared.kind == DeclaredCharSet::Kind::Utf8) {
    decoded.text = ConvertUtf8(bytes, Utf8Direction::FromUtf8, tell);
  } else {
    decoded.charset = declared.record.name;
    ReadSymbols read = ConvertFromSymbols(bytes, tell);
    decoded.symbols = read.replaced;
    decoded.text = ConvertCharSet(file, std::move(read.text), declared.record.name, kBaseCharSet, tell);
  }
  decoded.comesBack = EncodeText(file, decoded.text, decoded.symbols ? Symbols::Yes : Symbols::No) == bytes;
  return decoded;
}

std::string EncodeText(const CharSetFile& file, std::string text, Symbols symbols, const TellStatus& tell) {
  const std::string content = GetMetaContentOfText(text, "Content-Type");
  const std::string name = CharSetName(content);
  const DeclaredCharSet declared = content.empty() ? DeclaredCharSet() : CharSetOfName(file, name);
  CharSetCodes target{};
  switch (declared.kind) {
    case DeclaredCharSet::Kind::Unknown:
      return text;
    case DeclaredCharSet::Kind::Utf8:
      return ConvertUtf8(std::move(text), Utf8Direction::ToUtf8, tell);
    case DeclaredCharSet::Kind::Table:
      target = declared.record.codes;
      if (name != kNotConverted) text = ConvertCharSet(file, std::move(text), kBaseCharSet, declared.record.name, tell);
      break;
    case DeclaredCharSet::Kind::None:
      break;
  }
  return symbols == Symbols::Yes ? ConvertToSymbols(std::move(text), WrittenCodes(file, target), tell) : text;
}

std::string DecodeCharSet(Program& program, std::string bytes) {
  TEditor* const document = program.ActiveDocument;
  DecodedText decoded = DecodeText(LoadCharSets(program), std::move(bytes), StatusLine(program));
  program.CurrentCharset = decoded.charset;
  if (document) {
    ClearCharSetMenu(*document);
    if (!decoded.menu.empty()) document->menu.SetChecked(decoded.menu, true);
    if (decoded.symbols) document->menu.SetChecked(kSymbolsEntry, true);
  }
  program.LoadNotice = decoded.comesBack ? std::string_view() : kForeignCharacters;
  return std::move(decoded.text);
}

std::string EncodeCharSet(Program& program, std::string text) {
  const bool symbols = program.ActiveDocument && program.ActiveDocument->menu.IsChecked(kSymbolsEntry);
  return EncodeText(LoadCharSets(program), std::move(text), symbols ? Symbols::Yes : Symbols::No, StatusLine(program));
}

void ClearCharSetMenu(TEditor& document) {
  for (const std::string_view entry : kEntries) document.menu.SetChecked(entry, false);
}

void MarkCharSet(Program& program, TEditor& document) {
  ClearCharSetMenu(document);
  const std::string content = GetUpperCaseMetaContent(document.EditedText.Text(), "Content-Type");
  if (content.empty()) return;
  const DeclaredCharSet declared = CharSetOfName(LoadCharSets(program), CharSetName(content));
  if (!declared.menu.empty()) document.menu.SetChecked(declared.menu, true);
}

}  // namespace morlan
