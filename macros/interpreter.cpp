#include "macros/interpreter.h"

#include <algorithm>
#include <limits>

#include "core/defs.h"
#include "core/document.h"
#include "core/status.h"
#include "core/text.h"
#include "macros/macrofacts.h"
#include "tags/insertcommands.h"
#include "text/textformat.h"

namespace morlan {
namespace {

constexpr std::string_view kMacroTitle = "Morlan7 Makro";
constexpr std::string_view kErrorTitle = "Błąd makro!"_pl;
constexpr std::string_view kForTitle = "Błąd makro! {FOR}"_pl;
constexpr std::string_view kInsertTitle = "Błąd makro! {INSERT}"_pl;
constexpr std::string_view kStartTitle = "Błąd makro!! {RunApplication}"_pl;

// Where a branch that is missing counts as standing.
constexpr std::size_t kMissing = 99999;

// What a run may gather; a loop without an end would fill the memory. One command can no more than double it.
constexpr std::size_t kMostText = 256u << 20;

}  // namespace

struct MacroInterpreter::CommandRow {
  std::string_view name;
  Action action;
};

const MacroInterpreter::CommandRow MacroInterpreter::kCommands[] = {
    {"beforeselection", &MacroInterpreter::OpenSection<Section::Before>},
    {"beforesel", &MacroInterpreter::OpenSection<Section::Before>},
    {"/beforeselection", &MacroInterpreter::CloseSection},
    {"/beforesel", &MacroInterpreter::CloseSection},
    {"afterselection", &MacroInterpreter::OpenSection<Section::After>},
    {"aftersel", &MacroInterpreter::OpenSection<Section::After>},
    {"/afterselection", &MacroInterpreter::CloseSection},
    {"/aftersel", &MacroInterpreter::CloseSection},
    {"instedselection", &MacroInterpreter::OpenSection<Section::Instead>},
    {"instedsel", &MacroInterpreter::OpenSection<Section::Instead>},
    {"/instedselection", &MacroInterpreter::CloseSection},
    {"/instedsel", &MacroInterpreter::CloseSection},
    {"allbeforeselection", &MacroInterpreter::OpenForAll<Section::Before>},
    {"allbeforesel", &MacroInterpreter::OpenForAll<Section::Before>},
    {"allafterselection", &MacroInterpreter::OpenForAll<Section::After>},
    {"allaftersel", &MacroInterpreter::OpenForAll<Section::After>},
    {"allinstedselection", &MacroInterpreter::OpenForAll<Section::Instead>},
    {"allinstedsel", &MacroInterpreter::OpenForAll<Section::Instead>},
    {"variable", &MacroInterpreter::OpenVariable},
    {"var", &MacroInterpreter::OpenVariable},
    {"/variable", &MacroInterpreter::CloseSection},
    {"/var", &MacroInterpreter::CloseSection},
    {"print", &MacroInterpreter::Print},
    {"insert", &MacroInterpreter::InsertFact},
    {"inputbox", &MacroInterpreter::AskText},
    {"opendialog", &MacroInterpreter::AskOpenFile},
    {"savedialog", &MacroInterpreter::AskSaveFile},
    {"msgbox", &MacroInterpreter::ShowBox},
    {"startapplication", &MacroInterpreter::StartApplication},
    {"startapp", &MacroInterpreter::StartApplication},
    {"disposeall", &MacroInterpreter::DisposeAll},
    {"dispose", &MacroInterpreter::Dispose},
    {"if", &MacroInterpreter::If},
    {"else", &MacroInterpreter::Else},
    {"endif", &MacroInterpreter::EndIf},
    {"for", &MacroInterpreter::For},
    {"next", &MacroInterpreter::Next},
};

// --- the run

bool MacroInterpreter::RunMacro(std::string_view name) {
  if (running_ || !IsMacroName(name)) return false;
  std::optional<std::string> text = program_.platform.files.Read(MacroPath(program_, name));
  if (!text) return false;
  running_ = true;
  const std::shared_ptr<TEditor> document = DocumentInFront(program_);
  Reset(name);
  ShowBusy(program_, Concat({"Uruchamiam makro...", name}));
  text_ = *std::move(text);
  lowText_ = LowerCase(text_);
  Scan();
  if (!state_.MacroFatal && !stopped_) Insert(document.get());
  ShowReady(program_);
  running_ = false;
  return true;
}

void MacroInterpreter::Reset(std::string_view name) {
  state_.DisposeAll();
  state_.MacroFatal = false;
  state_.MacroName = name;
  before_.clear();
  after_.clear();
  instead_.clear();
  section_ = defaultSection_ = Section::Before;
  stopped_ = false;
}

void MacroInterpreter::Scan() {
  std::size_t read = 1;  // where reading goes on
  for (std::size_t open = Find(text_, "{"); open; open = Find(text_, "{", read)) {
    AppendText(std::string_view(text_).substr(read - 1, open - read));
    std::size_t close = Find(text_, "}", open + 1);
    if (!close) close = text_.size() + 1;
    Command command{std::string_view(text_).substr(open - 1, close - open), close, ""};
    RunCommand(command);
    Append(TrimLineEnds(command.result));
    read = command.end + 1;
    if (GatheredText() > kMostText) state_.MacroFatal = true;
    if (state_.MacroFatal)
      return ShowMessage("Podczas wykomywania makrodefinicji występił błąd krytyczny. Makro przerwane"_pl, "Błąd krytyczny makro!"_pl);
    if (stopped_ || StopIsAsked()) return;
  }
  if (read <= text_.size()) AppendText(std::string_view(text_).substr(read - 1));
}

bool MacroInterpreter::StopIsAsked() {
  stopped_ = program_.platform.windows.YieldToEscape();
  return stopped_;
}

std::size_t MacroInterpreter::GatheredText() const {
  std::size_t size = before_.size() + after_.size() + instead_.size();
  for (const MacroVariable& variable : state_.MacroVariables) size += variable.value.size();
  return size;
}

void MacroInterpreter::RunCommand(Command& command) {
  const std::string name = LowerCase(command.text.substr(1, std::min(command.text.find(' '), command.text.size()) - 1));
  const auto row = std::find_if(std::begin(kCommands), std::end(kCommands), [&](const CommandRow& each) { return each.name == name; });
  if (row == std::end(kCommands)) return Fail(Concat({"Nieznane polecenie {", UpperCase(name), "}"}), kMacroTitle);
  (this->*row->action)(command);
}

std::string& MacroInterpreter::TextOf(Section section) {
  switch (section) {
    case Section::After:
      return after_;
    case Section::Instead:
      return instead_;
    case Section::TextVariable:
    case Section::NumericVariable:
      return state_.MacroVariables[state_.MacroCurrentVariable].value;
    case Section::Before:
      break;
  }
  return before_;
}

void MacroInterpreter::Append(std::string_view text) {
  if (section_ == Section::NumericVariable)
    TextOf(section_) = NumberText(LeadingNumber(text));
  else
    TextOf(section_) += text;
}

// A stretch of the macro's own text; line ends between commands are not meant to be written.
void MacroInterpreter::AppendText(std::string_view text) {
  if (!HoldsLineEndsOnly(text)) Append(TrimLineEnds(text));
}

void MacroInterpreter::Insert(const TEditor* document) {
  if (!document || program_.ActiveDocument != document) return;
  if (!before_.empty() || !after_.empty()) InsertPair(program_, before_, after_);
  if (!instead_.empty()) ReplaceSelection(program_, instead_);
}

// --- parameters and messages

std::string MacroInterpreter::LookUp(std::string_view name) {
  if (auto value = state_.ValueOf(name)) return *std::move(value);
  Fail(Concat({"Zmienna [", UpperCase(name), "] nie istnieje!"}), "Błąd makro !"_pl);
  return "";
}

std::string MacroInterpreter::GetMacroParam(const Command& command, std::string_view paramName) {
  constexpr std::string_view kReference = "%%";
  std::string value = RawMacroParam(command.text, paramName);
  const std::string_view trimmed = Trim(value);
  if (!trimmed.starts_with(kReference)) return value;
  return LookUp(LowerCase(trimmed.substr(kReference.size())));
}

std::string MacroInterpreter::ParamOr(const Command& command, std::string_view paramName, std::string_view whenEmpty) {
  std::string value = GetMacroParam(command, paramName);
  return value.empty() ? std::string(whenEmpty) : value;
}

void MacroInterpreter::ShowMessage(std::string_view text, std::string_view title, Icon icon) {
  program_.platform.windows.Message({.text = std::string(text), .title = std::string(title), .icon = icon});
}

void MacroInterpreter::Fail(std::string_view text, std::string_view title) {
  ShowMessage(text, title);
  state_.MacroFatal = true;
}

// --- sections and variables

template <MacroInterpreter::Section kSection>
void MacroInterpreter::OpenSection(Command&) {
  section_ = kSection;
}

template <MacroInterpreter::Section kSection>
void MacroInterpreter::OpenForAll(Command&) {
  section_ = defaultSection_ = kSection;
}

void MacroInterpreter::CloseSection(Command&) { section_ = defaultSection_; }

void MacroInterpreter::OpenVariable(Command& command) {
  const std::string name = LowerCase(GetMacroParam(command, "name"));
  if (state_.MacroFatal) return;
  if (name.empty()) return Fail("Instrukcja {Variable} wymaga podania nazwy zmiennej!", "Błąd makro!! {Variable}"_pl);
  MacroVariable* variable = state_.VariableToFill(name);
  if (!variable) return Fail(Concat({"Brak pamięci dla zmiennych! ["_pl, name, "]"}), kErrorTitle);
  variable->name = name;
  const std::string type = LowerCase(GetMacroParam(command, "type"));
  variable->numeric = type == "numeric" || type == "num";
  state_.MacroCurrentVariable = static_cast<std::size_t>(variable - state_.MacroVariables.data());
  section_ = variable->numeric ? Section::NumericVariable : Section::TextVariable;
}

void MacroInterpreter::DisposeAll(Command&) { state_.DisposeAll(); }

// The whole command less two characters serves as the name, so that a variable is hardly ever found.
void MacroInterpreter::Dispose(Command& command) {
  const std::string name = LowerCase(command.text.substr(std::min<std::size_t>(2, command.text.size())));
  if (MacroVariable* variable = state_.FindVariable(name))
    *variable = {};
  else
    LookUp(name);
}

// --- texts

void MacroInterpreter::Print(Command& command) {
  const std::string text = GetMacroParam(command, "text");
  command.result = FormatText(text, GetMacroParam(command, "format"));
}

void MacroInterpreter::InsertFact(Command& command) {
  const std::string type = LowerCase(GetMacroParam(command, "type"));
  if (type.empty()) return ShowMessage("Wymagany parametr TYPE", kInsertTitle);
  if (type == "docname")
    command.result = program_.ActiveDocument ? program_.ActiveDocument->Caption() : std::string();
  else if (type == "macroname")
    command.result = state_.MacroName;
  else if (type == "currentdate")
    command.result = MomentText(program_, ParamOr(command, "format", "dd/mm/yyyy"));
  else if (type == "currenttime")
    command.result = MomentText(program_, ParamOr(command, "format", "hh:mm:ss"));
  else if (type == "file")
    command.result = InsertedFile(command);
  else
    ShowMessage(Concat({"Nieznany typ ", UpperCase(type)}), kMacroTitle);
}

std::string MacroInterpreter::InsertedFile(const Command& command) {
  constexpr std::string_view kTitle = "Błąd Makro! {INSERT}"_pl;
  std::string charset = GetMacroParam(command, "charset");
  if (charset.empty()) {
    ShowMessage("Nie zdefiniowany parametr CHARSET", "Ostrzeżenie Makro! {INSERT}"_pl, Icon::Warning);
    charset = kMacroCharset;
  }
  const std::string fileName = GetMacroParam(command, "filename");
  if (fileName.empty()) return ShowMessage("Nie zdefiniowany parametr FILENAME", kTitle), "";
  const std::string fileType = LowerCase(GetMacroParam(command, "filetype"));
  if (fileType.empty()) return ShowMessage("Nie zdefiniowany parametr FILETYPE", kTitle), "";
  if (fileType != "text" && fileType != "html") return "";
  const auto text = FileAsMacroText(program_, fileName, charset);
  // A file that cannot be read ends the run without a word.
  stopped_ = stopped_ || !text;
  return text.value_or("");
}

// --- questions

void MacroInterpreter::AskText(Command& command) {
  const std::string prompt = GetMacroParam(command, "prompt"), title = ParamOr(command, "title", kMacroTitle);
  const std::string value = GetMacroParam(command, "value");
  if (!state_.MacroFatal) command.result = program_.platform.windows.Input(prompt, title, value).value_or("");
}

void MacroInterpreter::AskOpenFile(Command& command) { AskFile(command, false); }
void MacroInterpreter::AskSaveFile(Command& command) { AskFile(command, true); }

void MacroInterpreter::AskFile(Command& command, bool isSave) {
  FileRequest request;
  request.mode = isSave ? FileRequest::Mode::Save : FileRequest::Mode::Open;
  request.title = ParamOr(command, "title", isSave ? "Zapisz" : "Otwórz"_pl);
  request.filter = ParamOr(command, "filter", "Wszystkie pliki (*.*)|*.*|");
  request.directory = GetMacroParam(command, "initdir");
  request.fileName = GetMacroParam(command, "filename");
  if (!state_.MacroFatal) command.result = program_.platform.windows.AskFile(request).value_or("");
}

void MacroInterpreter::ShowBox(Command& command) {
  MessageRequest request = MessageOfStyle(LeadingInteger(GetMacroParam(command, "style")));
  request.text = GetMacroParam(command, "prompt");
  request.title = ParamOr(command, "title", kMacroTitle);
  if (!state_.MacroFatal) command.result = AnswerWord(program_.platform.windows.Message(request));
}

void MacroInterpreter::StartApplication(Command& command) {
  constexpr std::int32_t kLargestStyle = 9;
  const std::string name = GetMacroParam(command, "Name");
  if (state_.MacroFatal) return;
  if (name.empty()) return Fail("Instrukcja {RunApplication} wymaga podania nazwy programu!", kStartTitle);
  const std::int32_t style = LeadingInteger(ParamOr(command, "Style", "1"));
  if (style < 0 || style > kLargestStyle) return ShowMessage("Błędna wartość parametru STYLE !"_pl, kStartTitle);
  const std::string parameter = GetMacroParam(command, "Parameter"), keys = GetMacroParam(command, "SendKeys");
  if (state_.MacroFatal) return;
  if (!program_.platform.processes.Start(Concat({name, " ", parameter}), style)) return Fail("Błąd wywołania programu !"_pl, kStartTitle);
  if (!keys.empty()) program_.platform.windows.SendKeys(keys);
}

// --- conditions and loops

std::size_t MacroInterpreter::NextBranch(std::size_t from) const {
  const std::size_t end = Find(lowText_, "{endif}", from);
  // Behind the end there is no need to look, which spares a long macro.
  const std::size_t other = Find(std::string_view(lowText_).substr(0, end ? end : lowText_.size()), "{else}", from);
  return std::min(end ? end : kMissing, other ? other : kMissing);
}

void MacroInterpreter::If(Command& command) {
  const std::string first = GetMacroParam(command, "text1"), second = GetMacroParam(command, "text2");
  const std::string method = LowerCase(ParamOr(command, "method", "equ"));
  if (state_.MacroConditionCount == MacroState::kConditions)
    return Fail(Concat({"Brak pamięci dla warunków! ["_pl, NumberText(std::int64_t{MacroState::kConditions + 1}), "]"}), kErrorTitle);
  const bool holds = ComparisonHolds(first, second, method);
  state_.MacroConditions[state_.MacroConditionCount++] = holds;
  if (!holds) command.end = NextBranch(command.end) - 1;
}

void MacroInterpreter::Else(Command& command) {
  const bool held = state_.MacroConditionCount > 0 && state_.MacroConditions[state_.MacroConditionCount - 1];
  if (!held) return;
  const std::size_t end = Find(lowText_, "{endif}", command.end);
  command.end = end ? end - 1 : text_.size() + 1;
}

void MacroInterpreter::EndIf(Command&) {
  if (state_.MacroConditionCount > 0) --state_.MacroConditionCount;
}

void MacroInterpreter::For(Command& command) {
  const std::string name = LowerCase(GetMacroParam(command, "name"));
  const std::string from = GetMacroParam(command, "from"), to = GetMacroParam(command, "to");
  if (state_.MacroFatal) return;
  if (name.empty()) return Fail("Pętla nie ma zdefiniowanej nazwy!"_pl, kForTitle);
  if (from.empty() || to.empty()) return Fail("Błędnie zdefinowany zakres pętli!"_pl, kForTitle);
  if (state_.MacroLoopCount == MacroState::kLoops) return Fail("Brak pamięci dla pętli!"_pl, kErrorTitle);
  if (state_.HasLoop(name)) return Fail("Zdublowana nazwa pętli!"_pl, kErrorTitle);
  MacroLoop& loop = state_.MacroLoops[state_.MacroLoopCount++];
  loop = {name, command.end + 1, LeadingInteger(to), LeadingInteger(from)};
  if (loop.counter <= loop.last) return;
  const std::size_t next = Find(lowText_, Concat({"{next name=\"", name, "\""}), command.end);
  command.end = next ? next - 1 : text_.size() + 1;
}

void MacroInterpreter::Next(Command& command) {
  if (state_.MacroLoopCount == 0) return;
  MacroLoop& loop = state_.MacroLoops[state_.MacroLoopCount - 1];
  if (++loop.counter <= loop.last)
    command.end = loop.jumpPosition;
  else
    state_.MacroLoops[--state_.MacroLoopCount] = {};
}

}  // namespace morlan
