// Builds the file of character sets from its readable source, and turns such a file back into a source.
#include <string>
#include <utility>
#include <vector>

#include "app/sourcetool.h"
#include "text/charsetsource.h"

namespace morlan {
namespace {

constexpr const char* kUsage =
    "morlan7-charsets compile RESULT SOURCE...   build the file of character sets from all sources together\n"
    "morlan7-charsets source FILE                print the source of a file of character sets\n";

int Main(const std::vector<std::string>& arguments) {
  const auto compile = [](const std::vector<CharSetSourceText>& sources) { return CompileCharSets(sources); };
  const auto sourceOf = [](std::string bytes) { return CharSetSourceOf(CharSetFile(std::move(bytes))); };
  return SourceTool<CharSetSourceText, decltype(compile), decltype(sourceOf)>(kUsage, compile, sourceOf).Run(arguments);
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main({arguments + 1, arguments + count}); }
