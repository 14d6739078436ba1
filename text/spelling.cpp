#include "text/spelling.h"

#include <algorithm>
#include <memory>
#include <string>

#include "core/defs.h"
#include "core/document.h"
#include "core/settings.h"
#include "core/status.h"
#include "core/text.h"
#include "tags/metatags.h"
#include "text/maindictionary.h"
#include "text/mlndictionary.h"
#include "text/selectlanguage.h"
#include "text/wordnotfound.h"

namespace morlan {
namespace {

struct LanguageRow {
  std::string_view extension;
  std::uint8_t number;
};
constexpr LanguageRow kLanguages[] = {{"pol", 1}, {"ang", 2}};

std::uint8_t LanguageNumberOf(std::string_view extension) {
  for (const LanguageRow& row : kLanguages)
    if (EqualNoCase(row.extension, extension)) return row.number;
  return 0;
}

// Empty for a language that is not in the list.
std::string ExtensionOf(Program& program, std::string_view language) {
  Settings settings(program.MainIni);
  const std::int32_t count = settings.Integer(Setting::LanguageCount);
  for (std::int32_t number = 1; number <= count; ++number)
    if (EqualNoCase(settings.Text(Setting::Language, number), language)) return settings.Text(Setting::LanguageExtension, number);
  return {};
}

std::shared_ptr<TEditor> ActiveDocumentOf(const Program& program) {
  const auto& documents = program.documents;
  return *std::find_if(documents.begin(), documents.end(), [&](const auto& document) { return document.get() == program.ActiveDocument; });
}

// One run of the control over the active document.
class Check {
 public:
  Check(Program& program, std::string_view extension)
      : program_(program),
        document_(ActiveDocumentOf(program)),
        control_(program.platform.files),
        dialog_(program.forms.Get<WordNotFound>()) {
    Settings settings(program.MainIni);
    control_.File = {MainDictionaryPath(program, extension), AutomatonPath(program, extension), UserDictionaryPath(program, extension)};
    control_.IgnoreUpperCase = settings.Flag(Setting::IgnoreUpperCase);
    control_.IgnoreNumbers = settings.Flag(Setting::IgnoreNumbers);
    control_.Language = LanguageNumberOf(extension);
    control_.Text = document_->EditedText.Text();
    control_.MlnDictionary_MissSpeld = [this](const std::string& word, std::string& replacement, std::size_t start, std::size_t length) {
      MissSpeld(word, replacement, start, length);
    };
    control_.MlnDictionary_MissSpeldSelection = [this](std::size_t start, std::size_t length) { SelectWord(start, length); };
    control_.MlnDictionary_NextPartDone = [this](int percent, std::size_t words) { NextPartDone(percent, words); };
    control_.MlnDictionary_CheckingFinished = [this] { End("Sprawdzanie pisowni zakończone"_pl); };
    control_.MlnDictionary_CheckingStoped = [this] { End("Sprawdzanie pisowni przerwane"_pl); };
    control_.MlnDictionary_NoDictionary = [this] {
      ShowError(program_, Concat({"Brak słownika : "_pl, control_.File[MlnDictionary::kBits]}));
    };
    dialog_.Dictionary = &control_;
  }
  ~Check() { dialog_.Dictionary = nullptr; }

  void Run() { control_.Start(); }

 private:
  void SelectWord(std::size_t start, std::size_t length) {
    const std::ptrdiff_t offset = control_.TextOffset + static_cast<std::ptrdiff_t>(start) - 1;
    document_->EditedText.Select(static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0)), length);
  }

  void MissSpeld(const std::string& word, std::string& replacement, std::size_t start, std::size_t length) {
    program_.DialogResult = word;
    program_.platform.windows.ShowModal(dialog_);
    const auto choice = static_cast<WordChoice>(program_.DialogChoice);
    if (choice == WordChoice::Stop || choice == WordChoice::None) control_.Stop();
    if (choice != WordChoice::Change) return;
    replacement = dialog_.Replacement;
    Replace(replacement, start, length);
  }

  void Replace(const std::string& replacement, std::size_t start, std::size_t length) {
    MlnEditor& editor = document_->EditedText;
    SelectWord(start, length);
    document_->UNDO.AddChange(editor.SelStart(), length, replacement, editor.SelText(), ChangeKind::Replacement);
    document_->ReplaceAndColour(replacement);
    control_.TextOffset += static_cast<std::ptrdiff_t>(replacement.size()) - static_cast<std::ptrdiff_t>(length);
  }

  void NextPartDone(int percent, std::size_t words) {
    ShowInPanel(
        program_, 1,
        Concat({"Pisownia...", NumberText(std::int64_t{percent}), " % (", NumberText(static_cast<std::int64_t>(words)), " słów)"_pl}));
    if (program_.platform.windows.YieldToEscape()) control_.Stop();
  }

  void End(std::string_view message) {
    program_.platform.windows.Message({.text = std::string(message)});
    ShowReady(program_);
  }

  Program& program_;
  std::shared_ptr<TEditor> document_;  // outlives its window
  MlnDictionary control_;
  WordNotFound& dialog_;
};

}  // namespace

void mn_checkspeeling_Click(Program& program) {
  const bool isRunning = program.forms.Get<WordNotFound>().Dictionary != nullptr;
  if (!program.ActiveDocument || isRunning) return;
  std::string language = GetMetaContent(program, "Language");
  if (language.empty()) {
    program.platform.windows.ShowModal(program.forms.Get<SelectLanguage>());
    if (program.ActiveDocument) language = GetMetaContent(program, "Language");
  }
  if (language.empty() || !program.ActiveDocument) return;
  Check(program, ExtensionOf(program, language)).Run();
}

}  // namespace morlan
