// A program without a window for the benchmarks.
#pragma once

#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <utility>

#include "app/assemble.h"
#include "bench/pages.h"
#include "core/defs.h"
#include "core/document.h"
#include "platform/posix/clock.h"
#include "platform/posix/environment.h"
#include "platform/posix/files.h"
#include "platform/posix/registry.h"
#include "platform/script/scripthost.h"

namespace morlan {

// A program with one document, coloured as a page.
class BenchProgram {
 public:
  explicit BenchProgram(std::string text) {
    Assemble(program_);
    program_.tagState.UseColorize = true;
    program_.tagState.TagsColor = RgbColour(0, 0, 255);
    program_.tagState.LinksColor = RgbColour(0, 128, 0);
    program_.tagState.CommentsColor = RgbColour(128, 128, 128);
    program_.documents.push_back(document_);
    program_.ActiveDocument = document_.get();
    program_.ActiveEditor = &document_->EditedText;
    document_->Form_Initialize();
    document_->EditedText.SetText(std::move(text));
    program_.passes.colourDocument(document_->EditedText);
  }
  Program& program() { return program_; }
  TEditor& document() { return *document_; }

 private:
  PrivateFolder folder_;
  PosixFiles files_;
  PosixEnvironment environment_{FoldersBelow(folder_.Path())};
  FileRegistry registry_{folder_.Path() + "/registry"};
  PosixClock clock_;
  std::istringstream script_;
  std::ostringstream transcript_;
  ScriptHost host_{{files_, environment_, registry_, clock_}, script_, transcript_, std::nullopt};
  Program program_{host_.platform(), host_.frontEnd()};
  std::shared_ptr<TEditor> document_ = std::make_shared<TEditor>(program_);
};

// The same page with blanks in the place of its line ends.
inline std::string OneLine(std::size_t bytes) {
  std::string page = GeneratedPage(bytes);
  for (char& character : page)
    if (character == '\r' || character == '\n') character = ' ';
  return page;
}

}  // namespace morlan
