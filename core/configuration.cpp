#include "core/configuration.h"

#include <variant>

#include "core/applysettings.h"
#include "core/browserlist.h"
#include "core/charsetnames.h"
#include "core/colourtext.h"
#include "core/languages.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"

namespace morlan {
namespace {

constexpr std::string_view kCharsetForm = "CreateCharSet";
constexpr int kCancelled = 0, kConfirmed = 1;

// What shows a setting: a control of the form, or a part of its font.
using Place = std::variant<CheckBox configuration::*, OptionButton configuration::*, TextBox configuration::*, ComboBox configuration::*,
                           ColourBox configuration::*, std::string FontChoice::*, double FontChoice::*, bool FontChoice::*>;

struct ShownSetting {
  Setting setting;
  Place place;
};

// In the order in which they are written.
constexpr ShownSetting kShownSettings[] = {
    {Setting::HintShow, &configuration::ShowHint},
    {Setting::HintShowList, &configuration::ShowList},
    {Setting::SetupCarret, &configuration::SetupCarret},
    {Setting::ExtendLI, &configuration::ExtendLI},
    {Setting::WindowsManager, &configuration::WindowsManagerVisible},
    {Setting::StatusBar, &configuration::StatusBarVisible},
    {Setting::CommandLine, &configuration::CommandLineVisible},
    {Setting::FileManager, &configuration::FileManagerVisible},
    {Setting::Symbols, &configuration::SymbolsVisible},
    {Setting::CharSet, &configuration::saveformat},
    {Setting::CreateBackup, &configuration::CreateBackup},
    {Setting::IgnoreNumbers, &configuration::IgnoreNumbers},
    {Setting::IgnoreUpperCase, &configuration::IgnoreUpperCase},
    {Setting::AutoSaveActivated, &configuration::AutoSaveActivated},
    {Setting::AutoSaveTime, &configuration::AutoSaveTime},
    {Setting::FontName, &FontChoice::name},
    {Setting::FontSize, &FontChoice::size},
    {Setting::FontBold, &FontChoice::bold},
    {Setting::FontItalic, &FontChoice::italic},
    {Setting::FontUnderline, &FontChoice::underline},
    {Setting::FontStrikeThrough, &FontChoice::strikeThrough},
    {Setting::FontColor, &configuration::FontColor},
    {Setting::ImportExplorer, &configuration::ExplorerUse},
    {Setting::ImportNetscape, &configuration::NetscapeUse},
    {Setting::NetscapePath, &configuration::WhereIsNetscape},
    {Setting::UseColorize, &configuration::UseColorize},
    {Setting::GlobalColor, &configuration::GlobalColor},
    {Setting::TagsColor, &configuration::TagsColor},
    {Setting::LinksColor, &configuration::LinksColor},
    {Setting::CommentsColor, &configuration::CommentsColor},
    {Setting::Proxy, &configuration::Proxy},
};

std::string FlagText(bool value) { return value ? "True" : "False"; }

// Puts the text of a setting where it is shown.
struct Shower {
  configuration& form;
  FontChoice& font;
  const std::string& text;

  void operator()(CheckBox configuration::*box) const { (form.*box).SetValue(text == "True"); }
  void operator()(OptionButton configuration::*option) const { (text == "True" ? form.*option : form.ShowBlock).SetValue(true); }
  void operator()(TextBox configuration::*box) const { (form.*box).SetText(text); }
  void operator()(ComboBox configuration::*box) const { (form.*box).SetListIndex(text == kNoCharset ? -1 : (form.*box).ListFind(text)); }
  void operator()(ColourBox configuration::*box) const {
    if (text.empty())
      (form.*box).Unset();
    else
      (form.*box).SetValue(HexToRgb(text));
  }
  void operator()(std::string FontChoice::*part) const { font.*part = text; }
  void operator()(double FontChoice::*part) const { font.*part = LeadingNumber(text); }
  void operator()(bool FontChoice::*part) const { font.*part = text == "True"; }
};

// The text of a setting from where it is shown; `stored` for a list in which nothing is selected.
struct Reader {
  const configuration& form;
  const FontChoice& font;
  const std::string& stored;

