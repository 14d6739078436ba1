#include "tests/support/testprogram.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <fstream>

#include "app/assemble.h"
#include "core/documents.h"
#include "core/text.h"

namespace morlan {
namespace {

std::filesystem::path MakeFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "morlan7-test-XXXXXX").string();
  if (!mkdtemp(pattern.data())) ADD_FAILURE() << "no folder for the test";
  return pattern;
}

constexpr std::string_view kInstalled =
    "[Setup]\r\nInstallation=ok\r\n"
    "[LayOut]\r\nWindowsManager=True\r\nStatusBar=True\r\nCommandLine=True\r\nFileManager=True\r\nSymbols=True\r\n"
    "[Colorize]\r\nUseColorize=True\r\nGlobalColor=000000\r\nTagsColor=0000FF\r\nLinksColor=008000\r\nCommentsColor=808080\r\n";

}  // namespace

ThrowAwayFolder::ThrowAwayFolder() : path(MakeFolder()) {}

ThrowAwayFolder::~ThrowAwayFolder() {
  std::error_code ignored;
  std::filesystem::permissions(path, std::filesystem::perms::owner_all, ignored);
  std::filesystem::remove_all(path, ignored);
}

TestProgram::TestProgram(Start start)
    : program({files, environment, registry, processes, clock, clipboard, printer, windows}, frontEnd),
      root_(files.FromNative(folder.path.string())) {
  for (const char* name : {"windows", "program", "temp", "work"}) std::filesystem::create_directory(folder.path / name);
  environment.windows = Path("windows");
  environment.userData = Path("program");
  environment.temp = Path("temp");
  files.ChangeDirectory(Path("work"));
  Write("windows\\Morlan7.ini", kInstalled);
  Assemble(program);
  if (start == Start::No) return;
  StartUp(program);
  record.clear();
}

std::string TestProgram::Path(std::string_view relative) const { return Concat({root_, "\\", relative}); }

// Written without a flush to the disk, which a test can do without.
void TestProgram::Write(std::string_view relative, std::string_view bytes) {
  const std::filesystem::path path = files.ToNative(Path(relative));
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  EXPECT_TRUE(file.good()) << relative;
}

std::string TestProgram::Read(std::string_view relative) {
  const auto content = files.Read(Path(relative));
  EXPECT_TRUE(content.has_value()) << relative;
  return content.value_or("");
}

bool TestProgram::Exists(std::string_view relative) { return files.Size(Path(relative)).has_value(); }

TEditor& TestProgram::OpenText(std::string_view text, std::string_view name) {
  Write(Concat({"work\\", name}), "<html>");
  OpenDocument(program, Path(Concat({"work\\", name})));
  program.DocumentLoading = true;
  program.ActiveEditor->SetText(std::string(text));
  if (program.passes.colourDocument) program.passes.colourDocument(*program.ActiveEditor);
  program.DocumentLoading = false;
  record.clear();
  return *program.ActiveDocument;
}

std::string TestProgram::Text() const { return program.ActiveEditor ? program.ActiveEditor->Text() : std::string(); }

Record TestProgram::Asked() {
  Record asked;
  for (std::string& line : record) {
    const bool coming = line.starts_with("opened ") || line.starts_with("closed \"") || line.starts_with("activated ");
    if (!coming) asked.push_back(std::move(line));
  }
  record.clear();
  return asked;
}

}  // namespace morlan
