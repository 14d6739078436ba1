// The dialog that maintains the file of tags: which tags have a property sheet, and which attributes stand on it.
#pragma once

#include <string>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

struct PropertiesEditor : Form {
  ListBox Znaczniki{*this, "Znaczniki"};
  Button Command1{*this, "Command1", "&Dodaj"}, Command2{*this, "Command2", "&Usuń"_pl};
  ListBox Parametry{*this, "Parametry"};
  Button Command4{*this, "Command4", "D&odaj"}, Command3{*this, "Command3", "&Edytuj"}, Command6{*this, "Command6", "U&suń"_pl};
  Button Command5{*this, "Command5", "&Zamknij"};

  explicit PropertiesEditor(Program& program);

 private:
  void LoadTags(const std::string& selected);
  void LoadParams(const std::string& selected);
  void AddTag();
  void RemoveTag();
  void AddParam();
  void EditParam();
  void RemoveParam();
  bool IsConfirmed(std::string_view question, std::string_view name);
  void SetUpToolTips();
  void EnableButtons();

  Program& program_;
};

void EditProperties(Program& program);

}  // namespace morlan
