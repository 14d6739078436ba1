#include "text/charsetcommands.h"

#include "core/defs.h"
#include "core/document.h"
#include "core/text.h"
#include "tags/metatags.h"
#include "tags/tagscan.h"
#include "text/conventer.h"
#include "text/createcharset.h"
#include "text/documentcharset.h"
#include "text/selectcharset.h"

namespace morlan {
namespace {

constexpr std::string_view kContentType = "Content-Type";
constexpr std::string_view kOtherEntry = "xmn_plcharinne";
constexpr std::string_view kSymbolsEntry = "xmn_symbols";

void ChooseCharSet(Program& program) {
  if (!program.ActiveDocument) return;
  SelectCharSetByDialog(program);
  // The click has ticked the entry where it was shown; when nothing was chosen the tick goes back to the page's set.
  program.ActiveDocument->menu.SetChecked(kOtherEntry, true);
  if (program.DialogResult.empty()) return MarkCharSet(program, *program.ActiveDocument);
  SetDocumentCharSet(program, program.DialogResult);
}

void SwitchSymbols(Program& program) {
  TEditor* const document = program.ActiveDocument;
  if (!document) return;
  document->menu.SetChecked(kSymbolsEntry, !document->menu.IsChecked(kSymbolsEntry));
  // The same text is another file now.
  document->EditedText.Modified = true;
  document->editedtext_onChange();
}

struct SetRow {
  std::string_view menu, name;
};
constexpr SetRow kSets[] = {
    {"xmn_win1250", "windows-1250"},
    {"xmn_iso88592", "iso-8859-2"},
    {"xmn_ascii", "ascii"},
    {"mn_unicode", "utf-8"},
};

struct CommandRow {
  std::string_view menu, form;
  void (*run)(Program& program);
};
constexpr CommandRow kCommands[] = {
    {kOtherEntry, "", ChooseCharSet},         {kSymbolsEntry, "", SwitchSymbols},           {"mn_conventer", "Conventer", ShowConventer},
    {"", "CreateCharSet", ShowCreateCharSet}, {"", "SelectCharSet", SelectCharSetByDialog},
};

std::string FromCharSet(Program& program, std::string text, std::string_view charset) {
  return ConvertCharSet(LoadCharSets(program), std::move(text), charset, kBaseCharSet, StatusLine(program));
}

}  // namespace

void SetDocumentCharSet(Program& program, std::string_view name) {
  TEditor* const document = program.ActiveDocument;
  if (!document) return;
  const std::string content = GetMetaContent(program, kContentType);
  if (!EqualNoCase(GetTagParam(content, "charset"), name))
    SetMeta(program, "HTTP-EQUIV", kContentType, Concat({"text/html;CHARSET=", name}));
  document->CharSet.SetCaption(name);
  MarkCharSet(program, *document);
}

void RegisterCharSets(Program& program) {
  program.passes.decode = [&program](std::string text, std::string_view) { return DecodeCharSet(program, std::move(text)); };
  program.passes.encode = [&program](std::string text) { return EncodeCharSet(program, std::move(text)); };
  program.passes.fromCharset = [&program](std::string text, std::string_view charset) {
    return FromCharSet(program, std::move(text), charset);
  };
  program.passes.markCharset = [&program](TEditor& document) { MarkCharSet(program, document); };
  program.passes.charsetNames = [&program] { return LoadCharSets(program).CharSetNames(); };
  for (const SetRow& row : kSets) program.commands.OnMenu(row.menu, [&program, &row] { SetDocumentCharSet(program, row.name); });
  for (const CommandRow& row : kCommands) {
    const auto run = [&program, &row] { row.run(program); };
    if (!row.menu.empty()) program.commands.OnMenu(row.menu, run);
    if (!row.form.empty()) program.forms.OnShow(row.form, run);
  }
}

}  // namespace morlan
