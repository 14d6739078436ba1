#include "core/charsetnames.h"

#include "core/defs.h"
#include "core/settings.h"

namespace morlan {

std::vector<std::string> CharsetNames(Program& program) {
  if (program.passes.charsetNames) return program.passes.charsetNames();
  const std::string stored = Settings(program.MainIni).Text(Setting::CharSet);
  if (stored.empty() || stored == kNoCharset) return {};
  return {stored};
}

}  // namespace morlan
