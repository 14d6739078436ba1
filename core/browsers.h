// The pop-up list of the browsers that the settings name. One that is chosen shows the page.
#pragma once

#include <string>
#include <vector>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

class Browsers : public Form {
 public:
  explicit Browsers(Program& program);

  Label Hint{*this, "Hint", "Przeglądarki dodaje się w konfiguracji programu."_pl};  // shown while there are none
  ListBox List{*this, "List"};

 private:
  void Form_Load();
  void List_Click();
  void List_KeyDown(KeyPress& press);

  Program& program_;
  std::vector<std::string> paths_;  // one for each row
};

void ShowBrowsers(Program& program);

}  // namespace morlan
