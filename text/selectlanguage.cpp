#include "text/selectlanguage.h"

#include "core/languages.h"
#include "tags/metatags.h"

namespace morlan {

SelectLanguage::SelectLanguage(Program& program) : Form("SelectLanguage", "Wybór języka dokumentu"_pl), program_(program) {
  Command3.OnClick = [this] { TakeLanguage(); };
  Command2.OnClick = [this] { Hide(); };
  Command1.OnClick = [this] { AskForLanguage(program_, Language); };
  Language.OnDblClick = [this] { Command3.UserClicks(); };
  OnLoad = [this] { Form_Load(); };

  Language.HeightInRows = 6;
  Language.SetToolTip("Języki, które mają słownik; wybrany zostanie zapisany w znaczniku META dokumentu"_pl);
  Command1.SetToolTip("Dodaje język do listy"_pl);
  layout =
      layout::Rows(layout::Field("W &jakim języku tworzony jest dokument ?"_pl, Language), layout::ButtonRow(Command3, Command2, Command1));
  defaultButton = &Command3;
  cancelButton = &Command2;
  firstFocus = &Language;
}

void SelectLanguage::Form_Load() {
  Language.Clear();
  Language.AddItems(LanguageNames(program_.MainIni));
  const int row = Language.ListFind(GetMetaContent(program_, "Language"));
  Language.SetListIndex(row < 0 ? 0 : row);
}

void SelectLanguage::TakeLanguage() {
  if (const std::string language = Language.SelectedRow(); !language.empty()) SetMeta(program_, "NAME", "Language", language);
  Hide();
}

}  // namespace morlan
