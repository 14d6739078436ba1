#include "core/applysettings.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/filepanel.h"
#include "core/panels.h"
#include "core/settings.h"

namespace morlan {
namespace {

// What was painted would stay in its colours, since nothing paints any more.
void TakeColoursAway(Program& program) {
  for (const auto& document : program.documents) document->EditedText.SetStyle(0, document->EditedText.Length(), MlnEditor::kPlain);
}

void ApplyColours(Program& program) {
  const bool before = program.tagState.UseColorize;
  if (program.passes.loadColours) program.passes.loadColours();
  if (before && !program.tagState.UseColorize) TakeColoursAway(program);
  if (program.passes.recolourAll) program.passes.recolourAll();
}

}  // namespace

void ReadAutoSave(Program& program) {
  Settings settings(program.MainIni);
  program.AutoSaveInterval = settings.Flag(Setting::AutoSaveActivated) ? settings.Integer(Setting::AutoSaveTime) : 0;
}

HintChoice StoredHints(INIFile& store) {
  Settings settings(store);
  if (!settings.IsStored(Setting::HintShow)) return {true, true};
  return {settings.Flag(Setting::HintShow), settings.IsStored(Setting::HintShowList) && settings.Flag(Setting::HintShowList)};
}

void ReadHints(Program& program) {
  const HintChoice hints = StoredHints(program.MainIni);
  program.HintShow = hints.show;
  program.HintShowList = hints.asList;
}

void ApplySettings(Program& program) {
  ReadHints(program);
  ReadAutoSave(program);
  for (const auto& document : program.documents) {
    document->TakeSettings();
    document->HideHints();
  }
  ApplyColours(program);
  ShowStoredPanels(program);
  ListFilePanelIfWanted(program);
}

}  // namespace morlan
