// Runs macros: texts with {commands} that are read once from left to right and make up to three texts, one in front of the
// selection, one behind it and one in its place. The document is touched at the end alone.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "macros/macrostate.h"
#include "platform/windows.h"

namespace morlan {

class Program;
class TEditor;

class MacroInterpreter {
 public:
  explicit MacroInterpreter(Program& program) : program_(program) {}

  // Runs MAKRO\NAME.mac below ProgramPath. False when there is no such file, or a macro runs already. Nothing is inserted
  // after a fatal error, after Esc, or when another document has come forward meanwhile.
  bool RunMacro(std::string_view name);

  const MacroState& State() const { return state_; }

 private:
  enum class Section { Before = 1, After = 2, Instead = 3, TextVariable = 4, NumericVariable = 5 };
  // The command that is being carried out.
  struct Command {
    std::string_view text;  // from "{" on, without "}"
    std::size_t end;        // position of its "}", from 1; a jump changes it
    std::string result;
  };
  using Action = void (MacroInterpreter::*)(Command&);
  struct CommandRow;
  static const CommandRow kCommands[];

  void Reset(std::string_view name);
  void Scan();
  void RunCommand(Command& command);
  void Append(std::string_view text);
  void AppendText(std::string_view text);
  void Insert(const TEditor* document);
  std::string& TextOf(Section section);
  bool StopIsAsked();
  std::size_t GatheredText() const;

  // A parameter with its variable looked up; a missing variable is fatal.
  std::string GetMacroParam(const Command& command, std::string_view paramName);
  std::string ParamOr(const Command& command, std::string_view paramName, std::string_view whenEmpty);
  std::string LookUp(std::string_view name);
  void ShowMessage(std::string_view text, std::string_view title, Icon icon = Icon::Stop);
  void Fail(std::string_view text, std::string_view title);  // a message, and the run ends
  // Position of the {else} or {endif} that comes next.
  std::size_t NextBranch(std::size_t from) const;

  template <Section kSection>
  void OpenSection(Command& command);
  template <Section kSection>
  void OpenForAll(Command& command);
  void CloseSection(Command& command);
  void OpenVariable(Command& command);
  void Print(Command& command);
  void InsertFact(Command& command);
  std::string InsertedFile(const Command& command);
  void AskText(Command& command);
  void AskOpenFile(Command& command);
  void AskSaveFile(Command& command);
  void AskFile(Command& command, bool isSave);
  void ShowBox(Command& command);
  void StartApplication(Command& command);
  void DisposeAll(Command& command);
  void Dispose(Command& command);
  void If(Command& command);
  void Else(Command& command);
  void EndIf(Command& command);
  void For(Command& command);
  void Next(Command& command);

  Program& program_;
  MacroState state_;
  std::string text_, lowText_;  // of the macro
  std::string before_, after_, instead_;
  Section section_ = Section::Before, defaultSection_ = Section::Before;
  bool running_ = false, stopped_ = false;
};

}  // namespace morlan
