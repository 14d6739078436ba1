// A program with a small file of tags: one of every kind of attribute.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "core/statusbar.h"
#include "core/text.h"
#include "tags/properties.h"
#include "tags/propertysheets.h"
#include "tests/support/testprogram.h"

namespace morlan {

// Hears the messages of the status line.
class StatusListener : public ControlView {
 public:
  explicit StatusListener(StatusBar& bar) : bar_(bar) { bar.AttachView(this); }
  ~StatusListener() override { bar_.AttachView(nullptr); }
  void ControlChanged(Control&, Aspect) override { texts_.push_back(ToUtf8(bar_.ValueText())); }
  bool Heard(std::string_view text) const { return std::find(texts_.begin(), texts_.end(), text) != texts_.end(); }

 private:
  StatusBar& bar_;
  std::vector<std::string> texts_;
};

class SheetTest : public testing::Test {
 protected:
  SheetTest() {
    PropertyFile file;
    const std::uint32_t input = file.AddTag({"input", "Pole formularza", 0});
    file.AddParam(input, {.name = "type", .kind = ParamKind::List, .values = {"text", "checkbox"}});
    file.AddParam(input, {.name = "name"});
    file.AddParam(input, {.name = "size", .kind = ParamKind::Text, .defaultValue = "20"});
    file.AddParam(input, {.name = "checked", .kind = ParamKind::Switch, .builtIn = true});
    file.AddParam(input, {.name = "bgcolor", .kind = ParamKind::Colour, .defaultValue = "0"});
    file.AddParam(input, {.name = "target", .kind = ParamKind::ListFromFile, .listFile = "Cele"});
    file.AddParam(input, {.name = "src", .kind = ParamKind::Dialog, .dialogType = ParamDialog::Pictures});
    file.AddParam(input, {.name = "onclick", .kind = ParamKind::Event});
    file.AddParam(input, {.name = "style", .kind = ParamKind::Style});
    file.AddParam(file.AddTag({"basefont", "Czcionka", 0}), {.name = "face", .kind = ParamKind::List});
    file.AddTag({"pusty", "", 0});
    test_.Write("program\\Morlan7.tpf", file.Bytes());
    test_.Write("program\\Listy\\Cele.lst", "_blank\r\n_top\r\n");
  }

  Properties& Sheet() { return test_.program.forms.Get<Properties>(); }

  // Opens the sheet of a tag in the middle of a text, changes it and answers with what stands in its place.
  std::string Rewritten(std::string_view tag, const std::function<void(Properties&)>& change = {}, bool ok = true) {
    MlnEditor& editor = test_.OpenText(Concat({"ab", tag, "yz"})).EditedText;
    editor.Select(3, 0);
    test_.windows.modals.push_back([change, ok](Form& form) {
      auto& sheet = static_cast<Properties&>(form);
      if (change) change(sheet);
      (ok ? sheet.Command2 : sheet.Command1).UserClicks();
    });
    EXPECT_TRUE(OpenPropertySheet(test_.program, *test_.program.ActiveDocument)) << tag;
    const std::string text = test_.Text();
    EXPECT_TRUE(text.starts_with("ab") && text.ends_with("yz")) << text;
    return text.substr(2, text.size() - 4);
  }

  // What stands on the sheet: "type[2]=text ..." for the attributes, a digit being the kind.
  std::string Shown(std::string_view tag) {
    std::string shown;
    Rewritten(
        tag, [&](Properties& sheet) { shown = RowsOf(sheet.attributes); }, false);
    return shown;
  }
  static std::string RowsOf(const std::vector<SheetRow>& rows) {
    std::string shown;
    for (const SheetRow& row : rows)
      shown += Concat({shown.empty() ? "" : " ", row.name->Caption(), "[", row.name->Tag, "]=", row.value->ValueText()});
    return shown;
  }
  static void Set(Properties& sheet, std::string_view control, std::string_view text) {
    Control* found = sheet.Find(control);
    ASSERT_NE(found, nullptr) << control;
    EXPECT_TRUE(found->UserSetsText(text)) << control;
  }

  TestProgram test_;
};

}  // namespace morlan
