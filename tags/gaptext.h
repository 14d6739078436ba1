// The text of an edit surface as it lies there, in two stretches round the gap of the last edit. Searches on every key
// read through this, so that no text is moved or copied. The names are those of std::string_view.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morlan {

class MlnEditor;

// Valid until the text changes. Offsets count from 0.
class GapText {
 public:
  static constexpr std::size_t npos = std::string_view::npos;

  explicit GapText(const MlnEditor& editor);

  std::size_t size() const { return front_.size() + back_.size(); }
  char operator[](std::size_t offset) const { return offset < front_.size() ? front_[offset] : back_[offset - front_.size()]; }
  std::size_t find(char character, std::size_t from) const;
  // The last place in front of `end`.
  std::size_t FindBackwards(char character, std::size_t end) const;
  // The characters from `begin` up to `end`, in `copy` where the gap lies among them.
  std::string_view Between(std::size_t begin, std::size_t end, std::string& copy) const;

 private:
  std::string_view front_, back_;
};

}  // namespace morlan
