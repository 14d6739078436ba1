#include "macros/interpreter.h"

#include "core/documents.h"
#include "core/savedocument.h"
#include "tests/macros/macroprogram.h"

namespace morlan {
namespace {

using Interpreter = MacroTest;

// --- sections

TEST_F(Interpreter, TextWithoutCommandsGoesInFrontOfTheSelection) { EXPECT_EQ(Run("<HR>", "ab", 1, 1), "a<HR>b"); }

TEST_F(Interpreter, AnEmptyMacroChangesNothing) { EXPECT_EQ(Run("", "ab", 0, 1), "ab"); }

TEST_F(Interpreter, WrapsTheSelection) {
  for (const std::string_view macro :
       {"{beforesel}<B>{/beforesel}{aftersel}</B>{/aftersel}",
        "{beforeselection}<B>{/beforeselection}{afterselection}</B>{/afterselection}", "{BeforeSel}<B>{AfterSel}</B>",
        "<B>{allafterselection}</B>", "{allaftersel}</B>{beforesel}<B>{/beforesel}", "{allbeforesel}<B>{aftersel}</B>{/aftersel}",
        "{allbeforeselection}<B>{aftersel}</B>"})
    EXPECT_EQ(Run(macro, "abc", 1, 1), "a<B>b</B>c") << macro;
}

TEST_F(Interpreter, ReplacesTheSelection) {
  for (const std::string_view macro :
       {"{allinstedsel}x", "{allinstedselection}x", "{instedsel}x{/instedsel}", "{instedselection}x{/instedselection}"})
    EXPECT_EQ(Run(macro, "abc", 1, 1), "axc") << macro;
}

TEST_F(Interpreter, TheReplacementStandsBehindTheTextInFrontWhenThereIsOne) {
  EXPECT_EQ(Run("<B>{instedsel}x{/instedsel}", "abc", 1, 1), "a<B>xbc");
}

TEST_F(Interpreter, LineEndsBetweenCommandsAreNotWritten) {
  EXPECT_EQ(Run("{beforesel}\r\n<B>\r\n{/beforesel}\r\n{aftersel}\r\n</B>\r\n{/aftersel}\r\n\r\n", "a", 0, 1), "<B>a</B>");
  EXPECT_EQ(Run("a\r\n\r\nb"), "a\r\n\r\nb");
}

TEST_F(Interpreter, OneStepOfUndoTakesAReplacementBack) {
  Run("{allinstedsel}x", "abc", 1, 1);
  test.program.commands.RunMenu("xmn_undo");
  EXPECT_EQ(test.Text(), "abc");
}

// --- variables

TEST_F(Interpreter, AVariableIsFilledAndRead) {
  EXPECT_EQ(Run("{variable name=\"Imie\"}Ala{/variable}[{print text=\"%%imie\"}]"), "[Ala]");
  EXPECT_EQ(Run("{var name=\"a\"}1{/var}{var name=\"b\"}{print text=\"%%A\"}2{/var}{print text=\" %%b \"}"), "12");
}

TEST_F(Interpreter, ATextVariableGrows) { EXPECT_EQ(Run("{var name=\"a\"}1{/var}{var name=\"a\"}2{/var}{print text=\"%%a\"}"), "12"); }

TEST_F(Interpreter, ANumericVariableTakesTheLastNumber) {
  EXPECT_EQ(Run("{var name=\"a\" type=\"numeric\"}007{/var}{print text=\"%%a\"}"), "7");
  EXPECT_EQ(Run("{var name=\"a\" type=\"num\"}1{/var}{var name=\"a\" type=\"NUM\"}2{/var}{print text=\"%%a\"}"), "2");
  EXPECT_EQ(Run("{var name=\"a\" type=\"num\"}12,5 zl{/var}{print text=\"%%a\"}"), "12");
}

TEST_F(Interpreter, AVariableWithoutANameIsFatal) {
  ExpectFatal("{variable}", "Instrukcja {Variable} wymaga podania nazwy zmiennej!", "Błąd makro!! {Variable}"_pl);
}

TEST_F(Interpreter, TheFortyFirstVariableIsFatal) {
  std::string macro;
  for (int i = 1; i <= 40; ++i) macro += "{var name=\"v" + std::to_string(i) + "\"}x{/var}";
  EXPECT_EQ(Run(macro + "ok"), "ok");
  ExpectFatal(macro + "{var name=\"Jeszcze\"}", "Brak pamięci dla zmiennych! [jeszcze]"_pl, "Błąd makro!"_pl);
}

TEST_F(Interpreter, AMissingVariableIsFatal) { ExpectFatal("{print text=\"%%brak\"}", "Zmienna [BRAK] nie istnieje!", "Błąd makro !"_pl); }

TEST_F(Interpreter, DisposeLooksForTheCommandItselfOnPurpose) {
  ExpectFatal("{var name=\"a\"}1{/var}{dispose %%a}", "Zmienna [ISPOSE %%A] nie istnieje!", "Błąd makro !"_pl);
  EXPECT_EQ(Run("{var name=\"ispose\"}1{/var}{dispose}{var name=\"ispose\"}2{/var}{print text=\"%%ispose\"}"), "2");
}

TEST_F(Interpreter, DisposeAllForgetsEverything) {
  ExpectFatal("{var name=\"a\"}1{/var}{disposeall}{print text=\"%%a\"}", "Zmienna [A] nie istnieje!", "Błąd makro !"_pl);
}

TEST_F(Interpreter, NothingOfAnEarlierRunIsLeft) {
  Run("{var name=\"a\"}1{/var}");
  ExpectFatal("{print text=\"%%a\"}", "Zmienna [A] nie istnieje!", "Błąd makro !"_pl);
}

// --- print and insert

TEST_F(Interpreter, PrintsATextByAPattern) {
  EXPECT_EQ(Run("{print text=\"3,5\" format=\"0.00\"}"), "3,50");
  EXPECT_EQ(Run("{print text=\"7.03.1998\" format=\"D MMMM\"}"), "7 marca");
}

TEST_F(Interpreter, InsertsWhatItKnows) {
  EXPECT_EQ(Run("{insert type=\"macroname\"}"), "proba");
  EXPECT_EQ(Run("{insert type=\"currentdate\"} {INSERT TYPE=\"CURRENTTIME\"}"), "07/03/1998 12:30:05");
  EXPECT_EQ(Run("{insert type=\"currentdate\" format=\"yyyy\"} {insert type=\"currenttime\" format=\"h:mm\"}"), "1998 12:30");
  EXPECT_EQ(Run("{insert type=\"docname\"}"), test.Path("work\\strona.html"));
}

TEST_F(Interpreter, InsertNeedsAKnownType) {
  EXPECT_EQ(Run("a{insert}b"), "ab");
  EXPECT_EQ(Messages(), std::vector<std::string>{Message("Wymagany parametr TYPE", "Błąd makro! {INSERT}"_pl)});
  EXPECT_EQ(Run("a{insert type=\"pogoda\"}b"), "ab");
  EXPECT_EQ(Messages(), std::vector<std::string>{Message("Nieznany typ POGODA", "Morlan7 Makro")});
}

TEST_F(Interpreter, InsertsAFile) {
  test.Write("work\\plik.txt", "raz\r\ndwa");
  for (const std::string_view type : {"text", "HTML"})
    EXPECT_EQ(Run(Concat({"{insert type=\"file\" filetype=\"", type, "\" filename=\"plik.txt\" charset=\"Win1250\"}"})),
              "<-- wstawiony plik : plik.txt-->\r\n<PRE>\r\nraz\r\ndwa\r\n</PRE>\r\n<-- wstawiony plik -->");
  EXPECT_EQ(Run("{insert type=\"file\" filetype=\"inny\" filename=\"plik.txt\" charset=\"win1250\"}"), "");
}

TEST_F(Interpreter, AFileWithoutACharsetIsInsertedWithAWarning) {
  test.Write("work\\plik.txt", "raz");
  EXPECT_EQ(Run("{insert type=\"file\" filetype=\"text\" filename=\"plik.txt\"}"),
            "<-- wstawiony plik : plik.txt-->\r\n<PRE>\r\nraz\r\n</PRE>\r\n<-- wstawiony plik -->");
  EXPECT_EQ(Messages(),
            std::vector<std::string>{Message("Nie zdefiniowany parametr CHARSET", "Ostrzeżenie Makro! {INSERT}"_pl, "warning")});
}

TEST_F(Interpreter, AFileNeedsItsNameAndType) {
  EXPECT_EQ(Run("a{insert type=\"file\" filetype=\"text\" charset=\"win1250\"}b"), "ab");
  EXPECT_EQ(Messages(), std::vector<std::string>{Message("Nie zdefiniowany parametr FILENAME", "Błąd Makro! {INSERT}"_pl)});
  EXPECT_EQ(Run("a{insert type=\"file\" filename=\"plik.txt\" charset=\"win1250\"}b"), "ab");
  EXPECT_EQ(Messages(), std::vector<std::string>{Message("Nie zdefiniowany parametr FILETYPE", "Błąd Makro! {INSERT}"_pl)});
}

TEST_F(Interpreter, AFileThatIsMissingEndsTheRunSilently) {
  EXPECT_EQ(Run("a{insert type=\"file\" filetype=\"text\" filename=\"brak.txt\" charset=\"win1250\"}b", "x"), "x");
  EXPECT_EQ(Messages(), std::vector<std::string>{});
}

// --- questions

TEST_F(Interpreter, AsksForAText) {
  test.windows.inputs = {"Ala"};
  EXPECT_EQ(Run("[{inputbox prompt=\"Imie?\" title=\"Pytanie\" value=\"Ola\"}]"), "[Ala]");
  EXPECT_EQ(test.Asked().at(0), "input \"Imie?\" \"Pytanie\" \"Ola\"");
  test.windows.inputs = {std::nullopt};
  EXPECT_EQ(Run("[{inputbox prompt=\"Imie?\"}]"), "[]");
  EXPECT_EQ(test.Asked().at(0), "input \"Imie?\" \"Morlan7 Makro\" \"\"");
}

TEST_F(Interpreter, AsksForAFile) {
  test.windows.files = {"c:\\a.txt"};
  EXPECT_EQ(Run("{opendialog}"), "c:\\a.txt");
  EXPECT_EQ(test.Asked().at(0), "filedialog open \"Otwórz\" \"Wszystkie pliki (*.*)|*.*|\" \"\"");
  test.windows.files = {std::nullopt};
  EXPECT_EQ(Run("[{savedialog title=\"Gdzie\" filter=\"Teksty|*.txt|\" initdir=\"c:\\x\"}]"), "[]");
  EXPECT_EQ(test.Asked().at(0), "filedialog save \"Gdzie\" \"Teksty|*.txt|\" \"c:\\\\x\"");
}

TEST_F(Interpreter, ABoxLeavesTheWordOfItsButton) {
  EXPECT_EQ(Run("{msgbox prompt=\"Gotowe\"}"), "Ok");
  EXPECT_EQ(test.Asked().at(0), "message \"Gotowe\" \"Morlan7 Makro\" none ok");
  struct Row {
    int style;
    Answer answer;
    std::string_view word, box;
  };
  for (const Row& row :
       {Row{1, Answer::Cancel, "Cancel", "none okcancel"}, Row{2 + 16, Answer::Abort, "Abort", "stop abortretryignore"},
        Row{2, Answer::Ignore, "Ignore", "none abortretryignore"}, Row{3 + 32, Answer::No, "No", "question yesnocancel"},
        Row{5 + 48, Answer::Retry, "Retry", "warning retrycancel"}, Row{1 + 64, Answer::Ok, "Ok", "information okcancel"}}) {
    test.windows.answers = {row.answer};
    EXPECT_EQ(Run("{msgbox prompt=\"?\" title=\"T\" style=\"" + std::to_string(row.style) + "\"}"), row.word);
    EXPECT_EQ(test.Asked().at(0), Concat({"message \"?\" \"T\" ", row.box}));
  }
}

TEST_F(Interpreter, YesLeavesNothingOnPurpose) {
  test.windows.answers = {Answer::Yes};
  EXPECT_EQ(Run("[{msgbox prompt=\"?\" style=\"4\"}]"), "[]");
}

// --- programs

TEST_F(Interpreter, StartsAProgram) {
  Run("{startapplication Name=\"notes\" Parameter=\"a b\" Style=\"3\"}");
  EXPECT_EQ(test.Asked().at(0), "start \"notes a b\" 3");
  Run("{startapp Name=\"notes\" SendKeys=\"abc\"}");
  const Record record = test.Asked();
  EXPECT_EQ(record.at(0), "start \"notes \" 1");
  EXPECT_EQ(record.at(1), "sendkeys \"abc\"");
}

TEST_F(Interpreter, AProgramNeedsItsName) {
  ExpectFatal("{startapp}", "Instrukcja {RunApplication} wymaga podania nazwy programu!", "Błąd makro!! {RunApplication}"_pl);
}

TEST_F(Interpreter, AStyleOutOfRangeStartsNothing) {
  EXPECT_EQ(Run("a{startapp Name=\"notes\" Style=\"10\"}"), "a");
  EXPECT_EQ(Messages(), std::vector<std::string>{Message("Błędna wartość parametru STYLE !"_pl, "Błąd makro!! {RunApplication}"_pl)});
}

// --- conditions

TEST_F(Interpreter, ATrueConditionRunsItsFirstBranch) {
  EXPECT_EQ(Run("{if text1=\"a\" text2=\"a\"}tak{else}nie{endif}."), "tak.");
  EXPECT_EQ(Run("{if text1=\"a\" text2=\"b\"}tak{else}nie{endif}."), "nie.");
  EXPECT_EQ(Run("{if text1=\"a\" text2=\"b\"}tak{endif}."), ".");
}

TEST_F(Interpreter, ComparesTextsByEveryMethod) {
  struct Row {
    std::string_view method;
    bool less, equal, greater;
  };
  for (const Row& row :
       {Row{"equ", false, true, false}, Row{"equal", false, true, false}, Row{"=", false, true, false}, Row{"bigger", false, false, true},
        Row{">", false, false, true}, Row{"lower", true, false, false}, Row{"<", true, false, false}, Row{"<=", true, true, false},
        Row{"=<", true, true, false}, Row{">=", false, true, true}, Row{"=>", false, true, true}, Row{"EQU", false, true, false},
        Row{"inna", false, false, false}}) {
    const auto holds = [&](std::string_view first, std::string_view second) {
      return Run(Concat({"{if text1=\"", first, "\" text2=\"", second, "\" method=\"", row.method, "\"}t{else}n{endif}"})) == "t";
    };
    EXPECT_EQ(holds("a", "b"), row.less) << row.method;
    EXPECT_EQ(holds("a", "a"), row.equal) << row.method;
    EXPECT_EQ(holds("b", "a"), row.greater) << row.method;
  }
}

TEST_F(Interpreter, NumbersAreComparedAsTextsOnPurpose) {
  EXPECT_EQ(Run("{if text1=\"10\" text2=\"9\" method=\">\"}t{else}n{endif}"), "n");
}

TEST_F(Interpreter, LetterCaseCountsInComparisons) { EXPECT_EQ(Run("{if text1=\"A\" text2=\"a\"}t{else}n{endif}"), "n"); }

TEST_F(Interpreter, NestingIsNotLookedAtOnPurpose) {
  EXPECT_EQ(Run("{if text1=\"a\" text2=\"b\"}1{if text1=\"a\" text2=\"a\"}2{endif}3{endif}4"), "34");
}

TEST_F(Interpreter, AFalseConditionWithoutAnEndEndsTheScan) { EXPECT_EQ(Run("a{if text1=\"a\" text2=\"b\"}b{print text=\"c\"}"), "a"); }

TEST_F(Interpreter, AnElseOfATrueConditionWithoutAnEndEndsTheScan) {
  EXPECT_EQ(Run("{if text1=\"a\" text2=\"a\"}b{else}c{print text=\"d\"}"), "b");
}

TEST_F(Interpreter, ALongMacroEndsAtSuchAnElseToo) {
  EXPECT_EQ(Run(Concat({std::string(100000, 'x'), "{if text1=\"a\" text2=\"a\"}b{else}c{print text=\"d\"}"})),
            std::string(100000, 'x') + "b");
}

TEST_F(Interpreter, TheNearerBranchIsTaken) {
  EXPECT_EQ(Run("{if text1=\"a\" text2=\"b\"}1{endif}2{if text1=\"a\" text2=\"a\"}3{else}4{endif}5"), "235");
}

TEST_F(Interpreter, ElseAndEndIfAloneDoNothing) { EXPECT_EQ(Run("a{else}b{endif}c"), "abc"); }

TEST_F(Interpreter, TheEleventhOpenConditionIsFatal) {
  std::string macro;
  for (int i = 0; i < 10; ++i) macro += "{if text1=\"a\" text2=\"a\"}";
  EXPECT_EQ(Run(macro + "ok"), "ok");
  ExpectFatal(macro + "{if text1=\"a\" text2=\"a\"}", "Brak pamięci dla warunków! [11]"_pl, "Błąd makro!"_pl);
}

// --- loops

TEST_F(Interpreter, ALoopCounts) { EXPECT_EQ(Run("{for name=\"i\" from=\"1\" to=\"3\"}\r\n{print text=\"%%i\"},{next}."), "1,2,3,."); }

TEST_F(Interpreter, TheFirstCharacterOfTheBodyIsReadInTheFirstRoundOnlyOnPurpose) {
  EXPECT_EQ(Run("{for name=\"i\" from=\"1\" to=\"3\"}ab{next}"), "abbb");
}

TEST_F(Interpreter, LoopsStandInLoops) {
  EXPECT_EQ(Run("{for name=\"i\" from=\"1\" to=\"2\"}\r\n{for name=\"j\" from=\"1\" to=\"2\"}\r\n{print text=\"%%i\"}{print text=\"%%j\"} "
                "{next}{next}"),
            "11 12 21 22 ");
}

TEST_F(Interpreter, ALoopOutOfRangeIsSkippedToItsNext) {
  EXPECT_EQ(Run("a{for name=\"I\" from=\"2\" to=\"1\"}b{next name=\"i\"}c"), "ac");
  EXPECT_EQ(Run("a{for name=\"i\" from=\"2\" to=\"1\"}b{next}c"), "a") << "a {next} of another form is not found";
}

TEST_F(Interpreter, ANextAloneDoesNothing) { EXPECT_EQ(Run("a{next}b"), "ab"); }

TEST_F(Interpreter, LoopsNeedANameAndARange) {
  ExpectFatal("{for from=\"1\" to=\"2\"}", "Pętla nie ma zdefiniowanej nazwy!"_pl, "Błąd makro! {FOR}"_pl);
  ExpectFatal("{for name=\"i\" from=\"1\"}", "Błędnie zdefinowany zakres pętli!"_pl, "Błąd makro! {FOR}"_pl);
  ExpectFatal("{for name=\"i\" to=\"1\"}", "Błędnie zdefinowany zakres pętli!"_pl, "Błąd makro! {FOR}"_pl);
}

TEST_F(Interpreter, ALoopIsOpenOnce) {
  ExpectFatal("{for name=\"i\" from=\"1\" to=\"2\"}{for name=\"I\" from=\"1\" to=\"2\"}", "Zdublowana nazwa pętli!"_pl, "Błąd makro!"_pl);
}

TEST_F(Interpreter, TheEleventhOpenLoopIsFatal) {
  std::string macro;
  for (int i = 0; i < 10; ++i) macro += "{for name=\"l" + std::to_string(i) + "\" from=\"1\" to=\"1\"}";
  EXPECT_EQ(Run(macro + "ok"), "ok");
  ExpectFatal(macro + "{for name=\"x\" from=\"1\" to=\"1\"}", "Brak pamięci dla pętli!"_pl, "Błąd makro!"_pl);
}

// --- faults

TEST_F(Interpreter, AnUnknownCommandIsFatal) { ExpectFatal("{pogoda x=\"1\"}", "Nieznane polecenie {POGODA}", "Morlan7 Makro"); }

TEST_F(Interpreter, ACommandWithoutItsBraceRunsToTheEnd) {
  EXPECT_EQ(Run("a{print text=\"b\" c"), "ab");
  ExpectFatal("a{", "Nieznane polecenie {}", "Morlan7 Makro");
}

TEST_F(Interpreter, EscStopsARunWithoutEnd) {
  int turns = 0;
  test.windows.onYieldToEscape = [&] { return ++turns > 1000; };
  EXPECT_EQ(Run("{for name=\"i\" from=\"1\" to=\"2000000000\"}\r\nx{next}", "nietkniety"), "nietkniety");
  EXPECT_EQ(Messages(), std::vector<std::string>{});
  EXPECT_EQ(turns, 1001);
}

TEST_F(Interpreter, AVariableThatDoublesWithoutEndIsFatal) {
  const std::string macro =
      "{var name=\"a\"}x{/var}{for name=\"i\" from=\"1\" to=\"2000000000\"}\r\n{var name=\"a\"}{print text=\"%%a\"}{/var}{next}";
  EXPECT_EQ(Run(macro, "nietkniety"), "nietkniety");
  EXPECT_EQ(Messages(), std::vector<std::string>{Message("Podczas wykomywania makrodefinicji występił błąd krytyczny. Makro przerwane"_pl,
                                                         "Błąd krytyczny makro!"_pl)});
}

TEST_F(Interpreter, TheStatusLineTellsOfARun) {
  const auto shown = [&] { return test.frame().statusBar.ValueText(); };
  std::string meanwhile;
  test.windows.onYieldToEscape = [&] {
    meanwhile = shown();
    return false;
  };
  Run("{print text=\"a\"}");
  EXPECT_EQ(meanwhile, "Uruchamiam makro...proba");
  EXPECT_EQ(shown(), "Gotowy");
  Run("{pogoda}");
  EXPECT_EQ(shown(), "Gotowy");
}

TEST_F(Interpreter, AMacroThatIsMissingDoesNotRun) { EXPECT_FALSE(test.program.runMacro("brak")); }

TEST_F(Interpreter, AnotherDocumentThatCameForwardMeanwhileStaysUntouched) {
  test.OpenText("drugi", "drugi.html");
  test.OpenText("pierwszy", "pierwszy.html");
  test.Write("program\\MAKRO\\proba.mac", "x{print text=\"y\"}");
  test.windows.onYieldToEscape = [&] {
    CloseActiveDocument(test.program);
    return false;
  };
  EXPECT_TRUE(test.program.runMacro("proba"));
  EXPECT_EQ(test.Text(), "drugi");
}

TEST_F(Interpreter, AMacroDoesNotRunWithinAnother) {
  bool ran = true;
  test.windows.onYieldToEscape = [&] {
    ran = test.program.runMacro("proba");
    return false;
  };
  EXPECT_EQ(Run("{print text=\"a\"}"), "a");
  EXPECT_FALSE(ran);
}

}  // namespace
}  // namespace morlan
