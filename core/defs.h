// The state that is global to the program, under its own names.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/commands.h"
#include "core/editorhooks.h"
#include "core/forms.h"
#include "core/hints.h"
#include "core/inifile.h"
#include "core/tagstate.h"
#include "core/textpasses.h"
#include "platform/keys.h"
#include "platform/platform.h"

namespace morlan {

class FrontEnd;
class MlnEditor;
class Morlan;
class SafetyStore;
class TEditor;

class Program {
 public:
  Program(Platform platform, FrontEnd& frontEnd);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  Platform platform;
  FrontEnd& frontEnd;
  CommandTable commands;
  TextPasses passes;
  EditorHooks hooks;
  HintSource hints;
  TagState tagState;
  FormCollection forms;
  // "Run this binding": the user's own key assignments; true when the key ran something.
  std::function<bool(const KeyPress&)> runShortcut;
  // Runs a macro by its name; false when there is none. Empty while nothing offers macros.
  std::function<bool(std::string_view name)> runMacro;

  INIFile MainIni, ProjectIni;
  std::string ProgramPath;  // always ends in "\"
  std::string TempDir;      // always ends in "\"
  std::string TempFile, PreviewFile, TempFileN, TempFileE;
  std::string AlwaysViewFile;  // shown by the preview in the place of the document; empty: the document
  std::string HelpFile;        // of the application
  std::string DialogResult;
  std::uint8_t DialogChoice = 0;
  std::string WizardFile;
  std::uint8_t WizardCode = 0;
  std::int32_t AutoSaveInterval = 0, AutoSaveCounter = 0;
  std::int16_t LineInfoCounter = 0;
  std::string CurrentCharset = "Win1250";
  std::string LoadNotice;  // what the status line says at the end of a load; empty: that the program is ready
  std::array<std::string, 3> PrintHeader;
  bool DocumentLoading = false;
  bool HintShow = true, HintShowList = true;
  bool WindowsListDirty = false;

  // The frame. It exists from construction to the end.
  Morlan& frame() const { return *morlan_; }

  // Keeps texts against loss; null where nothing is kept.
  SafetyStore* safety = nullptr;

  // Open documents in the order of their opening. A document that closes stays alive until ForgetClosed.
  std::vector<std::shared_ptr<TEditor>> documents;
  TEditor* ActiveDocument = nullptr;  // null when no document is open
  MlnEditor* ActiveEditor = nullptr;  // the active document's
  std::vector<std::shared_ptr<TEditor>> closedDocuments;
  // Called by front ends between events.
  void ForgetClosed() { closedDocuments.clear(); }

 private:
  std::unique_ptr<Morlan> morlan_;
};

}  // namespace morlan
