#include "tests/support/scriptedsession.h"

#include <gtest/gtest.h>

#include <sstream>

#include "app/assemble.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kSettings =
    "[Orvil Dantrel's - MORLAN - INI File (C)1997]\r\n[Setup]\r\nInstallation=ok\r\n[Document]\r\nCreateBackup=False\r\n"
    "[Colorize]\r\nUseColorize=True\r\nGlobalColor=000000\r\nTagsColor=0000FF\r\nLinksColor=FF0000\r\nCommentsColor=008000\r\n";

}  // namespace

ScriptedSession::ScriptedSession() {
  const std::string root = files_.FromNative(folder_.path.string());
  for (const char* name : {"windows", "program", "temp", "work"}) files_.CreateDirectory(Concat({root, "\\", name}));
  environment_.windows = root + "\\windows";
  environment_.userData = root + "\\program";
  environment_.temp = root + "\\temp";
  files_.Write(root + "\\windows\\Morlan7.ini", kSettings);
  files_.ChangeDirectory(root + "\\work");
}

ScriptedSession::~ScriptedSession() = default;

std::vector<std::string> ScriptedSession::Run(std::string_view script, StatusLines statusLines) {
  std::istringstream in{std::string(script)};
  std::ostringstream out;
  program_.reset();
  host_ = std::make_unique<ScriptHost>(Machine{files_, environment_, registry_, clock_}, in, out, stoppedAt);
  host_->session.onAbandoned = onAbandoned;
  program_ = std::make_unique<Program>(host_->platform(), host_->frontEnd());
  Assemble(*program_);
  if (prepare) prepare(*program_);
  carriedOut_ = host_->Run(*program_);

  const std::string folder = Replaced(ToUtf8(files_.CurrentDirectory()), "\\", "\\\\");
  std::istringstream transcript(Replaced(out.str(), folder, "<folder>"));
  std::vector<std::string> lines;
  bool started = false;
  for (std::string line; std::getline(transcript, line);) {
    const bool isStatus = line.starts_with("status ");
    if (started && (!isStatus || statusLines == StatusLines::Keep)) lines.push_back(line);
    started = started || line == "status \"Gotowy\"";
  }
  return lines;
}

std::string ScriptedSession::WorkPath(std::string_view name) const { return Concat({environment_.windows, "\\..\\work\\", name}); }

void ScriptedSession::Write(std::string_view name, std::string_view bytes) { EXPECT_TRUE(files_.Write(WorkPath(name), bytes)); }

std::string ScriptedSession::Read(std::string_view name) {
  const auto bytes = files_.Read(WorkPath(name));
  EXPECT_TRUE(bytes.has_value()) << name;
  return bytes.value_or("");
}

}  // namespace morlan
