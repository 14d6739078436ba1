// One scripted session: it reads commands, carries them out and, while the program waits for a question or a modal
// form, goes on reading inside the command that asked.
#pragma once

#include <functional>
#include <istream>
#include <ostream>

#include "platform/script/formtimers.h"
#include "platform/script/frontforms.h"
#include "platform/script/scriptclock.h"
#include "platform/script/scriptreader.h"
#include "platform/script/scriptservices.h"
#include "platform/script/transcript.h"

namespace morlan {

class Menu;
class Program;

class Session {
 public:
  Session(std::istream& script, std::ostream& transcript, Clock& clock, std::optional<DateTime> stoppedAt, Processes* processes);

  // The program on which the commands act, once, before its start-up.
  void Attach(Program& program);
  // Reads the script to its end. True when all of it was carried out.
  bool Run();

  Program& program() const { return *program_; }

  Transcript transcript;
  ScriptClock clock;
  FormTimers timers;
  FrontForms forms;
  ScriptClipboard clipboard;
  ScriptProcesses processes;
  ScriptPrinter printer;

  // Takes the words behind "answer"; no fault means that the question is answered.
  using AnswerTaker = std::function<Fault(const Words& words)>;
  // Goes on with the script until the question is answered. False when the session ended before that.
  bool WaitForAnswer(AnswerTaker taker);
  bool IsQuestionOpen() const { return question_ != nullptr; }
  Fault TakeAnswer(const Words& words);
  // Goes on with the script until the form, which is open and modal, is hidden.
  void WaitWhileModal(Form& form);

  // The pop-up menu that is open; the next command that acts closes it.
  Menu* popUp = nullptr;

  // The program has ended: the session reads no further.
  void End() { over_ = true; }

  // Called when the script fails inside a question, where the program would have to go on with an answer that nobody
  // gave; it may end the process. When it returns or is empty, the program is told "cancel" and hears nothing more.
  std::function<void()> onAbandoned;

 private:
  void Step();
  Fault CarryOut(const ScriptLine& line);
  void Fail(std::size_t line, std::string_view fault);

  struct Question {
    AnswerTaker taker;
    bool answered = false;
  };
  ScriptReader reader_;
  Program* program_ = nullptr;
  Question* question_ = nullptr;
  int waiting_ = 0;  // questions and modal forms inside of which the script goes on
  bool over_ = false, failed_ = false;
};

}  // namespace morlan