  std::string operator()(CheckBox configuration::*box) const { return FlagText((form.*box).Value()); }
  std::string operator()(OptionButton configuration::*option) const { return FlagText((form.*option).Value()); }
  std::string operator()(TextBox configuration::*box) const { return (form.*box).Text(); }
  std::string operator()(ComboBox configuration::*box) const { return (form.*box).ListIndex() < 0 ? stored : (form.*box).SelectedRow(); }
  std::string operator()(ColourBox configuration::*box) const {
    return (form.*box).IsSet() ? ColorToHex((form.*box).Value()) : std::string();
  }
  std::string operator()(std::string FontChoice::*part) const { return font.*part; }
  std::string operator()(double FontChoice::*part) const { return NumberText(font.*part); }
  std::string operator()(bool FontChoice::*part) const { return FlagText(font.*part); }
};

bool IsOfColouring(Setting setting) { return setting >= Setting::UseColorize && setting <= Setting::CommentsColor; }

}  // namespace

configuration::configuration(Program& program) : Form("configuration", "Konfiguracja"), program_(program) {
  defaultButton = &Command2;
  cancelButton = &Command1;
  resizable = false;
  AutoSaveTime.WidthInCharacters = 6;
  Language.HeightInRows = 4;
  Browsers.HeightInRows = 7;
  Proxy.WidthInCharacters = 48;
  OnLoad = [this] { Form_Load(); };
  AutoSaveTime.OnLostFocus = [this] { AutoSaveTime_LostFocus(); };
  SetUpButtons();
  SetUpToolTips();
  SetUpLayout();
}

void configuration::SetUpButtons() {
  Command1.OnClick = [this] {
    program_.DialogChoice = kCancelled;
    Hide();
  };
  Command2.OnClick = [this] { Command2_Click(); };
  Command3.OnClick = [this] { Command3_Click(); };
  Command4.OnClick = [this] { AskForLanguage(program_, Language); };
  Command5.OnClick = [this] { Command5_Click(); };
  Command6.OnClick = [this] { Command6_Click(); };
  Command7.OnClick = [this] { Command7_Click(); };
  Command8.OnClick = [this] { Command8_Click(); };
  Browsers.OnDblClick = Command7.OnClick;
  WhereIsNetscapeFile.OnClick = [this] { ChooseBookmarkFile(); };
  for (ColourBox* box : {&FontColor, &GlobalColor, &TagsColor, &LinksColor, &CommentsColor})
    box->OnClick = [this, box] { ChooseColour(*box); };
}

void configuration::SetUpToolTips() {
  ShowHint.SetToolTip("Podpowiada atrybuty podczas pisania znacznika");
  ShowList.SetToolTip("Atrybuty na liście, z której można wybierać"_pl);
  ShowBlock.SetToolTip("Wszystkie atrybuty naraz, tylko do czytania");
  SetupCarret.SetToolTip("Nowa linia zaczyna się od tylu odstępów, co poprzednia"_pl);
  ExtendLI.SetToolTip("Nowa linia za elementem listy zaczyna się od znacznika LI"_pl);
  Command3.SetToolTip("Czcionka, którą pokazany jest tekst dokumentów"_pl);
  FontColor.SetToolTip("Kolor tekstu, gdy kolorowanie jest wyłączone"_pl);
  UseColorize.SetToolTip("Koloruje znaczniki, wartości ich atrybutów i komentarze"_pl);
  GlobalColor.SetToolTip("Kolor tekstu poza znacznikami, gdy kolorowanie jest włączone"_pl);
  TagsColor.SetToolTip("Kolor znaczników i nazw ich atrybutów"_pl);
  LinksColor.SetToolTip("Kolor wartości atrybutów"_pl);
  CommentsColor.SetToolTip("Kolor komentarzy");
  WindowsManagerVisible.SetToolTip("Zakładki otwartych plików nad tekstem"_pl);
  StatusBarVisible.SetToolTip("Komunikaty i położenie kursora na dole okna"_pl);
  CommandLineVisible.SetToolTip("Paski narzędzi na górze okna"_pl);
  FileManagerVisible.SetToolTip("Pliki i katalogi z boku okna");
  SymbolsVisible.SetToolTip("Listwa liter i znaków do wstawiania"_pl);
  CreateBackup.SetToolTip("Przy zapisie zachowuje poprzednią wersję w pliku .Bak"_pl);
  saveformat.SetToolTip("Zestaw znaków, w którym zapisywane są nowe dokumenty"_pl);
  Command8.SetToolTip("Tworzy nowy zestaw znaków"_pl);
  AutoSaveActivated.SetToolTip("Zapisuje co pewien czas dokument, który jest edytowany"_pl);
  AutoSaveTime.SetToolTip("Co ile minut; 0 wyłącza zapisywanie"_pl);
  IgnoreNumbers.SetToolTip("Nie sprawdza pisowni takich wyrazów"_pl);
  IgnoreUpperCase.SetToolTip("Nie sprawdza pisowni takich wyrazów"_pl);
  Language.SetToolTip("Języki, w których można sprawdzać pisownię"_pl).SetAccessibleName("Dostępne słowniki"_pl);
  Command4.SetToolTip("Dodaje język do listy"_pl);
  Browsers.SetToolTip("Przeglądarka w nawiasach klamrowych pokazuje podgląd strony"_pl).SetAccessibleName("Przeglądarki"_pl);
  Command5.SetToolTip("Dodaje program do listy");
  Command6.SetToolTip("Usuwa zaznaczoną przeglądarkę z listy"_pl);
  Command7.SetToolTip("Podgląd stron będzie w zaznaczonej przeglądarce"_pl);
  Proxy.SetToolTip("Adres i port pośrednika, na przykład proxy.firma.pl:8080; puste pole oznacza połączenie bezpośrednie"_pl)
      .SetAccessibleName("Adres serwera Proxy");
  ExplorerUse.SetToolTip("Pokazuje zakładki tej przeglądarki w panelu bocznym"_pl);
  NetscapeUse.SetToolTip("Pokazuje zakładki tej przeglądarki w panelu bocznym"_pl);
  WhereIsNetscape.SetToolTip("Plik z zakładkami tej przeglądarki"_pl);
  WhereIsNetscapeFile.SetToolTip("Wskazuje plik z zakładkami"_pl).SetAccessibleName("Wskaż plik z zakładkami"_pl);
}

void configuration::SetUpLayout() {
  using namespace layout;
  layout = Rows(Pages(Group("Edytor", Group("Podpowiedzi", ShowHint, ShowList, ShowBlock), Group("Klawisz ENTER", SetupCarret, ExtendLI)),
                      Group("Czcionka i kolory", Group("Czcionka", Label1, Columns(Command3, Field("Kolor &czcionki", FontColor))),
                            Group("Kolorowanie", UseColorize,
                                  Columns(Rows(Field("Kolor &tekstu", GlobalColor), Field("Kolor &znaczników"_pl, TagsColor)),
                                          Rows(Field("Kolor od&nośników"_pl, LinksColor), Field("Kolor &komentarzy", CommentsColor))))),
                      Group("Okno", WindowsManagerVisible, StatusBarVisible, CommandLineVisible, FileManagerVisible, SymbolsVisible),
                      Group("Dokument", CreateBackup, Group("Domyślny format zapisu"_pl, Field("&Format", saveformat, &Command8)),
                            Group("Autozapis", AutoSaveActivated, Columns(Field("&Zapisuj po", AutoSaveTime), minutes))),
                      Group("Pisownia", Group("Pomijaj", IgnoreNumbers, IgnoreUpperCase),
                            Group("Dostępne słowniki"_pl, Columns(Language, Rows(Command4, Stretch())))),
                      Group("Przeglądarki"_pl, Columns(Browsers, Rows(Command5, Command6, Command7, Stretch()))),
                      Group("Internet", Group("Adres serwera Proxy", Proxy), Group("Zakładki Explorera"_pl, ExplorerUse),
                            Group("Zakładki Netscape"_pl, NetscapeUse,
                                  Field("&Gdzie jest Netscape Navigator", WhereIsNetscape, &WhereIsNetscapeFile)))),
                ButtonRow(Command2, Command1));
}

void configuration::Form_Load() {
  ShowBusy(program_, "Zmiana konfiguracji...");
  program_.DialogChoice = kCancelled;
  FillCharsets();
  Settings settings(program_.MainIni);
  for (const ShownSetting& shown : kShownSettings) {
    const std::string text = settings.Text(shown.setting);
    std::visit(Shower{*this, font_, text}, shown.place);
  }
  const HintChoice hints = StoredHints(program_.MainIni);
  ShowHint.SetValue(hints.show);
  (hints.asList ? ShowList : ShowBlock).SetValue(true);
  ShowSample();
  Language.Clear();
  Language.AddItems(LanguageNames(program_.MainIni));
  Browsers.Clear();
  Browsers.AddItems(LoadBrowsers(program_.MainIni));
  Command8.SetVisible(program_.forms.CanShow(kCharsetForm));
  ShowReady(program_);
}

void configuration::FillCharsets() {
  saveformat.Clear();
  saveformat.AddItems(CharsetNames(program_));
}

void configuration::AutoSaveTime_LostFocus() { AutoSaveTime.SetText(NumberText(LeadingNumber(AutoSaveTime.Text()))); }

void configuration::Command2_Click() {
  ShowBusy(program_, "Zapisuję konfigurację"_pl);
  AutoSaveTime_LostFocus();
  Settings settings(program_.MainIni);
  for (const ShownSetting& shown : kShownSettings) {
    const std::string stored = settings.Text(shown.setting);
    const std::string text = std::visit(Reader{*this, font_, stored}, shown.place);
    if (IsOfColouring(shown.setting) && !EqualNoCase(text, stored)) program_.tagState.ColoursChanged = true;
    settings.SetText(shown.setting, text);
  }
  SaveBrowsers(program_.MainIni, Browsers.Rows());
  ShowReady(program_);
  ReadHints(program_);
  program_.DialogChoice = kConfirmed;
  Hide();
}

void configuration::Command3_Click() {
  if (const auto chosen = program_.platform.windows.AskFont(font_)) font_ = *chosen;
  ShowSample();
}

void configuration::ChooseColour(ColourBox& box) {
  if (const auto chosen = program_.platform.windows.AskColour(box.Value())) box.SetValue(*chosen);
  ShowSample();
}

// Text without a colour of its own has that of plain text.
void configuration::ShowSample() { Label1.Show(font_, FontColor.IsSet() ? FontColor.Value() : GlobalColor.Value()); }

void configuration::ChooseBookmarkFile() {
  FileRequest request;
  request.title = "Gdzie jest Netscape Navigator";
  request.filter = "Zakładki (*.htm,*.html)|*.htm;*.html|Wszystkie pliki (*.*)|*.*|"_pl;
  const std::string file = program_.platform.windows.AskFile(request).value_or("");
  if (!file.empty()) WhereIsNetscape.SetText(file);
}

void configuration::Command5_Click() {
  FileRequest request;
  request.title = "Wskaz przeglądarkę"_pl;
  request.filter = "Pliki wykonywalne (*.EXE)|*.exe|";
  const std::string file = program_.platform.windows.AskFile(request).value_or("");
  if (file.empty() || Browsers.ListFind(file) >= 0 || Browsers.ListFind(InBrackets(file)) >= 0) return;
  Browsers.AddItem(file);
  Browsers.SetListIndex(static_cast<int>(Browsers.ListCount()) - 1);
}

void configuration::Command6_Click() {
  if (Browsers.ListIndex() >= 0) Browsers.RemoveItem(static_cast<std::size_t>(Browsers.ListIndex()));
}

void configuration::Command7_Click() {
  if (Browsers.ListIndex() < 0) return;
  for (std::size_t row = 0; row < Browsers.ListCount(); ++row) {
    const std::string browser(WithoutBrackets(Browsers.List(row)));
    Browsers.SetRow(row, static_cast<int>(row) == Browsers.ListIndex() ? InBrackets(browser) : browser);
  }
}

void configuration::Command8_Click() {
  const std::string selected = saveformat.SelectedRow();
  program_.forms.ShowByName(kCharsetForm);
  FillCharsets();
  saveformat.SetListIndex(saveformat.ListFind(selected));
}

void ShowConfiguration(Program& program) {
  program.platform.windows.ShowModal(program.forms.Get<configuration>());
  if (program.DialogChoice == kConfirmed) ApplySettings(program);
}

}  // namespace morlan
