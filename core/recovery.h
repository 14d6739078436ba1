// Keeping the texts of open documents against loss, and the form that gives kept texts back.
#pragma once

#include <string>
#include <vector>

#include "core/defs.h"
#include "core/safetystore.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

class Recovery : public Form {
 public:
  explicit Recovery(Program& program);

  Label Info{*this, "Info"};
  ListBox Teksty{*this, "Teksty"};
  TextBox Zawartosc{*this, "Zawartosc", "", TextBox::Lines::Many};
  Button Command2{*this, "Command2", "&Otwórz"_pl};
  Button Command3{*this, "Command3", "Zapisz &kopię..."_pl};
  Button Command4{*this, "Command4", "&Usuń"_pl};
  Button Command1{*this, "Command1", "&Zamknij"};

  // What the form lists from now on.
  void SetTexts(std::vector<KeptText> texts, std::string_view info);

 private:
  const KeptText* Selected() const;
  void ShowContent();
  void OpenSelected();
  void SaveCopy();
  void DeleteSelected();
  void RemoveRow();
  Program& program_;
  std::vector<KeptText> texts_;  // one a row
};

// Keeps the text of each document with unsaved changes that has changed since it was kept last, and forgets those of documents
// that are saved or closed.
void KeepChanges(Program& program);

// The same at once, when the program is being ended from outside: waits until the texts are in their files, two seconds at most.
bool KeepChangesNow(Program& program);

// Offers the texts that a program left behind which ended without being told to; nothing happens when there are none.
void OfferLeftBehind(Program& program);

// "Odzyskaj...": all that is kept.
void ShowRecovery(Program& program);

// Opens a kept text as a changed document: an unsaved one under its own name, others under a name that tells the moment.
void OpenKeptText(Program& program, const KeptText& kept);

// One line about a kept text.
std::string KeptTextRow(const KeptText& kept);

}  // namespace morlan
