// The dialog of a new document: a page from a template, or the templates themselves.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

struct NewDoc : Form {
  // "Typ dokumentu"
  ListBox DocList{*this, "DocList"};
  Button Command1{*this, "Command1", "Wybierz"}, Command2{*this, "Command2", "&Anuluj"};
  // "Wybierz szablon"
  ListBox TempList{*this, "TempList"};
  Button Command3{*this, "Command3", "Nowy"}, Command5{*this, "Command5", "Usuń"_pl}, Command6{*this, "Command6", "Edytuj"},
      Command4{*this, "Command4", "&Anuluj"};
  explicit NewDoc(Program& program);

 private:
  void ListTemplates();
  void Leave(std::string_view file, int choice);
  void DeleteTemplate();
  std::string TemplateFile(std::string_view name) const;
  Program& program_;
};

// How the dialog was left, in DialogChoice.
namespace newdoc {
inline constexpr int kCancelled = 0, kFromTemplate = 1, kEditTemplate = 2, kNewTemplate = 3;
}

// The command: asks with the dialog and opens what was chosen.
void NewDocument(Program& program);

}  // namespace morlan
