// The file of character sets over any bytes: everything is read, used on a text that is part of them, and written.
#include <cstdint>
#include <string>
#include <string_view>

#include "text/charsetsource.h"
#include "text/documentcharset.h"

namespace {

void Require(bool holds) {
  if (!holds) __builtin_trap();
}

void ReadAll(const morlan::CharSetFile& file) {
  const auto names = file.CharSetNames();
  Require(names.size() == file.CharSetCount());
  for (std::size_t index = 1; index <= file.CharSetCount(); ++index) {
    const auto record = file.CharSetByIndex(index);
    Require(record && record->name == names[index - 1] && file.CharSetByName(record->name));
    morlan::MixedLetters(record->codes, file.CharSetByIndex(1)->codes);
  }
  Require(!file.CharSetByIndex(0) && !file.CharSetByIndex(file.CharSetCount() + 1));
}

// What is told of a page that would come back as it was holds.
void Convert(const morlan::CharSetFile& file, const std::string& bytes) {
  const morlan::DecodedText decoded = morlan::DecodeText(file, bytes);
  const morlan::Symbols symbols = decoded.symbols ? morlan::Symbols::Yes : morlan::Symbols::No;
  const std::string encoded = morlan::EncodeText(file, decoded.text, symbols);
  Require(!decoded.comesBack || encoded == bytes);
  Require(encoded.size() <= 6 * bytes.size());
}

void Save(morlan::CharSetFile file) {
  const morlan::CharSetRecord record{"nowy", "Opis", {1, 2, 3}};
  if (!file.CharSetSave(record)) return;
  Require(file.CharSetByName("nowy") == record);
  const auto source = morlan::CharSetSourceOf(file);
  if (!source) return;
  // A name that stands twice is the one thing that the source cannot tell.
  const morlan::CompiledCharSets again = morlan::CompileCharSets({{"a", *source}});
  Require(!again.faults.empty() || again.file.CharSetNames() == file.CharSetNames());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const std::size_t records = size / 2 / morlan::kCharSetRecordSize * morlan::kCharSetRecordSize;
  const morlan::CharSetFile file(bytes.substr(0, records));
  ReadAll(file);
  Convert(file, bytes.substr(records));
  ReadAll(morlan::CharSetFile(bytes));
  Save(morlan::CharSetFile(bytes));
  morlan::CompileCharSets({{"a", bytes}});
  return 0;
}
