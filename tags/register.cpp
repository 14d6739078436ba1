#include "tags/register.h"

#include "core/defs.h"
#include "tags/channeleditors.h"
#include "tags/colouring.h"
#include "tags/contextmenu.h"
#include "tags/editedcolouring.h"
#include "tags/frameeditors.h"
#include "tags/insertcommands.h"
#include "tags/metatags.h"
#include "tags/pageeditors.h"
#include "tags/properties.h"
#include "tags/quickmenu.h"
#include "tags/selectioncommands.h"
#include "tags/servertags.h"
#include "tags/symbols.h"
#include "tags/tageditors.h"
#include "tags/taglist.h"

namespace morlan {
namespace {

void RegisterPasses(Program& program) {
  TextPasses& passes = program.passes;
  passes.loadColours = [&program] { LoadColours(program); };
  passes.recolourAll = [&program] { RecolourAll(program); };
  passes.colourDocument = [&program](MlnEditor& editor) { ColorizeDocument(program, editor); };
  passes.colourBlock = [&program](MlnEditor& editor, std::ptrdiff_t from, std::ptrdiff_t to) { ColorizeBlock(program, editor, from, to); };
  passes.colourEdited = [&program](MlnEditor& editor, std::size_t from, std::size_t to) { ColourEdited(program, editor, from, to); };
  passes.setMetaInText = [](std::string text, std::string_view attribute, std::string_view name, std::string_view content) {
    return SetMetaInText(std::move(text), attribute, name, content);
  };
  passes.setMeta = [&program](std::string_view attribute, std::string_view name, std::string_view content) {
    SetMeta(program, attribute, name, content);
  };
}

void RegisterInsertionHooks(Program& program) {
  program.hooks.insertPair = [&program](std::string_view open, std::string_view close) { InsertPair(program, open, close); };
  program.hooks.repeatLastInsertion = [&program] { RepeatLastInsertion(program); };
}

}  // namespace

void RegisterTags(Program& program) {
  RegisterPasses(program);
  RegisterInsertionHooks(program);
  RegisterInsertCommands(program);
  RegisterSelectionCommands(program);
  RegisterTagList(program);
  RegisterSymbols(program);
  RegisterQuickMenu(program);
  RegisterContextMenu(program);
  RegisterTagEditors(program);
  RegisterFrameEditors(program);
  RegisterPageEditors(program);
  RegisterChannelEditors(program);
  RegisterServerTags(program);
  RegisterPropertySheets(program);
}

}  // namespace morlan
