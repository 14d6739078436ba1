#include "core/forms.h"

#include <algorithm>

#include "platform/lettercase.h"

namespace morlan {

void FormCollection::OnShow(std::string_view name, std::function<void()> show) { shows_[std::string(name)] = std::move(show); }

bool FormCollection::ShowByName(std::string_view name) {
  for (const auto& [known, show] : shows_) {
    if (!EqualNoCase(known, name)) continue;
    show();
    return true;
  }
  return false;
}

bool FormCollection::CanShow(std::string_view name) const {
  return std::any_of(shows_.begin(), shows_.end(), [&](const auto& show) { return EqualNoCase(show.first, name); });
}

std::vector<std::string> FormCollection::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, show] : shows_) names.push_back(name);
  return names;
}

Form* FormCollection::FindMade(std::string_view name) {
  for (const auto& [type, form] : made_)
    if (form && EqualNoCase(form->Name(), name)) return form.get();
  return nullptr;
}

}  // namespace morlan
