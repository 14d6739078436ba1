// The status line: panels addressed by key. The first one carries the program's messages.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/forms/control.h"

namespace morlan {

class StatusBar : public Control {
 public:
  struct StatusPanel {
    std::string key, text;
  };
  StatusBar(Form& owner, std::string_view name, std::vector<std::string> keys);
  const std::vector<StatusPanel>& Panels() const { return panels_; }
  void SetPanel(std::string_view key, std::string_view text);
  void SetPanel(std::size_t number, std::string_view text);  // from 1
  const std::string& PanelText(std::string_view key) const;
  std::string ValueText() const override { return panels_.front().text; }

 private:
  std::vector<StatusPanel> panels_;
};

}  // namespace morlan
