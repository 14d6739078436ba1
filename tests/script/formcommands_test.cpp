#include <gtest/gtest.h>

#include "core/text.h"
#include "tests/support/scriptedsession.h"
#include "tests/support/trialform.h"

namespace morlan {
namespace {

// Runs commands on the open trial form and closes it behind them.
struct FormCommands : testing::Test {
  ScriptedSession session;

  void SetUp() override { session.prepare = RegisterTrialForm; }
  Lines RunOnForm(const std::string& script) {
    Lines lines = session.Run("show TrialForm\n" + script + "\nclose\n");
    EXPECT_EQ(lines.front(), "modal TrialForm \"Próba\"");
    if (session.CarriedOut()) {
      EXPECT_EQ(lines.back(), "closed TrialForm");
    }
    lines.erase(lines.begin());
    if (!lines.empty()) lines.pop_back();
    return lines;
  }
  // The last line of a script that cannot be carried out.
  std::string FaultOf(const std::string& script) {
    const Lines lines = session.Run("show TrialForm\n" + script + "\nclose\n");
    EXPECT_FALSE(session.CarriedOut()) << script;
    return lines.back();
  }
  TrialForm& form() { return session.program().forms.Get<TrialForm>(); }
};

TEST_F(FormCommands, FormPrintsEveryVisibleControlWithItsKindAndValue) {
  EXPECT_EQ(RunOnForm("form"), (Lines{"form TrialForm \"Próba\"",
                                      "control opis label enabled \"Opis\"",
                                      "control nazwa text enabled \"abc\"",
                                      "control tresc text enabled \"\"",
                                      "control wybor combo enabled \"\"",
                                      "control adres combo enabled \"\"",
                                      "control lista list enabled \"\"",
                                      "control wiele list enabled \"\"",
                                      "control duze check enabled \"false\"",
                                      "control lewa option enabled \"true\"",
                                      "control prawa option enabled \"false\"",
                                      "control licznik spin enabled \"3\"",
                                      "control siatka grid enabled \"\"",
                                      "control karty tabs enabled \"\"",
                                      "control pasek toolbar enabled \"\"",
                                      "control obraz picture enabled \"\"",
                                      "control nieczynny button disabled \"Nieczynny\"",
                                      "control Command3 button enabled \"&Zapytaj\"",
                                      "control Command2 button enabled \"&Ok\"",
                                      "control Command1 button enabled \"&Anuluj\"",
                                      "end"}));
}

TEST_F(FormCommands, SetIsTheUsersChangeOfAField) {
  const Lines lines = RunOnForm(
      "set nazwa \"żółw\"\nset wybor dwa\nset adres c.html\nset lista ma\nset duze true\nset prawa true\nset licznik 7\nset siatka pole\n"
      "get nazwa\nget wybor\nget adres\nget lista\nget duze\nget lewa\nget prawa\nget licznik\nget siatka\nget Command2");
  EXPECT_EQ(lines, (Lines{"value nazwa \"żółw\"", "value wybor \"dwa\"", "value adres \"c.html\"", "value lista \"ma\"",
                          "value duze \"true\"", "value lewa \"false\"", "value prawa \"true\"", "value licznik \"7\"",
                          "value siatka \"pole\"", "value Command2 \"&Ok\""}));
  EXPECT_EQ(form().events, (Lines{"nazwa+", "nazwa-", "wybor dwa", "lista ma", "duze true", "prawa"}));
}

TEST_F(FormCommands, WhatAControlCannotTakeIsAnError) {
  struct Row {
    std::string script, error;
  };
  const Row rows[] = {
      {"set wybor cztery", "error 2 \"wybor does not take that value\""},
      {"set duze tak", "error 2 \"duze does not take that value\""},
      {"set lewa false", "error 2 \"lewa does not take that value\""},
      {"set opis x", "error 2 \"opis does not take that value\""},
      {"set licznik x", "error 2 \"licznik does not take that value\""},
      {"set brak x", "error 2 \"no such control: brak\""},
      {"click ukryty", "error 2 \"the control ukryty is hidden\""},
      {"click nieczynny", "error 2 \"the control nieczynny is disabled\""},
      {"click pasek", "error 2 \"the button of the toolbar is missing\""},
      {"click pasek off", "error 2 \"pasek has no button off that can be pressed\""},
      {"click Command2 bold", "error 2 \"Command2 is no toolbar\""},
      {"row lista 3", "error 2 \"lista has no such row\""},
      {"row lista -1", "error 2 \"lista has no such row\""},
      {"row lista x", "error 2 \"x is no number\""},
      {"row lista 0 on", "error 2 \"lista is no list with several selections\""},
      {"row wiele 0 yes", "error 2 \"the state of a row is \\\"on\\\" or \\\"off\\\"\""},
      {"cell siatka 2 0", "error 2 \"siatka has no such cell\""},
      {"cell lista 0 0", "error 2 \"lista is no grid\""},
      {"rows nazwa", "error 2 \"nazwa has no rows\""},
      {"draw lista 0 0 1 1", "error 2 \"lista is no picture\""},
      {"press nazwa Foo", "error 2 \"no such key: Foo\""},
      {"click Morlan.SelEditor", "error 2 \"the form Morlan cannot be reached\""},
      {"type a", "error 2 \"the form TrialForm is open\""},
      {"menu xmn_save", "error 2 \"the form TrialForm is open\""},
      {"quit", "error 2 \"the form TrialForm is open\""},
  };
  for (const Row& row : rows) EXPECT_EQ(FaultOf(row.script), row.error);
}

TEST_F(FormCommands, RowsPrintsListsTabsAndGrids) {
  EXPECT_EQ(RunOnForm("row lista 2\nrows lista"), (Lines{"row 0 \"Ala\"", "row 1 \"ma\"", "row 2 \"kota\" selected", "end"}));
  EXPECT_EQ(RunOnForm("row wybor 0\nrows wybor"), (Lines{"row 0 \"jeden\" selected", "row 1 \"dwa\"", "row 2 \"trzy\"", "end"}));
  EXPECT_EQ(RunOnForm("row karty 1\nrows karty"), (Lines{"row 0 \"Pierwsza\"", "row 1 \"Druga\" selected", "end"}));
  EXPECT_EQ(RunOnForm("row wiele 0 on\nrow wiele 2 on\nrow wiele 0 off\nrow wiele 1 on\nrows wiele"),
            (Lines{"row 0 \"x\"", "row 1 \"y\" selected", "row 2 \"z\" selected", "end"}));
  EXPECT_EQ(RunOnForm("cell siatka 1 2\nset siatka b\nrow siatka 1\nset siatka c\nrows siatka"),
            (Lines{"row 0 \"\\t\"", "row 1 \"\\tc\" selected", "row 2 \"\\tb\"", "end"}));
}

TEST_F(FormCommands, ClicksReachTheirControls) {
  RunOnForm("click duze\nclick duze\nclick prawa\nclick pasek bold\ndblclick lista\npoint obraz 4 5\ndraw obraz 1 2 30 40");
  EXPECT_EQ(form().events,
            (Lines{"duze true", "duze false", "prawa", "pasek bold", "lista dbl", "down 4,5", "up 4,5", "obraz", "down 1,2", "up 30,40"}));
}

TEST_F(FormCommands, LeavingAFieldRaisesLostFocusOnce) {
  RunOnForm("set nazwa a\nset nazwa b\nleave nazwa\nset duze true\nset nazwa c\nclick Command3\nanswer no");
  EXPECT_EQ(form().events, (Lines{"nazwa+", "nazwa-", "duze true", "nazwa+", "nazwa-", "nie"}));
}

TEST_F(FormCommands, KeysInAFormDoWhatTheDesktopDoes) {
  EXPECT_EQ(RunOnForm("press nazwa d\npress nazwa Backspace\npress nazwa Shift+1\npress nazwa \"ż\"\npress nazwa F1\nget nazwa"),
            Lines{"value nazwa \"abc!ż\""});
  EXPECT_EQ(RunOnForm("press lista Down\npress lista End\npress lista Up\nget lista"), Lines{"value lista \"ma\""});
  EXPECT_EQ(RunOnForm("press karty Right\npress karty Right\nget karty"), Lines{"value karty \"Druga\""});
  EXPECT_EQ(RunOnForm("press licznik Up\npress licznik Down\npress licznik Down\nget licznik"), Lines{"value licznik \"2\""});
  EXPECT_EQ(RunOnForm("press siatka Right\npress siatka Down\nset siatka x\nrows siatka"),
            (Lines{"row 0 \"\\t\"", "row 1 \"\\tx\" selected", "row 2 \"\\t\"", "end"}));
  EXPECT_EQ(RunOnForm("press nazwa Alt+d\npress duze Space\npress nazwa Alt+r\nget duze\nget prawa"),
            (Lines{"value duze \"false\"", "value prawa \"true\""}));
  EXPECT_EQ(RunOnForm("press tresc a\npress tresc Enter\npress tresc b\nget tresc"), Lines{"value tresc \"a\\r\\nb\""});
}

TEST_F(FormCommands, EnterPressesTheDefaultButtonAndEscapeTheCancelButton) {
  EXPECT_EQ(session.Run("show TrialForm\npress nazwa Enter\n"), (Lines{"modal TrialForm \"Próba\"", "closed TrialForm"}));
  EXPECT_EQ(form().events.back(), "ok");
  EXPECT_EQ(session.Run("show TrialForm\npress nazwa Escape\n"), (Lines{"modal TrialForm \"Próba\"", "closed TrialForm"}));
  EXPECT_NE(form().events.back(), "ok");
}

TEST_F(FormCommands, AQuestionOfAModalFormIsAnsweredInside) {
  EXPECT_EQ(RunOnForm("click Command3\nanswer yes"), Lines{"message \"Na pewno ?\" \"Morlan7\" question yesnocancel"});
  EXPECT_EQ(form().events, Lines{"tak"});
}

TEST_F(FormCommands, AShownFormIsInFrontUntilAnotherComesForward) {
  const Lines lines = session.Run("get Morlan.duze\n");
  EXPECT_EQ(lines, Lines{"error 1 \"no such control: Morlan.duze\""});
  EXPECT_EQ(session.Run("show TrialTool\nset nazwa x\nget TrialForm.nazwa\nfront Morlan\nget SelEditor\nget trialform.NAZWA\n"
                        "front TrialForm\nget nazwa\ntype a\ntext\nclose\nfront TrialForm\n"),
            (Lines{"value TrialForm.nazwa \"x\"", "value SelEditor \"" + ToUtf8(session.program().frame().SelEditor.Caption()) + "\"",
                   "value TrialForm.nazwa \"x\"", "value nazwa \"x\"", "text \"a\"", "error 12 \"no such open form: TrialForm\""}));
}

TEST_F(FormCommands, AFormThatIsNotOpenCanBeReadButNotUsed) {
  EXPECT_EQ(session.Run("show TrialForm\nclose\nget TrialForm.nazwa\nset TrialForm.nazwa x\n").back(),
            "error 4 \"the form TrialForm cannot be reached\"");
}

TEST_F(FormCommands, TheTimersOfAnOpenFormTick) {
  session.prepare = [](Program& program) {
    RegisterTrialForm(program);
    auto& form = program.forms.Get<TrialForm>();
    form.zegar.OnTimer = [&] { form.events.push_back("tik"); };
    form.OnActivate = [&] { form.zegar.SetEnabled(true); };
  };
  RunOnForm("wait 999\nwait 1\nwait 2000");
  EXPECT_EQ(form().events, (Lines{"tik", "tik", "tik"}));
}

}  // namespace
}  // namespace morlan
