// One open document: the child window around its text. Its path is its Caption, its state lies in label controls.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "core/editsurface.h"
#include "core/menus.h"
#include "core/undoio.h"
#include "platform/forms/controls.h"

namespace morlan {

class Program;

class TEditor : public Form {
 public:
  explicit TEditor(Program& program);

  Label FileType{*this, "FileType"};  // "html", "szablon", "makro", "cdf"; empty while there is none
  Label NeedToBeSaved{*this, "NeedToBeSaved", "False"};
  Label CharSet{*this, "CharSet"};
  Label LastDir{*this, "LastDir"};
  Panel FastHelpL{*this, "FastHelpL"};    // the hint panel; its text is its caption
  ListBox FastHelpC{*this, "FastHelpC"};  // the hints in it
  MlnEditor EditedText;
  UndoIO UNDO;
  Menu menu;            // the menu bar while this document is active
  Menu xmnm_editpopup;  // the pop-up of a right click

  Program& program() const { return program_; }
  // The revision of the text that was kept against loss last.
  std::uint64_t keptRevision = 0;
  bool IsModified() const;  // NeedToBeSaved read as a boolean

  // Events of EditedText. Setting a key's code, or a character, to 0 swallows it.
  void EditedText_OnKeyDown(KeyPress& press);
  void EditedText_onKeyPress(int& character);
  void EditedText_OnKeyUp(const KeyPress& press);
  void EditedText_OnMouseDown(MouseButton button);
  void editedtext_onChange();
  void EditedText_GotFocus();
  // A file dropped on the text, in the program's form: becomes a tag relative to the document's directory at the caret.
  void DropFile(std::string_view path);

  void Form_Initialize();
  void Form_Load();
  void Form_Activate();
  // False when the user cancels.
  bool Form_Unload();

  // Font, colours and what Enter types, from the settings; they hold from now on.
  void TakeSettings();
  void TakeColours();
  void HideHints();

  // Colours what the user's last edit reaches.
  void ProcessLine();
  void ShowLineInfo();
  void ShowSize();  // the length of the text, in the status line
  // Replaces the selection as a command does, records nothing, and colours what that reaches.
  void ReplaceAndColour(std::string_view text);
  // The user's next change comes from the keyboard, so that ProcessLine has to colour it.
  void ExpectTyping() { lineEdited_ = true; }
  void SetupDirs();
  void FastHelpC_DblClick();
  void InsertAtCaret(std::string_view text);

 private:
  void RecordDelete(KeyPress& press);
  void RecordBackspace(KeyPress& press);
  void RecordDeletion(std::size_t position, std::size_t width);
  void RecordPaste(KeyPress& press);
  void OpenSheetOrMenu(KeyPress& press);
  void OpenContextMenu(KeyPress& press);
  void ShowNextDocument(KeyPress& press);
  void ShowPreviousDocument(KeyPress& press);
  void RepeatInsertion(KeyPress& press);
  void InsertNbsp(KeyPress& press);
  void InsertBr(KeyPress& press);
  void RunShortcut(KeyPress& press);
  void ShowHints();
  void MarkAsModified();

  Program& program_;
  std::size_t shownLength_ = 0;  // the length that the size panel tells
  bool lineEdited_ = false;      // the flag of ProcessLine
};

}  // namespace morlan
