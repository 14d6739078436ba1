// Builds the file of property sheets from its readable source, and turns such a file back into a source.
#include <string>
#include <utility>
#include <vector>

#include "app/sourcetool.h"
#include "tags/propertysource.h"

namespace morlan {
namespace {

constexpr const char* kUsage =
    "morlan7-sheets compile RESULT SOURCE...   build the file of property sheets from all sources together\n"
    "morlan7-sheets source FILE                print the source of a file of property sheets\n";

int Main(const std::vector<std::string>& arguments) {
  const auto compile = [](const std::vector<PropertySourceText>& sources) { return CompileProperties(sources); };
  const auto sourceOf = [](std::string bytes) { return PropertySourceOf(PropertyFile(std::move(bytes))); };
  return SourceTool<PropertySourceText, decltype(compile), decltype(sourceOf)>(kUsage, compile, sourceOf).Run(arguments);
}

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) { return morlan::Main({arguments + 1, arguments + count}); }
