#include "core/statusbar.h"

#include <algorithm>

namespace morlan {

StatusBar::StatusBar(Form& owner, std::string_view name, std::vector<std::string> keys) : Control(owner, name, Kind::Panel) {
  for (std::string& key : keys) panels_.push_back({std::move(key), ""});
}

void StatusBar::SetPanel(std::string_view key, std::string_view text) {
  const auto found = std::find_if(panels_.begin(), panels_.end(), [&](const StatusPanel& panel) { return panel.key == key; });
  if (found != panels_.end()) SetPanel(static_cast<std::size_t>(found - panels_.begin()) + 1, text);
}

void StatusBar::SetPanel(std::size_t number, std::string_view text) {
  if (number < 1 || number > panels_.size() || panels_[number - 1].text == text) return;
  panels_[number - 1].text = text;
  Notify(Aspect::Text);
}

const std::string& StatusBar::PanelText(std::string_view key) const {
  static const std::string kEmpty;
  const auto found = std::find_if(panels_.begin(), panels_.end(), [&](const StatusPanel& panel) { return panel.key == key; });
  return found == panels_.end() ? kEmpty : found->text;
}

}  // namespace morlan
