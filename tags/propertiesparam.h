// The dialog of one attribute in the file of tags. Only the fields that fit the kind are shown.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"
#include "tags/propertyfile.h"

namespace morlan {

class Program;

struct PropertiesParam : Form {
  TextBox Info{*this, "Info"};    // of the tag, not of the attribute
  TextBox name_{*this, "name_"};  // of the attribute
  ComboBox Style{*this, "Style", ComboBox::Style::ListOnly};
  ComboBox DefaultValue{*this, "DefaultValue"};
  ComboBox DialogType{*this, "DialogType", ComboBox::Style::ListOnly};
  CheckBox DialogVisible{*this, "DialogVisible", "Pokaż &przycisk okienka"_pl, true};
  CheckBox UseFile{*this, "UseFile", "Użyj p&liku"_pl};
  ComboBox FileList{*this, "FileList"};
  ListBox Content{*this, "Content"};
  Button AddButton{*this, "AddButton", "&Dodaj"}, DelButton{*this, "DelButton", "&Usuń"_pl};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit PropertiesParam(Program& program);

  // Fills the fields; a name that the tag does not have is a new parameter.
  void Load(std::string_view tag, std::string_view param);
  // The name under which the parameter was saved, empty when it was not.
  const std::string& Saved() const { return saved_; }

 private:
  void Style_Click();
  void UseFile_Click();
  void AddValue();
  void RemoveValue();
  void LoadFiles();
  void LoadDefaults();  // what the default can be chosen from
  void SaveParam();
  bool WriteRecord(const ParamRecord& record);
  ParamRecord Record() const;
  ParamKind Kind() const;
  void SetUpToolTips();
  Layout FieldRows();

  Program& program_;
  std::string tag_, oldName_, saved_;
  bool builtIn_ = false;
};

// Each shows the dialog; the name of the parameter as it was saved, empty when it was not.
std::string AddParamOf(Program& program, std::string_view tag);
std::string EditParamOf(Program& program, std::string_view tag, std::string_view param);

}  // namespace morlan
