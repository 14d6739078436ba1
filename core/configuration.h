// The dialog of the program's settings.
#pragma once

#include <string>
#include <vector>

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"

namespace morlan {

struct configuration : Form {
  // "Edytor"
  CheckBox ShowHint{*this, "ShowHint", "Pokazuj &podpowiedzi atrybutów"_pl};
  OptionButton ShowList{*this, "ShowList", "jako &listę"_pl, "hint"}, ShowBlock{*this, "ShowBlock", "jako &blok tekstu", "hint"};
  CheckBox SetupCarret{*this, "SetupCarret", "Po wciśnięciu ENTER &ustaw kursor pod początkiem poprzedniej linii"_pl};
  CheckBox ExtendLI{*this, "ExtendLI", "Po wciśnięciu ENTER &dopisz następny element listy"_pl};
  // "Czcionka i kolory"
  TextSample Label1{*this, "Label1", "Edytowany tekst"};
  Button Command3{*this, "Command3", "Czcionka"};
  ColourBox FontColor{*this, "FontColor", ""};
  CheckBox UseColorize{*this, "UseColorize", "&Uaktywnij kolorowanie"};
  ColourBox GlobalColor{*this, "GlobalColor", ""}, TagsColor{*this, "TagsColor", ""};
  ColourBox LinksColor{*this, "LinksColor", ""}, CommentsColor{*this, "CommentsColor", ""};
  // "Okno"
  CheckBox WindowsManagerVisible{*this, "SSCheck1(0)", "&Lista otwartych plików widoczna"_pl};
  CheckBox StatusBarVisible{*this, "SSCheck1(1)", "Listwa &statusu widoczna"};
  CheckBox CommandLineVisible{*this, "SSCheck1(2)", "Listwa &poleceń widoczna"_pl};
  CheckBox FileManagerVisible{*this, "SSCheck1(3)", "&Menadżer plików widoczny"_pl};
  CheckBox SymbolsVisible{*this, "SSCheck1(4)", "S&ymbole"};
  // "Dokument"
  CheckBox CreateBackup{*this, "CreateBackup", "Utwórz &kopię pliku"_pl};
  ComboBox saveformat{*this, "saveformat", ComboBox::Style::ListOnly};
  Button Command8{*this, "Command8", "Utwórz &nowy"_pl};
  CheckBox AutoSaveActivated{*this, "AutoSaveActivated", "&Uaktywnij autozapis"};
  TextBox AutoSaveTime{*this, "AutoSaveTime"};
  Label minutes{*this, "minutes", "min."};
  // "Pisownia"
  CheckBox IgnoreNumbers{*this, "Ignore(0)", "Wyrazy zawierające &cyfry"_pl};
  CheckBox IgnoreUpperCase{*this, "Ignore(1)", "Wyrazy pisane &dużymi literami"_pl};
  ListBox Language{*this, "Language"};
  Button Command4{*this, "Command4", "&Nowy"};
  // "Przeglądarki"
  ListBox Browsers{*this, "Browsers"};
  Button Command5{*this, "Command5", "&Dodaj"}, Command6{*this, "Command6", "&Usuń"_pl}, Command7{*this, "Command7", "&Użyj"_pl};
  // "Internet"
  TextBox Proxy{*this, "Proxy"};
  CheckBox ExplorerUse{*this, "ExplorerUse", "Użyj &zakładek"_pl}, NetscapeUse{*this, "NetscapeUse", "&Użyj zakładek"_pl};
  TextBox WhereIsNetscape{*this, "WhereIsNetscape"};
  Button WhereIsNetscapeFile{*this, "WhereIsNetscapeFile", "..."};

  Button Command2{*this, "Command2", "&Ok"}, Command1{*this, "Command1", "&Anuluj"};

  explicit configuration(Program& program);

 private:
  void SetUpLayout();
  void SetUpButtons();
  void SetUpToolTips();
  void Form_Load();
  void FillCharsets();
  void AutoSaveTime_LostFocus();
  void Command2_Click();
  void Command3_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();
  void Command8_Click();
  void ChooseColour(ColourBox& box);
  void ChooseBookmarkFile();
  void ShowSample();

  Program& program_;
  FontChoice font_;
};

// The command: shows the dialog and brings the whole program up to what was chosen.
void ShowConfiguration(Program& program);

}  // namespace morlan
