#include "text/pageconversion.h"

#include <algorithm>

#include "core/defs.h"
#include "core/paths.h"
#include "core/text.h"
#include "tags/metatags.h"
#include "text/documentcharset.h"
#include "text/projectfiles.h"

namespace morlan {
namespace {

constexpr std::string_view kExtensions[] = {".html", ".htm", ".shtml"};
// Links may make a tree of directories endless.
constexpr int kDeepestDirectory = 32;
constexpr std::size_t kMostPages = 100'000;

// At least one character of several bytes, and nothing that UTF-8 could not be.
bool HoldsUtf8(std::string_view bytes) {
  bool found = false;
  for (std::size_t i = 0; i < bytes.size();) {
    const DecodedCodePoint decoded = DecodeUtf8At(bytes, i);
    if (!decoded.valid) return false;
    found = found || decoded.length > 1;
    i += decoded.length;
  }
  return found;
}

bool NamesNoSet(const CharSetFile& file, std::string_view bytes) {
  const DeclaredCharSet::Kind kind = CharSetOfText(file, bytes).kind;
  return kind == DeclaredCharSet::Kind::None || kind == DeclaredCharSet::Kind::Unknown;
}

bool IsPage(std::string_view name) {
  const std::string lower = LowerCase(name);
  return std::any_of(std::begin(kExtensions), std::end(kExtensions),
                     [&](std::string_view extension) { return lower.ends_with(extension); });
}

void AddPagesOf(Files& files, const std::string& directory, int depth, std::vector<std::string>& pages) {
  for (const DirectoryEntry& entry : files.List(directory)) {
    const std::string path = Concat({WithBackslash(directory), entry.name});
    if (pages.size() >= kMostPages) return;
    if (entry.isDirectory && depth > 0) AddPagesOf(files, path, depth - 1, pages);
    if (!entry.isDirectory && IsPage(entry.name)) pages.push_back(path);
  }
}

std::vector<std::string> PagesOfProject(Program& program, std::string_view name) {
  const bool isPath = name.find('\\') != std::string_view::npos;
  const std::string path = isPath ? std::string(name) : Concat({program.ProgramPath, "PROJEKTY\\", name, ".pro"});
  return ProjectFiles(program.platform.files.Read(path).value_or(""));
}

}  // namespace

ConvertedPage ConvertPage(Program& program, const CharSetFile& file, std::string bytes, std::string_view path, std::string_view target) {
  const TellStatus status = StatusLine(program);
  if (NamesNoSet(file, bytes) && HoldsUtf8(bytes)) return {.bytes = std::move(bytes), .isWhole = false, .isRefused = true};
  DecodedText decoded = DecodeText(file, std::move(bytes), status);
  std::string text = std::move(decoded.text);
  if (program.passes.updateBlocks) text = program.passes.updateBlocks(std::move(text), path);
  text = SetMetaInText(std::move(text), "HTTP-EQUIV", "Content-Type", Concat({"text/html;CHARSET=", target}));
  ConvertedPage page;
  page.bytes = EncodeText(file, text, decoded.symbols ? Symbols::Yes : Symbols::No, status);
  page.isWhole = decoded.comesBack && DecodeText(file, page.bytes).text == text;
  return page;
}

std::vector<std::string> PagesOfSource(Program& program, std::string_view source, Subdirectories subdirectories) {
  Files& files = program.platform.files;
  if (source.starts_with('@')) return PagesOfProject(program, source.substr(1));
  if (source.empty()) return {};
  if (!files.DirectoryExists(source)) return {std::string(source)};
  std::vector<std::string> pages;
  AddPagesOf(files, std::string(source), subdirectories == Subdirectories::Yes ? kDeepestDirectory : 0, pages);
  return pages;
}

}  // namespace morlan
