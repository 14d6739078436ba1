// The property sheet: a dialog for any tag that is described in the file of tags. Its rows are made when it comes up.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/encoding.h"
#include "platform/forms/controls.h"
#include "tags/propertyfile.h"
#include "tags/propertytext.h"

namespace morlan {

class Program;
class TEditor;

// A row of the sheet: the attribute's name (its Tag is the digit of the kind), the field for its value, and the button of one
// that has a dialog.
struct SheetRow {
  std::unique_ptr<Label> name;
  std::unique_ptr<Control> value;
  std::unique_ptr<Button> dialog;
  ParamKind kind = ParamKind::Text;
};

struct Properties : Form {
  Label Info{*this, "Info"};
  std::vector<SheetRow> attributes;  // Name_(i), Value_(i), Dialog_(i)
  std::vector<SheetRow> events;      // Event_(i), EvValue_(i)
  // The page CSS.
  CheckBox UseClass{*this, "UseClass", "Użyj &klasy"_pl};
  ComboBox ClassList{*this, "ClassList"};
  CheckBox UseDef{*this, "UseDef", "Użyj zdefiniowanego &stylu"_pl};
  ComboBox StyleList{*this, "StyleList", ComboBox::Style::ListOnly};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit Properties(Program& program);

  // Makes the rows of a tag, filled with their defaults; none for a tag that has no sheet.
  void BuildSheet(std::string_view tagName);
  SheetValues Values() const;

 private:
  void Form_Load();
  void ReadTag(const std::string& tag);
  void LoadExternalClass(std::string_view tagName);
  void LoadLocalClass(std::string_view tagName);
  void LoadStyles();
  void TakeTag();  // what Ok does
  void SetUpCssPage();
  void AddRow(const ParamRecord& param);
  std::unique_ptr<Control> MakeValue(std::string_view name, const ParamRecord& param);
  void SetUpDialog(SheetRow& row, ParamDialog type);
  bool HasRow(std::string_view attribute) const;
  void LayOut();

  Program& program_;
  bool hasCss_ = false;
  std::string tagName_;   // as it stands in the document
  std::string oldStyle_;  // the declarations that the tag had
};

// The sheet of the tag at the caret. False, with nothing shown, when the tag has none.
bool OpenPropertySheet(Program& program, TEditor& document);

// Sheets, hints and the dialogs that maintain their file.
void RegisterPropertySheets(Program& program);

}  // namespace morlan
