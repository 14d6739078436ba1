// The commands on documents and their text.
#include <algorithm>

#include "core/defs.h"
#include "core/document.h"
#include "core/documents.h"
#include "core/keyboard.h"
#include "core/menus.h"
#include "core/morlan.h"
#include "core/paths.h"
#include "platform/encoding.h"
#include "platform/script/json.h"
#include "platform/script/scriptcommands.h"
#include "platform/script/scriptwords.h"
#include "platform/script/session.h"
#include "platform/script/typedkeys.h"

namespace morlan::scripted {
namespace {

constexpr const char* kNoDocument = "no document is open";

TEditor* ActiveDocument(Session& session) { return session.program().ActiveDocument; }

Fault NoNumber(const std::string& word) { return word + " is no number"; }

// The document of a caption; else the first one with that bare file name.
TEditor* DocumentOf(Program& program, std::string_view word) {
  const std::string caption = FromUtf8(word);
  if (TEditor* document = FindDocument(program, caption)) return document;
  if (TEditor* document = FindDocument(program, ReadPath(program.platform.files, word))) return document;
  for (const auto& document : program.documents)
    if (FileNameOf(document->Caption()) == caption) return document.get();
  return nullptr;
}

// One character of a text that is typed; a line end of any kind is one Enter.
std::size_t TypeCharacter(TEditor& document, std::string_view utf8, std::size_t offset) {
  const DecodedCodePoint decoded = DecodeUtf8At(utf8, offset);
  const std::string_view bytes = utf8.substr(offset, decoded.length);
  const int byte = decoded.valid ? ByteOf(decoded.value) : '?';
  if (bytes == "\r" || bytes == "\n")
    PressKey(document, KeyOfCharacter('\r'));
  else if (byte >= 0)
    PressKey(document, KeyOfCharacter(static_cast<char>(byte)));
  else
    InsertTyped(document, FromUtf8(bytes, Unmappable::NumericReference));
  return decoded.length + (utf8.substr(offset, 2) == "\r\n" ? 1 : 0);
}

struct ColourRun {
  Colour colour;
  bool bold;
  bool operator==(const ColourRun&) const = default;
};

ColourRun RunAt(const MlnEditor& editor, std::size_t offset) {
  const MlnEditor::Style style = editor.StyleAt(offset);
  return {editor.ColourOfStyle(style & static_cast<MlnEditor::Style>(~MlnEditor::kBold)), (style & MlnEditor::kBold) != 0};
}

void PrintDocument(Session& session, const TEditor& document) {
  const bool active = &document == ActiveDocument(session);
  session.transcript.Line({"document", JsonString(document.Caption()), JsonString(document.FileType.Caption()),
                           document.IsModified() ? "modified" : "saved", active ? "active" : ""});
}

}  // namespace

Fault Open(Session& session, const Words& words) {
  OpenDocument(session.program(), ReadPath(session.program().platform.files, words[1]));
  return std::nullopt;
}

Fault Activate(Session& session, const Words& words) {
  TEditor* document = DocumentOf(session.program(), words[1]);
  if (!document) return "no such document: " + words[1];
  ActivateDocument(session.program(), *document);
  return std::nullopt;
}

Fault SetText(Session& session, const Words& words) {
  TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  Program& program = session.program();
  program.DocumentLoading = true;
  document->EditedText.SetText(FromUtf8(words[1], Unmappable::NumericReference));
  if (document->EditedText.UseColorise && program.passes.colourDocument) program.passes.colourDocument(document->EditedText);
  document->EditedText.Select(0, 0);
  document->EditedText.Modified = false;
  document->NeedToBeSaved.SetCaption("False");
  document->UNDO.Clear();
  UpdateWindowsManager(program);
  program.DocumentLoading = false;
  document->Form_Activate();
  return std::nullopt;
}

Fault Select(Session& session, const Words& words) {
  TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  const auto start = ReadCount(words[1]);
  if (!start) return NoNumber(words[1]);
  const auto length = words.size() > 2 ? ReadCount(words[2]) : std::size_t{0};
  if (!length) return NoNumber(words[2]);
  document->EditedText.Select(*start, *length);
  return std::nullopt;
}

Fault Caret(Session& session, const Words& words) { return Select(session, words); }

Fault Type(Session& session, const Words& words) {
  const std::string& text = words[1];
  // A key may bring another document forward: the rest of the text goes there.
  for (std::size_t i = 0; i < text.size();) {
    TEditor* document = ActiveDocument(session);
    if (!document) return kNoDocument;
    i += TypeCharacter(*document, text, i);
  }
  return ActiveDocument(session) ? Fault() : kNoDocument;
}

Fault Key(Session& session, const Words& words) {
  TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  const std::string name = FromUtf8(words[1]);
  KeyPress press = KeyFromText(name);
  if (!press.code && name.size() == 1) press = KeyOfCharacter(name[0]);
  if (!press.code) return "no such key: " + words[1];
  PressKey(*document, press);
  return std::nullopt;
}

Fault Mouse(Session& session, const Words& words) {
  TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  const bool left = words[1] == "left";
  if (!left && words[1] != "right") return "no such mouse button: " + words[1];
  if (words.size() > 2) {
    const auto start = ReadCount(words[2]);
    if (!start) return NoNumber(words[2]);
    document->EditedText.Select(*start, 0);
  }
  document->EditedText_OnMouseDown(left ? MouseButton::Left : MouseButton::Right);
  return std::nullopt;
}

Fault Text(Session& session, const Words&) {
  const TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  session.transcript.Line({"text", JsonString(document->EditedText.Text())});
  return std::nullopt;
}

Fault Selection(Session& session, const Words&) {
  const TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  const MlnEditor& editor = document->EditedText;
  session.transcript.Line(
      {"selection", std::to_string(editor.SelStart()), std::to_string(editor.SelLength()), JsonString(editor.SelText())});
  return std::nullopt;
}

Fault Colours(Session& session, const Words&) {
  const TEditor* document = ActiveDocument(session);
  if (!document) return kNoDocument;
  const MlnEditor& editor = document->EditedText;
  for (std::size_t start = 0, end = 0; start < editor.Length(); start = end) {
    const ColourRun run = RunAt(editor, start);
    for (end = start + 1; end < editor.Length() && RunAt(editor, end) == run;) ++end;
    session.transcript.Line({"run", std::to_string(start), std::to_string(end - start), ColourWord(run.colour), run.bold ? "bold" : ""});
  }
  session.transcript.Line({"end"});
  return std::nullopt;
}

Fault Documents(Session& session, const Words&) {
  const Program& program = session.program();
  const Tabs& tabs = session.program().frame().WindowsManager;
  const auto hasTab = [&](const TEditor& document) { return tabs.IndexOfKey(document.Caption()) >= 0; };
  for (const Tabs::Tab& tab : tabs.All())
    if (const TEditor* document = FindDocument(session.program(), tab.key)) PrintDocument(session, *document);
  for (const auto& document : program.documents)
    if (!hasTab(*document)) PrintDocument(session, *document);
  session.transcript.Line({"end"});
  return std::nullopt;
}

Fault Undo(Session& session, const Words&) { return session.program().commands.RunMenu("xmn_undo") ? Fault() : "nothing undoes changes"; }

}  // namespace morlan::scripted
