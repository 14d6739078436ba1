#include "text/charsets.h"

#include "core/defs.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kFileName = "CharSets.Def";
constexpr std::string_view kLeaveAsIs = "ascii";

void Tell(const TellStatus& tell, std::string_view message) {
  if (tell) tell(message);
}

// The progress of a loop over letters: the message, "..." and the percent, with `unit` behind it.
void TellProgress(const TellStatus& tell, std::string_view message, std::size_t letters, std::string_view unit) {
  if (!tell) return;
  for (std::size_t i = 1; i <= letters; ++i) tell(Concat({message, "...", NumberText(static_cast<std::int64_t>(i * 100 / letters)), unit}));
}

}  // namespace

TellStatus StatusLine(Program& program) {
  return [&program](std::string_view message) {
    if (message.empty()) return ShowReady(program);
    ShowBusy(program, message);
  };
}

std::string ConvertCharSet(const CharSetFile& file, std::string text, std::string_view source, std::string_view target,
                           const TellStatus& tell) {
  if (LowerCase(target) == kLeaveAsIs) return text;
  Tell(tell, "Konwersja pliku...");
  const CharSetCodes from = file.CharSetByName(source).value_or(CharSetRecord()).codes;
  const CharSetCodes to = file.CharSetByName(target).value_or(CharSetRecord()).codes;
  TellProgress(tell, Concat({"Konwersja pliku z ", source, " do ", target}), kCharSetCodeCount, "");
  text = Substituted(std::move(text), ChainedTable(from, to));
  Tell(tell, "");
  return text;
}

std::string ConvertToSymbols(std::string text, const CharSetCodes& codes, const TellStatus& tell) {
  Tell(tell, "Konwertuje do symboli...");
  text = LettersToSymbols(std::move(text), codes);
  Tell(tell, "");
  return text;
}

ReadSymbols ConvertFromSymbols(std::string text, const TellStatus& tell) {
  Tell(tell, "Konwertuje z symboli");
  ReadSymbols read = SymbolsToCharacters(std::move(text));
  Tell(tell, "");
  return read;
}

std::string ConvertUtf8(std::string text, Utf8Direction direction, const TellStatus& tell) {
  const bool toUtf8 = direction == Utf8Direction::ToUtf8;
  const std::string_view message = toUtf8 ? "Konwersja pliku z Windows-1250 do UniCode" : "Konwersja pliku z UniCode do Windows-1250";
  TellProgress(tell, message, kNationalLetters.size(), " %");
  text = toUtf8 ? LettersToUtf8(text) : LettersFromUtf8(std::move(text));
  Tell(tell, "");
  return text;
}

CharSetFile LoadCharSets(Program& program) {
  Files& files = program.platform.files;
  const std::string path = Concat({program.ProgramPath, kFileName});
  if (files.Size(path).value_or(0) > kLargestCharSetFile) return CharSetFile();
  return CharSetFile(files.Read(path).value_or(""));
}

bool SaveCharSet(Program& program, const CharSetRecord& record) {
  Files& files = program.platform.files;
  const std::string path = Concat({program.ProgramPath, kFileName});
  const auto bytes = files.Read(path);
  // What is there but cannot be read is not written over.
  if (files.Size(path) && (!bytes || bytes->size() > kLargestCharSetFile)) return false;
  CharSetFile file(bytes.value_or(""));
  return file.CharSetSave(record) && files.Write(path, file.Bytes());
}

}  // namespace morlan
