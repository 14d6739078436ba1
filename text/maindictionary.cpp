#include "text/maindictionary.h"

#include "core/defs.h"
#include "core/paths.h"
#include "core/status.h"
#include "core/text.h"
#include "text/spellingbits.h"

namespace morlan {
namespace {

std::string DictionaryPath(const Program& program, std::string_view name, std::string_view extension) {
  return Concat({program.ProgramPath, "SLOWNIKI\\", name, ".", extension});
}

}  // namespace

std::string MainDictionaryPath(const Program& program, std::string_view extension) {
  return DictionaryPath(program, "morlan7s", extension);
}
std::string AutomatonPath(const Program& program, std::string_view extension) { return DictionaryPath(program, "morlan7i", extension); }
std::string UserDictionaryPath(const Program& program, std::string_view extension) {
  return DictionaryPath(program, "morlan7u", extension);
}

bool MainDictionaryHolds(Program& program, std::string_view path, std::string_view word) {
  if (WordNumber(word) > kLargestWordNumber) program.platform.windows.Message({.text = "!!!!!"});
  const auto file = program.platform.files.Map(path);
  return file && BitsHoldWord(file->Bytes(), word);
}

void AddUserWord(Program& program, std::string_view path, std::string_view word) {
  Files& files = program.platform.files;
  const std::string line = Concat({LowerCase(word), CrLf});
  if (files.Append(path, line, /*create=*/false)) return;
  EnsureDirectory(program, PathOf(path));
  files.Write(path, line);  // a folder that takes no file leaves the word unknown
}

}  // namespace morlan
