// The program's forms, made on first use, one of each kind. They keep their field values.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <typeindex>
#include <vector>

#include "platform/forms/form.h"

namespace morlan {

class Program;

class FormCollection {
 public:
  explicit FormCollection(Program& program) : program_(program) {}

  template <class Kind>
  Kind& Get() {
    auto& slot = made_[std::type_index(typeid(Kind))];
    if (!slot) slot = std::make_unique<Kind>(program_);
    return static_cast<Kind&>(*slot);
  }

  // How a form is opened by its name, as its own command does.
  void OnShow(std::string_view name, std::function<void()> show);
  bool ShowByName(std::string_view name);  // false when no form has that name
  bool CanShow(std::string_view name) const;
  std::vector<std::string> Names() const;
  // A form that was made already, without regard to case; null when there is none.
  Form* FindMade(std::string_view name);

 private:
  Program& program_;
  std::map<std::type_index, std::unique_ptr<Form>> made_;
  std::map<std::string, std::function<void()>, std::less<>> shows_;
};

}  // namespace morlan
