// What the dialogs share whose OK button writes a new tag itself: those of tables, of frames and of the outline of a form.
#pragma once

#include <string>
#include <string_view>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// Texts of the status line while a tag is made.
inline constexpr std::string_view kTableStatus = "Generowanie znacznika tabeli...";
inline constexpr std::string_view kFrameStatus = "Generowanie znacznika ramki...";
inline constexpr std::string_view kFormStatus = "Generowanie znacznika formularza...";

// The dialog of one tag. For a tag that stands in the document OK only closes it, and Edit goes on.
class TagDialog : public Form {
 public:
  TagDialog(Program& program, std::string_view name, std::string_view caption, std::string_view status);

  // Fills the fields from a tag's text, which need not hold its ">".
  virtual void Read(std::string_view tag) = 0;
  // The tag as the fields have it.
  virtual std::string Text() const = 0;
  // What ends a new tag behind the selection; empty for none.
  virtual std::string_view Closing() const = 0;

  // Shows the tag under the caret and, unless that is cancelled, writes it anew.
  void Edit();
  // Shows the fields as they stand; OK puts a new tag round the selection.
  void Insert();

 protected:
  void SetUp(Button& ok, Button& cancel);
  // OK asks for this first, for a new tag as for an old one.
  virtual void Remember() {}

  Program& program_;

 private:
  void Confirm();
  std::string MakeText() const;
  std::string_view status_;
};

}  // namespace morlan
