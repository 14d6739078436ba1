// The world outside as a scripted session sees it: what the program does to it is told in the transcript.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/script/transcript.h"
#include "platform/services.h"

namespace morlan {

class ScriptProcesses : public Processes {
 public:
  // Without `real` the programs are told of and not started.
  ScriptProcesses(Transcript& transcript, Processes* real) : transcript_(transcript), real_(real) {}
  bool Start(std::string_view commandLine, int windowStyle) override;
  bool Open(std::string_view path) override;

 private:
  Transcript& transcript_;
  Processes* real_;
};

// A clipboard of the session's own. It keeps all of Unicode; the program gets a character that Windows-1250 lacks as a
// numeric reference, since what it takes from here goes into documents.
class ScriptClipboard : public Clipboard {
 public:
  std::optional<std::string> Text() override;
  void SetText(std::string_view text) override;
  void SetUtf8(std::string_view utf8) { utf8_ = utf8; }
  const std::optional<std::string>& Utf8() const { return utf8_; }

 private:
  std::optional<std::string> utf8_;
};

class ScriptPrinter : public LinePrinter {
 public:
  explicit ScriptPrinter(Transcript& transcript) : transcript_(transcript) {}
  void Print(std::string_view item) override;
  bool EndDocument() override { return true; }

 private:
  Transcript& transcript_;
};

}  // namespace morlan
