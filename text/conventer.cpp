#include "text/conventer.h"

#include "core/documents.h"
#include "core/paths.h"
#include "core/safetystore.h"
#include "core/status.h"
#include "core/text.h"
#include "text/pageconversion.h"

namespace morlan {
namespace {

constexpr std::string_view kUtf8 = "UTF-8";
constexpr std::string_view kTargetFilter = "Plik HTML (*.html,*.htm,shtml)|*.html;*.htm,*.shtml|Plik tekstowy (*.txt)|*.txt|";
constexpr std::string_view kProjectFilter = "Projekt (*.pro)|*.pro|";
constexpr std::string_view kCancelCaption = "&Anuluj", kStopCaption = "Prz&erwij";

std::string Number(std::size_t number) { return NumberText(static_cast<std::int64_t>(number)); }

}  // namespace

Conventer::Conventer(Program& program) : Form("Conventer", "Konwerter formatów"_pl), program_(program) {
  DescribeControls();
  OnLoad = [this] { Form_Load(); };
  FileButton.OnClick = [this] { ChooseFile(); };
  DirectoryButton.OnClick = [this] { ChooseDirectory(); };
  ConvertType.OnClick = [this] { ConvertType_Click(); };
  FileName.OnChange = [this] { ConvertType.SetValue(FileName.Text().starts_with('@')); };
  Command2.OnClick = [this] { Command2_Click(); };
  Command1.OnClick = [this] { Command1_Click(); };
  Step.OnTimer = [this] { Step_Timer(); };
  // A window that is closed in the middle of the work stops it first.
  OnQueryUnload = [this] {
    const bool ran = runs_;
    if (ran) Command1_Click();
    return !ran;
  };
  layout = layout::Rows(layout::Group("Pliki źródłowe"_pl, layout::Field("&Plik lub katalog", FileName, &FileButton),
                                      layout::Columns(ConvertType, Subfolders, layout::Stretch(), DirectoryButton)),
                        layout::Group("Pliki wyjściowe"_pl, layout::Field("&Format", FormatList), layout::Columns(AskForName, OverWrite)),
                        Progress, layout::Field("&Uwagi", Report), layout::ButtonRow(Command2, Command1));
  defaultButton = &Command2;
  cancelButton = &Command1;
  firstFocus = &FileName;
}

void Conventer::DescribeControls() {
  FileName.WidthInCharacters = 44;
  Report.HeightInRows = 5;
  FileName.SetToolTip("Strona, katalog ze stronami albo projekt: znak @ i jego nazwa"_pl);
  FileButton.SetToolTip("Wskaż stronę albo projekt"_pl).SetAccessibleName("Wskaż plik"_pl);
  DirectoryButton.SetToolTip("Wskaż katalog, którego strony mają być przekształcone"_pl);
  ConvertType.SetToolTip("Źródłem są wszystkie pliki projektu"_pl);
  Subfolders.SetToolTip("Także strony z katalogów leżących we wskazanym"_pl);
  FormatList.SetToolTip("Zestaw znaków, w którym strony zostaną zapisane"_pl);
  AskForName.SetToolTip("Przy każdym pliku pyta, pod jaką nazwą go zapisać"_pl);
  OverWrite.SetToolTip("Nowa treść zastępuje plik źródłowy"_pl);
  Report.SetToolTip("Pliki, których nie przekształcono albo w których zmieniły się znaki"_pl);
  Progress.SetAccessibleName("Postęp"_pl);
}

void Conventer::Form_Load() {
  const std::string target = FormatList.SelectedRow();
  FormatList.Clear();
  FormatList.AddItem(kUtf8);
  FormatList.AddItems(LoadCharSets(program_).CharSetNames());
  FormatList.SetListIndex(FormatList.IndexOf(target.empty() ? kUtf8 : target));
}

void Conventer::ChooseFile() {
  FileRequest request = OpenRequest(program_);
  if (ConvertType.Value()) {
    request.title = "Wskaż projekt"_pl;
    request.filter = kProjectFilter;
    request.directory = Concat({program_.ProgramPath, "PROJEKTY"});
  }
  const std::string name = program_.platform.windows.AskFile(request).value_or("");
  if (name.empty()) return;
  FileName.SetText(ConvertType.Value() ? Concat({"@", StripExtension(FileNameOf(name))}) : name);
}

void Conventer::ChooseDirectory() {
  const auto directory = program_.platform.windows.AskDirectory("Wskaż katalog ze stronami"_pl, FileName.Text());
  if (!directory || directory->empty()) return;
  FileName.SetText(*directory);
  ConvertType.SetValue(false);
}

void Conventer::ConvertType_Click() {
  const std::string name = FileName.Text();
  const bool isProject = name.starts_with('@');
  if (ConvertType.Value() && !isProject) FileName.SetText(Concat({"@", name}));
  if (!ConvertType.Value() && isProject) FileName.SetText(name.substr(1));
}

void Conventer::Command2_Click() {
  if (FormatList.ListIndex() < 0) return ShowError(program_, "Nie wskazany format plików wyjściowych. Proszę wskazać."_pl);
  if (!AskForName.Value() && !OverWrite.Value())
    return ShowError(program_, "Proszę zaznaczyć pytanie o nazwę albo nadpisywanie plików źródłowych."_pl);
  const std::string_view source = Trim(FileName.Text());
  if (source.empty()) return ShowError(program_, "Nie wskazane pliki źródłowe. Proszę wskazać."_pl);
  pages_ = PagesOfSource(program_, source, Subfolders.Value() ? Subdirectories::Yes : Subdirectories::No);
  if (pages_.empty()) return ShowError(program_, "Nie ma plików do przekształcenia !"_pl);
  sets_ = LoadCharSets(program_);
  next_ = converted_ = 0;
  Report.Clear();
  SwitchControls(false);
  runs_ = true;
  ShowProgress();
  Step.SetEnabled(true);
}

void Conventer::Command1_Click() {
  if (!runs_) return Hide();
  Finish(End::Stopped);
}

void Conventer::Step_Timer() {
  // A question about one page must not let the next one begin.
  Step.SetEnabled(false);
  if (!runs_) return;
  const std::string path = pages_[next_++];
  ConvertFile(path);
  if (!runs_) return;  // stopped behind the question
  if (next_ == pages_.size()) return Finish(End::Done);
  ShowProgress();
  Step.SetEnabled(true);
}

void Conventer::ConvertFile(const std::string& path) {
  auto bytes = program_.platform.files.Read(path);
  if (!bytes) return Note(path, "nie można odczytać"_pl);
  const std::string target = TargetOf(path);
  if (target.empty()) return Note(path, "pominięty"_pl);
  ConvertedPage page = ConvertPage(program_, sets_, *bytes, path, FormatList.SelectedRow());
  if (page.isRefused) return Note(path, "pominięty: nie podaje zestawu znaków, a jest zapisany w UTF-8"_pl);
  if (!program_.platform.files.Write(target, page.bytes)) return Note(path, "nie można zapisać, plik pozostał bez zmian"_pl);
  if (target == path && program_.safety) program_.safety->KeepReplaced(path, std::move(*bytes));
  ++converted_;
  if (!page.isWhole) Note(path, "zawiera znaki spoza zestawu, zapis mógł je zmienić"_pl);
}

// Where the page is written; empty where the user gives no name.
std::string Conventer::TargetOf(const std::string& path) {
  if (!AskForName.Value()) return path;
  FileRequest request;
  request.mode = FileRequest::Mode::Save;
  request.title = Concat({"Podaj nową nazwę dla pliku "_pl, FileNameOf(path)});
  request.filter = kTargetFilter;
  request.directory = PathOf(path);
  if (request.directory.empty()) request.directory = program_.platform.files.CurrentDirectory();
  request.fileName = FileNameOf(path);
  request.extension = ".html";
  request.overwritePrompt = !OverWrite.Value();
  std::string name = program_.platform.windows.AskFile(request).value_or("");
  if (!name.empty() && FileNameOf(name).find('.') == std::string::npos) name += request.extension;
  return name;
}

void Conventer::ShowProgress() {
  Progress.SetCaption(Concat({"Plik ", Number(next_ + 1), " z ", Number(pages_.size()), ": ", FileNameOf(pages_[next_])}));
}

void Conventer::Finish(End end) {
  runs_ = false;
  Step.SetEnabled(false);
  SwitchControls(true);
  Progress.SetCaption(
      Concat({"Przekształcono plików: "_pl, Number(converted_), " z ", Number(pages_.size()), end == End::Stopped ? ", przerwano" : ""}));
  ShowReady(program_);
}

void Conventer::Note(const std::string& path, std::string_view text) { Report.AddItem(Concat({path, ": ", text})); }

void Conventer::SwitchControls(bool enabled) {
  const std::initializer_list<Control*> controls = {&FileName,   &FileButton, &DirectoryButton, &ConvertType, &Subfolders,
                                                    &FormatList, &AskForName, &OverWrite,       &Command2};
  for (Control* control : controls) control->SetEnabled(enabled);
  Command1.SetCaption(enabled ? kCancelCaption : kStopCaption);
}

void ShowConventer(Program& program) { program.platform.windows.ShowModal(program.forms.Get<Conventer>()); }

}  // namespace morlan
