// A tool that builds a definition file from readable sources, and turns such a file back into a source.
#pragma once

#include <iostream>
#include <string>
#include <utility>
#include <vector>

#include "app/toolfiles.h"

namespace morlan {

// "NAME compile RESULT SOURCE..." and "NAME source FILE". `Source` has a path and a text; `compile` answers with the file and the
// faults ("FILE:LINE: what is wrong"); `sourceOf` has no value for bytes that are damaged.
template <class Source, class Compile, class SourceOf>
class SourceTool {
 public:
  SourceTool(const char* usage, Compile compile, SourceOf sourceOf) : usage_(usage), compile_(compile), sourceOf_(sourceOf) {}

  // The status that the process ends with.
  int Run(const std::vector<std::string>& arguments) const {
    const std::string command = arguments.empty() ? "" : arguments.front();
    if (command == "compile" && arguments.size() > 2) return CompileFiles(arguments[1], {arguments.begin() + 2, arguments.end()});
    if (command == "source" && arguments.size() == 2) return PrintSource(arguments[1]);
    std::cerr << usage_;
    return 2;
  }

 private:
  int CompileFiles(const std::string& result, const std::vector<std::string>& paths) const {
    std::vector<Source> sources;
    for (const std::string& path : paths) {
      auto text = ReadToolFile(path);
      if (!text) return 1;
      sources.push_back({path, std::move(*text)});
    }
    const auto compiled = compile_(sources);
    for (const std::string& fault : compiled.faults) std::cerr << fault << '\n';
    return compiled.faults.empty() && WriteToolFile(result, compiled.file.Bytes()) ? 0 : 1;
  }

  int PrintSource(const std::string& path) const {
    auto bytes = ReadToolFile(path);
    if (!bytes) return 1;
    const auto source = sourceOf_(std::move(*bytes));
    if (!source) std::cerr << path << ": the file is damaged\n";
    std::cout << source.value_or("") << std::flush;
    return source && std::cout ? 0 : 1;
  }

  const char* usage_;
  Compile compile_;
  SourceOf sourceOf_;
};

}  // namespace morlan
