// What the dialogs of server-side tags share: each makes a text of its own and leaves it in DialogResult, the same one for a
// new tag and for a tag that is written anew. An empty text is a cancel.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

// A blank, the name, "=" and the text in quotes; nothing when there is no text. Quotes in the text are not escaped.
std::string AddAttribute(std::string_view text, std::string_view name);

// Shows a value of a tag in a box: as its row, found without regard to case, else as the text of an editable box. A list-only
// box then selects nothing.
void ShowChoice(ComboBox& box, std::string_view value);

class ServerDialog : public Form {
 public:
  ServerDialog(Program& program, std::string_view name, std::string_view caption);

  // What OK leaves in DialogResult.
  virtual std::string Result() const = 0;
  // Shows the dialog and answers with DialogResult: empty when the dialog was cancelled or nothing was filled in.
  std::string Ask();

 protected:
  // Fills a box from a list file, whose last entry it then holds. OK adds what the box holds to the file, and the box has the
  // file's entries at each showing, since dialogs share files.
  void Remember(ComboBox& box, std::string_view listFile);
  void SetUp(Button& ok, Button& cancel);
  // OK asks this first; false keeps the dialog open.
  virtual bool IsComplete() { return true; }

  Program& program_;

 private:
  struct RememberedBox {
    ComboBox& box;
    std::string_view listFile;
  };
  void Refill();
  void Confirm();
  std::vector<RememberedBox> remembered_;
};

}  // namespace morlan
