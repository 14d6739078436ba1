// What a scripted session answers: lines of words, each sent on at once.
#pragma once

#include <initializer_list>
#include <ostream>
#include <string_view>

namespace morlan {

class Transcript {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  // Words in UTF-8, strings already in their JSON form; empty words are left out.
  void Line(std::initializer_list<std::string_view> words);
  // Nothing more is written: the last line is out.
  void Close() { open_ = false; }

 private:
  std::ostream& out_;
  bool open_ = true;
};

}  // namespace morlan
