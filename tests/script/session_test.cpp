#include "platform/script/session.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/scriptedsession.h"
#include "tests/support/trialform.h"

namespace morlan {
namespace {

struct SessionTest : testing::Test {
  ScriptedSession session;

  // What a command that asks gets as its answer.
  template <class Ask>
  Lines RunAsking(Ask ask, const std::string& script) {
    session.prepare = [ask](Program& program) { program.commands.OnMenu("mn_ask", [&program, ask] { ask(program.platform.windows); }); };
    return session.Run("menu mn_ask\n" + script);
  }
};

TEST_F(SessionTest, EchoesStrings) {
  EXPECT_EQ(session.Run("echo \"ala \\u0105\\r\\n\"\necho →\n"), (Lines{"echo \"ala ą\\r\\n\"", "echo \"→\""}));
  EXPECT_TRUE(session.CarriedOut());
}

TEST_F(SessionTest, ACommandThatCannotBeCarriedOutEndsTheScript) {
  struct Row {
    std::string_view script, error;
  };
  constexpr Row kRows[] = {
      {"# uwaga\n\nfoo", "error 3 \"no such command: foo\""},
      {"echo", "error 1 \"a word is missing\""},
      {"echo a b", "error 1 \"there is a word too many\""},
      {"echo \"a", "error 1 \"a string is not well formed\""},
      {"caret x", "error 1 \"x is no number\""},
      {"select 1 -2", "error 1 \"-2 is no number\""},
      {"key Foo", "error 1 \"no such key: Foo\""},
      {"mouse middle", "error 1 \"no such mouse button: middle\""},
      {"activate brak.html", "error 1 \"no such document: brak.html\""},
      {"toolbar Toolbar99 x", "error 1 \"no such toolbar: Toolbar99\""},
      {"toolbar Toolbar1 x", "error 1 \"Toolbar1 has no button x that can be pressed\""},
      {"menu xmn_brak", "error 1 \"no such menu entry: xmn_brak\""},
      {"macro brak", "error 1 \"no such macro: brak\""},
      {"show Brak", "error 1 \"no such form: Brak\""},
      {"front Brak", "error 1 \"no such open form: Brak\""},
      {"answer ok", "error 1 \"no question is open\""},
      {"wait -1", "error 1 \"-1 is no number of milliseconds up to a day\""},
      {"wait 86400001", "error 1 \"86400001 is no number of milliseconds up to a day\""},
      {"close\nclose", "error 2 \"no form and no document is open\""},
      {"close\ntext", "error 2 \"no document is open\""},
      {"close\ntype a", "error 2 \"no document is open\""},
      {"close\nmenu xmn_save", "error 2 \"no document is open\""},
  };
  for (const Row& row : kRows) {
    EXPECT_EQ(session.Run(std::string(row.script) + "\necho dalej\n"), Lines{std::string(row.error)}) << row.script;
    EXPECT_FALSE(session.CarriedOut());
  }
}

TEST_F(SessionTest, AMessageWithOnlyOkGoesOnByItself) {
  const auto ask = [](Windows& windows) {
    windows.Message({.text = "Nie ma \"pliku\"", .title = std::string("Błąd"_pl), .icon = Icon::Stop});
  };
  EXPECT_EQ(RunAsking(ask, "echo a"), (Lines{"message \"Nie ma \\\"pliku\\\"\" \"Błąd\" stop ok", "echo \"a\""}));
}

TEST_F(SessionTest, EachSetOfButtonsTakesItsOwnAnswers) {
  struct Row {
    Buttons buttons;
    std::string_view word;
    std::vector<std::pair<std::string, Answer>> answers;
  };
  const Row rows[] = {
      {Buttons::YesNo, "yesno", {{"yes", Answer::Yes}, {"no", Answer::No}}},
      {Buttons::YesNoCancel, "yesnocancel", {{"yes", Answer::Yes}, {"no", Answer::No}, {"cancel", Answer::Cancel}}},
      {Buttons::OkCancel, "okcancel", {{"ok", Answer::Ok}, {"cancel", Answer::Cancel}}},
      {Buttons::RetryCancel, "retrycancel", {{"retry", Answer::Retry}, {"cancel", Answer::Cancel}}},
      {Buttons::AbortRetryIgnore, "abortretryignore", {{"abort", Answer::Abort}, {"retry", Answer::Retry}, {"ignore", Answer::Ignore}}},
  };
  for (const Row& row : rows)
    for (const auto& [word, answer] : row.answers) {
      std::optional<Answer> given;
      const auto ask = [&](Windows& windows) { given = windows.Message({.text = "?", .icon = Icon::Warning, .buttons = row.buttons}); };
      EXPECT_EQ(RunAsking(ask, "answer " + word), Lines{"message \"?\" \"Morlan7\" warning " + std::string(row.word)});
      EXPECT_EQ(given, answer) << word;
    }
  const auto ask = [](Windows& windows) { windows.Message({.text = "?", .icon = Icon::Information, .buttons = Buttons::YesNo}); };
  EXPECT_EQ(RunAsking(ask, "answer cancel").back(), "error 2 \"the question does not offer that answer\"");
}

TEST_F(SessionTest, AnInputBoxTakesATextOrCancel) {
  std::optional<std::string> given;
  const auto ask = [&](Windows& windows) { given = windows.Input("Jaki ?", "Nowy", "stary"); };
  EXPECT_EQ(RunAsking(ask, "answer text \"dwa słowa\""), Lines{"input \"Jaki ?\" \"Nowy\" \"stary\""});
  EXPECT_EQ(given, std::string("dwa słowa"_pl));
  RunAsking(ask, "answer cancel");
  EXPECT_EQ(given, std::nullopt);
  EXPECT_EQ(RunAsking(ask, "answer ok").back(), "error 2 \"the answer must be \\\"text STRING\\\" or \\\"cancel\\\"\"");
}

TEST_F(SessionTest, AFileDialogTakesAPathInEitherForm) {
  std::optional<std::string> given;
  const auto ask = [&](Windows& windows) {
    FileRequest request;
    request.mode = FileRequest::Mode::Save;
    request.title = "Zapisz jako";
    request.filter = "HTML|*.html";
    request.directory = "c:\\home\\ala";
    given = windows.AskFile(request);
  };
  EXPECT_EQ(RunAsking(ask, "answer file /home/ala/b.html"), Lines{"filedialog save \"Zapisz jako\" \"HTML|*.html\" \"c:\\\\home\\\\ala\""});
  EXPECT_EQ(given, "c:\\home\\ala\\b.html");
  RunAsking(ask, "answer file c:\\tmp\\c.html");
  EXPECT_EQ(given, "c:\\tmp\\c.html");
  RunAsking(ask, "answer file strona.v2");
  EXPECT_EQ(given, "c:\\home\\ala\\strona.v2");
  RunAsking(ask, "answer cancel");
  EXPECT_EQ(given, std::nullopt);
}

TEST_F(SessionTest, DirectoryColourFontAndPrintDialogs) {
  std::optional<std::string> directory;
  EXPECT_EQ(RunAsking([&](Windows& windows) { directory = windows.AskDirectory("Gdzie", "c:\\"); }, "answer file /tmp"),
            Lines{"directorydialog \"Gdzie\" \"c:\\\\\""});
  EXPECT_EQ(directory, "c:\\tmp");

  std::optional<Colour> colour;
  EXPECT_EQ(RunAsking([&](Windows& windows) { colour = windows.AskColour(RgbColour(255, 128, 0)); }, "answer colour 00FF10"),
            Lines{"colourdialog FF8000"});
  EXPECT_EQ(colour, RgbColour(0, 255, 16));

  std::optional<FontChoice> font;
  EXPECT_EQ(RunAsking([&](Windows& windows) { font = windows.AskFont({.name = "Courier New", .size = 10.5}); },
                      "answer font \"DejaVu Sans\" 12 bold strike"),
            Lines{"fontdialog \"Courier New\" 10.5"});
  EXPECT_EQ(font, (FontChoice{.name = "DejaVu Sans", .size = 12, .bold = true, .strikeThrough = true}));

  bool print = true;
  EXPECT_EQ(RunAsking([&](Windows& windows) { print = windows.AskPrint(); }, "answer cancel"), Lines{"printdialog"});
  EXPECT_FALSE(print);
}

TEST_F(SessionTest, LookingIsPossibleWhileAQuestionIsOpenAndActingIsNot) {
  const auto ask = [](Windows& windows) { windows.Message({.text = "?", .buttons = Buttons::YesNo}); };
  const std::string question = "message \"?\" \"Morlan7\" none yesno";
  EXPECT_EQ(RunAsking(ask, "echo a\nwait 10\ntext\nanswer no\necho b"), (Lines{question, "echo \"a\"", "text \"\"", "echo \"b\""}));
  EXPECT_EQ(RunAsking(ask, "type a"), (Lines{question, "error 2 \"a question is open\""}));
}

TEST_F(SessionTest, AScriptThatEndsInsideAQuestionOrAFormHasFailed) {
  const auto ask = [](Windows& windows) { windows.Message({.text = "?", .buttons = Buttons::YesNo}); };
  EXPECT_EQ(RunAsking(ask, "").back(), "error 1 \"the script ends while a question is open\"");
  session.prepare = RegisterTrialForm;
  EXPECT_EQ(session.Run("show TrialForm\n\n"),
            (Lines{"modal TrialForm \"Próba\"", "error 2 \"the script ends while a modal form is open\""}));
  EXPECT_FALSE(session.CarriedOut());
}

TEST_F(SessionTest, AFailureInsideAQuestionIsToldBeforeTheProgramHearsCancel) {
  Answer given = Answer::Ok;
  bool abandonedFirst = false;
  session.onAbandoned = [&] { abandonedFirst = given == Answer::Ok; };
  RunAsking([&](Windows& windows) { given = windows.Message({.text = "?", .buttons = Buttons::YesNoCancel}); }, "foo");
  EXPECT_TRUE(abandonedFirst);
  EXPECT_EQ(given, Answer::Cancel);
}

TEST_F(SessionTest, StatusTellsEachNewTextOfTheFirstPanel) {
  session.prepare = [](Program& program) {
    program.commands.OnMenu("mn_busy", [&program] {
      for (const char* text : {"jeden", "jeden", "dwa"}) program.frame().statusBar.SetPanel(1, text);
      program.frame().statusBar.SetPanel("docsize", "5 KB");
    });
  };
  EXPECT_EQ(session.Run("menu mn_busy\nstatus", ScriptedSession::StatusLines::Keep),
            (Lines{"status \"jeden\"", "status \"dwa\"", "panel status \"dwa\"", "panel docline \"\"", "panel docsize \"5 KB\"",
                   "panel mode \"HTML\"", "end"}));
}

TEST_F(SessionTest, TheWorldOutsideIsTold) {
  session.prepare = [](Program& program) {
    program.commands.OnMenu("mn_world", [&program] {
      program.platform.processes.Start("notatnik \"c:\\a b.txt\"", 1);
      program.platform.processes.Open("c:\\a.html");
      program.platform.printer.Print("wiersz\r\n");
      program.platform.windows.SendKeys("^{END}");
    });
  };
  EXPECT_EQ(session.Run("menu mn_world"), (Lines{"start \"notatnik \\\"c:\\\\a b.txt\\\"\" 1", "shell \"c:\\\\a.html\"",
                                                 "print \"wiersz\\r\\n\"", "sendkeys \"^{END}\""}));
}

TEST_F(SessionTest, TheClipboardKeepsLettersThatTheProgramLacks) {
  EXPECT_EQ(session.Run("clipboard\nsetclipboard \"→ł\"\nclipboard\nkey Ctrl+V\ntext"),
            (Lines{"clipboard \"\"", "clipboard \"→ł\"", "text \"&#8594;ł\""}));
}

TEST_F(SessionTest, QuitEndsTheScriptWhenTheProgramEnds) {
  const std::string question = "message \"Chcesz zakończyć pracę ?\" \"Morlan7\" question yesno";
  EXPECT_EQ(session.Run("quit\nanswer no\necho a\nquit\nanswer yes\necho b"), (Lines{question, "echo \"a\"", question}));
  EXPECT_TRUE(session.CarriedOut());
}

TEST_F(SessionTest, TheStoppedClockIsWhatTheProgramSees) {
  DateTime seen;
  session.prepare = [&](Program& program) { program.commands.OnMenu("mn_now", [&] { seen = program.platform.clock.Now(); }); };
  session.Run("wait 86400000\nmenu mn_now");
  EXPECT_EQ(seen, (DateTime{1998, 5, 5, 12, 30, 0, 2}));
}

}  // namespace
}  // namespace morlan
