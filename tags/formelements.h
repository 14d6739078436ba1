// The dialog of the elements of a form: the INPUT, the TEXTAREA and the SELECT tag.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// The numbers by which commands ask for an element.
enum class FormElement { Text, Password, TextArea, Check, Radio, Submit, Reset, Hidden, Image, File, List };
inline constexpr std::size_t kFormElementCount = 11;

// The fields as they go into the document.
struct FormElementValues {
  std::string name{}, value{}, size{}, maxlength{}, rows{}, cols{}, src{};
  std::string align{};  // a word
  bool checked = false;
};

// What goes in front of the selection and behind it.
struct FormElementText {
  std::string open, close;
};

// A list gets as many empty entries as its rows, at most this many: beyond, no one could fill them in by hand, and a slip
// of the keyboard would fill the memory.
inline constexpr int kMostOptions = 1000;

// The alignment of an image is written as a second NAME. A list is one text, its end included.
FormElementText TextOfFormElement(FormElement element, const FormElementValues& values);

// DialogResult holds the number of the element when the dialog is shown. Fields that the element lacks are hidden, and keep
// what they hold.
struct FormElements : Form {
  ComboBox Element{*this, "Element", ComboBox::Style::ListOnly};
  TextBox name_{*this, "name_"}, value_{*this, "value_"}, src_{*this, "src_"};
  Button srcFile{*this, "srcFile", "..."};
  ComboBox align_{*this, "align_", ComboBox::Style::ListOnly};
  TextBox size_{*this, "size_"}, maxlength_{*this, "maxlength_"}, rows_{*this, "rows_"}, cols_{*this, "cols_"};
  CheckBox checked_{*this, "checked_", "&Zaznaczony"};
  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit FormElements(Program& program);
  FormElement Kind() const;
  FormElementValues Values() const;

 private:
  void SetUpToolTips();
  void SetControls();
  Program& program_;
};

// Shows the dialog with that kind chosen; its OK button inserts the element.
void InsertFormElement(Program& program, FormElement element);

}  // namespace morlan
