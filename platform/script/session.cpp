#include "platform/script/session.h"

#include <utility>

#include "core/defs.h"
#include "core/morlan.h"
#include "platform/script/commandtable.h"
#include "platform/script/json.h"

namespace morlan {

Session::Session(std::istream& script, std::ostream& out, Clock& realClock, std::optional<DateTime> stoppedAt, Processes* realProcesses)
    : transcript(out),
      clock(realClock, stoppedAt),
      timers(clock),
      forms(transcript),
      processes(transcript, realProcesses),
      printer(transcript),
      reader_(script) {}

void Session::Attach(Program& program) {
  program_ = &program;
  forms.SetFrame(program.frame());
  timers.Adopt(program.frame());
}

bool Session::Run() {
  while (!over_) Step();
  return !failed_;
}

void Session::Step() {
  timers.TickDue();
  if (over_) return;
  const auto line = reader_.Next();
  if (!line) {
    if (waiting_)
      return Fail(reader_.LinesRead(),
                  question_ ? "the script ends while a question is open" : "the script ends while a modal form is open");
    return End();
  }
  const Fault fault = line->fault ? line->fault : CarryOut(*line);
  if (fault && !over_) Fail(line->number, *fault);
  if (!waiting_) program_->ForgetClosed();
}

Fault Session::CarryOut(const ScriptLine& line) {
  const CommandRow* row = FindCommand(line.words.front());
  if (!row) return "no such command: " + line.words.front();
  const std::size_t arguments = line.words.size() - 1;
  if (arguments < row->fewestArguments) return "a word is missing";
  if (arguments > row->mostArguments) return "there is a word too many";
  if (row->when != When::Always) {
    if (question_) return "a question is open";
    if (row->when == When::MainWindow && forms.IsModalOpen()) return "the form " + forms.Front().Name() + " is open";
    if (row->popUp == PopUp::Closes) popUp = nullptr;
  }
  return row->function(*this, line.words);
}

void Session::Fail(std::size_t line, std::string_view fault) {
  transcript.Line({"error", std::to_string(line), JsonStringOfUtf8(fault)});
  transcript.Close();
  timers.Stop();
  failed_ = over_ = true;
  if (waiting_ && onAbandoned) onAbandoned();
}

bool Session::WaitForAnswer(AnswerTaker taker) {
  Question question{std::move(taker)};
  Question* outer = std::exchange(question_, &question);
  ++waiting_;
  while (!question.answered && !over_) Step();
  --waiting_;
  question_ = outer;
  return question.answered;
}

Fault Session::TakeAnswer(const Words& words) {
  if (!question_) return "no question is open";
  Fault fault = question_->taker(words);
  question_->answered = !fault;
  return fault;
}

void Session::WaitWhileModal(Form& form) {
  Question* outer = std::exchange(question_, nullptr);
  ++waiting_;
  while (forms.IsModal(form) && !over_) Step();
  --waiting_;
  question_ = outer;
  if (forms.IsModal(form)) form.Hide();
}

}  // namespace morlan
