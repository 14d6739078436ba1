#include "platform/script/transcript.h"

namespace morlan {

void Transcript::Line(std::initializer_list<std::string_view> words) {
  if (!open_) return;
  std::string_view gap;
  for (const std::string_view word : words) {
    if (word.empty()) continue;
    out_ << gap << word;
    gap = " ";
  }
  out_ << '\n' << std::flush;
}

}  // namespace morlan
