// The two ways of an editor of tags: the context menu's entry that rewrites a tag, and the toolbar's button that inserts one.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/text.h"
#include "platform/forms/controls.h"
#include "tests/support/testprogram.h"

namespace morlan {

class TagEditorTest : public testing::Test {
 protected:
  // What a user puts into controls, by their names.
  using Values = std::vector<std::pair<std::string_view, std::string_view>>;
  using Act = std::function<void(Form&)>;
  enum class End { Ok, Cancel };

  static Act Setting(Values values) {
    return [values = std::move(values)](Form& form) {
      for (const auto& [name, value] : values) {
        Control* control = form.Find(name);
        ASSERT_NE(control, nullptr) << name;
        EXPECT_TRUE(control->UserSetsText(value)) << name << " does not take " << ToUtf8(value);
      }
    };
  }

  // Rewrites a tag in the middle of a text and answers with what stands in its place.
  std::string Rewritten(std::string_view tag, const Act& act, End end = End::Ok) {
    MlnEditor& editor = test_.OpenText(Concat({"ab", tag, "yz"})).EditedText;
    editor.Select(3, 0);
    AnswerWith(act, end);
    test_.program.ActiveDocument->EditedText_OnMouseDown(MouseButton::Right);
    EXPECT_TRUE(test_.program.commands.RunMenu("xmn_item"));
    EXPECT_TRUE(test_.windows.modals.empty()) << "no dialog came up for " << tag;
    const std::string text = test_.Text();
    EXPECT_TRUE(text.starts_with("ab") && text.ends_with("yz")) << text;
    return text.substr(2, text.size() - 4);
  }
  std::string Rewritten(std::string_view tag, Values values = {}, End end = End::Ok) {
    return Rewritten(tag, Setting(std::move(values)), end);
  }

  // Inserts a tag round "x" by a toolbar's button. The caret stands as "|".
  std::string Inserted(std::string_view toolbar, std::string_view key, const Act& act, End end = End::Ok) {
    test_.OpenText("x").EditedText.Select(0, 1);
    AnswerWith(act, end);
    EXPECT_TRUE(test_.frame().FindAs<ToolBar>(toolbar)->UserPresses(key)) << toolbar << " " << key;
    return test_.Text();
  }
  std::string Inserted(std::string_view toolbar, std::string_view key, Values values = {}, End end = End::Ok) {
    return Inserted(toolbar, key, Setting(std::move(values)), end);
  }

  // What a control of the dialog shows for a tag.
  std::string Shown(std::string_view tag, std::string_view control) {
    std::string value;
    Rewritten(
        tag, [&](Form& form) { value = form.Find(control)->ValueText(); }, End::Cancel);
    return value;
  }

  // The file that the button of a dialog puts into the field beside it.
  std::string ChosenFile(std::string_view tag, std::string_view button, std::string_view field, std::string_view chosen) {
    std::string value;
    const auto choose = [&](Form& form) {
      test_.windows.files.emplace_back(test_.Path(chosen));
      EXPECT_TRUE(form.Find(button)->UserClicks());
      test_.windows.files.emplace_back(std::nullopt);
      EXPECT_TRUE(form.Find(button)->UserClicks()) << "a cancelled question leaves the field alone";
      value = form.Find(field)->ValueText();
    };
    Rewritten(tag, choose, End::Cancel);
    return value;
  }

  // Reading a tag and confirming it as it is leaves the same bytes.
  void ExpectRoundTrip(std::string_view tag) { EXPECT_EQ(Rewritten(tag), tag); }

  // Nothing of an existing tag changes when its dialog is cancelled, by the button or by the window.
  void ExpectCancelKeeps(std::string_view tag) {
    EXPECT_EQ(Rewritten(tag, Values{}, End::Cancel), tag);
    EXPECT_FALSE(test_.program.ActiveDocument->IsModified()) << tag;
    EXPECT_EQ(Rewritten(
                  tag, [](Form& form) { form.UserCloses(); }, End::Cancel),
              tag);
  }
  void ExpectCancelInsertsNothing(std::string_view toolbar, std::string_view key) {
    EXPECT_EQ(Inserted(toolbar, key, Values{}, End::Cancel), "x");
    EXPECT_FALSE(test_.program.ActiveDocument->IsModified()) << toolbar << " " << key;
  }

  // The status line tells of the work between the dialog and the new tag.
  void ExpectStatus(std::string_view tag, std::string_view status) {
    const StatusWatch watch(test_.frame());
    Rewritten(tag);
    EXPECT_NE(watch.texts.find(Concat({" | ", status, " | Gotowy"})), std::string::npos) << tag << ": " << ToUtf8(watch.texts);
  }

  void Undo() { test_.program.ActiveDocument->UNDO.DoUndo(*test_.program.ActiveDocument); }

  TestProgram test_;

 private:
  // Hears of each text of the first panel.
  struct StatusWatch : ControlView {
    explicit StatusWatch(Morlan& frame) : bar(frame.statusBar), before(bar.View()) { bar.AttachView(this); }
    ~StatusWatch() override { bar.AttachView(before); }
    void ControlChanged(Control&, Aspect) override {
      const std::string text = bar.PanelText("status");
      if (text != last) texts += Concat({texts.empty() ? "" : " | ", text});
      last = text;
    }
    StatusBar& bar;
    ControlView* before;
    std::string last, texts;
  };

  void AnswerWith(const Act& act, End end) {
    test_.windows.modals.push_back([act, end](Form& form) {
      if (act) act(form);
      if (form.IsVisible()) (end == End::Ok ? form.defaultButton : form.cancelButton)->UserClicks();
    });
  }
};

}  // namespace morlan
