// The commands on time, the status line and the clipboard, and the answers to questions.
#include "core/defs.h"
#include "core/morlan.h"
#include "platform/script/json.h"
#include "platform/script/scriptcommands.h"
#include "platform/script/scriptwords.h"
#include "platform/script/session.h"

namespace morlan::scripted {
namespace {

// A day. What waits longer is a slip of the pen.
constexpr std::size_t kLongestWait = 24 * 60 * 60 * 1000;

}  // namespace

Fault AnswerQuestion(Session& session, const Words& words) { return session.TakeAnswer(words); }

Fault Wait(Session& session, const Words& words) {
  const auto milliseconds = ReadCount(words[1]);
  if (!milliseconds || *milliseconds > kLongestWait) return words[1] + " is no number of milliseconds up to a day";
  session.timers.Pass(*milliseconds);
  return std::nullopt;
}

Fault Status(Session& session, const Words&) {
  for (const StatusBar::StatusPanel& panel : session.program().frame().statusBar.Panels())
    session.transcript.Line({"panel", panel.key, JsonString(panel.text)});
  session.transcript.Line({"end"});
  return std::nullopt;
}

Fault ShowClipboard(Session& session, const Words&) {
  session.transcript.Line({"clipboard", JsonStringOfUtf8(session.clipboard.Utf8().value_or(""))});
  return std::nullopt;
}

Fault SetClipboard(Session& session, const Words& words) {
  session.clipboard.SetUtf8(words[1]);
  return std::nullopt;
}

Fault Echo(Session& session, const Words& words) {
  session.transcript.Line({"echo", JsonStringOfUtf8(words[1])});
  return std::nullopt;
}

}  // namespace morlan::scripted
