#include "tags/propertiesparam.h"

#include "tests/tags/sheetfixture.h"

namespace morlan {
namespace {

class PropertiesParamTest : public SheetTest {
 protected:
  // Changes a parameter of "input" (a new one, when the name is empty) and answers with what was written.
  std::optional<ParamRecord> Saved(std::string_view param, const std::function<void()>& change) {
    form.Load("input", param);
    change();
    form.Command2.UserClicks();
    if (form.Saved().empty()) return std::nullopt;
    const auto params = PropertyFile(test_.Read("program\\Morlan7.tpf")).Params(1).value_or(std::vector<ParamRecord>());
    for (const ParamRecord& record : params)
      if (record.name == form.Saved()) return record;
    return std::nullopt;
  }
  std::string Visible() const {
    std::string names;
    for (const Control* control : form.Controls())
      if (control->Visible() && !control->Name().starts_with("Command")) names += Concat({names.empty() ? "" : " ", control->Name()});
    return names;
  }
  PropertiesParam& form = test_.program.forms.Get<PropertiesParam>();
};

using Rows = std::vector<std::string>;

TEST_F(PropertiesParamTest, TheKindsAndDialogsAreListedInTheirOrder) {
  EXPECT_EQ(form.Caption(), "Parametry znacznika");
  EXPECT_EQ(form.Style.Rows(),
            (Rows{"Kolor", "Tekst", "Lista", "Lista z pliku", std::string("Przełącznik"_pl), "Zdarzenie", "Styl!", "Okienko dialogowe"}));
  EXPECT_EQ(form.DialogType.Rows(), (Rows{"Kolor", "Pliki graficzne", "Pliki HTML", "Wszystkie pliki"}));
}

TEST_F(PropertiesParamTest, OnlyTheFieldsOfTheKindAreShown) {
  form.Load("input", "");
  const std::pair<int, std::string_view> rows[] = {
      {0, "Info name_ Style DefaultValue"},
      {1, "Info name_ Style DefaultValue"},
      {2, "Info name_ Style DefaultValue UseFile Content AddButton DelButton"},
      {3, "Info name_ Style DefaultValue UseFile FileList"},
      {4, "Info name_ Style DefaultValue"},
      {5, "Info name_ Style DefaultValue"},
      {6, "Info name_ Style"},
      {7, "Info name_ Style DefaultValue DialogType DialogVisible"},
  };
  for (const auto& [kind, expected] : rows) {
    form.Style.UserSelects(kind);
    EXPECT_EQ(Visible(), expected) << kind;
  }
}

TEST_F(PropertiesParamTest, TheFieldsShowTheRecord) {
  form.Load("input", "type");
  EXPECT_EQ(form.Info.Text(), "Pole formularza");
  EXPECT_EQ(form.name_.Text(), "type");
  EXPECT_EQ(form.Style.Text(), "Lista");
  EXPECT_EQ(form.Content.Rows(), (Rows{"text", "checkbox"}));
  EXPECT_EQ(form.DefaultValue.Rows(), (Rows{"text", "checkbox"}));
  form.Load("input", "target");
  EXPECT_TRUE(form.UseFile.Value());
  EXPECT_EQ(form.FileList.Text(), "Cele");
  EXPECT_EQ(form.FileList.Rows(), Rows{"Cele"});
  form.Load("input", "src");
  EXPECT_EQ(form.DialogType.Text(), "Pliki graficzne");
}

TEST_F(PropertiesParamTest, ANewParameterIsSaved) {
  const auto saved = Saved("", [&] {
    form.name_.UserSets(" maxlength ");
    form.DefaultValue.UserSets("10");
    form.Info.UserSets("Nowy opis");
  });
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->name, "maxlength");
  EXPECT_EQ(saved->kind, ParamKind::Text);
  EXPECT_EQ(saved->defaultValue, "10");
  EXPECT_FALSE(saved->builtIn);
  EXPECT_EQ(SheetsOf(test_.program).File().Tags()[0].info, "Nowy opis");
}

TEST_F(PropertiesParamTest, TheFileSwitchChangesTheKind) {
  const auto saved = Saved("type", [&] {
    form.UseFile.UserSets(true);
    EXPECT_EQ(form.Style.Text(), "Lista z pliku");
    form.FileList.UserSets("Cele");
  });
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->kind, ParamKind::ListFromFile);
  EXPECT_EQ(saved->listFile, "Cele");
  EXPECT_TRUE(saved->values.empty());
  form.UseFile.UserSets(false);
  EXPECT_EQ(form.Style.Text(), "Lista");
}

TEST_F(PropertiesParamTest, ValuesAreAddedAndRemoved) {
  test_.windows.inputs = {"radio", std::nullopt, "radio", ""};
  test_.Asked();
  const auto saved = Saved("type", [&] {
    for (int i = 0; i < 4; ++i) form.AddButton.UserClicks();
    form.Content.UserSelects(0);
    form.DelButton.UserClicks();
  });
  EXPECT_EQ(test_.Asked().front(), "input \"Podaj nową domyślną wartość\" \"Nowa wartość\" \"\"");
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->values, (Rows{"checkbox", "radio"}));
}

TEST_F(PropertiesParamTest, AColourWithoutADefaultIsZero) {
  EXPECT_EQ(Saved("bgcolor", [&] { EXPECT_EQ(form.DefaultValue.Text(), ""); })->defaultValue, "0");
  EXPECT_EQ(Saved("bgcolor", [&] { form.DefaultValue.UserSets("Navy"); })->defaultValue, "Navy");
}

TEST_F(PropertiesParamTest, ADialogKeepsItsTypeAndItsButton) {
  const auto saved = Saved("src", [&] {
    form.DialogType.UserSelects(2);
    form.DialogVisible.UserSets(false);
  });
  ASSERT_TRUE(saved);
  EXPECT_EQ(saved->dialogType, ParamDialog::Pages);
  EXPECT_FALSE(saved->dialogVisible);
}

TEST_F(PropertiesParamTest, ANameIsNeededAndMustBeFree) {
  test_.Asked();
  EXPECT_FALSE(Saved("", [] {}));
  EXPECT_FALSE(Saved("", [&] { form.name_.UserSets("TYPE"); }));
  EXPECT_EQ(test_.Asked(),
            (Record{"message \"Podaj nazwę parametru\" \"Morlan7\" stop ok", "message \"Parametr jest już dodany\" \"Morlan7\" stop ok"}));
  EXPECT_TRUE(Saved("type", [&] { form.name_.UserSets("Type"); })) << "its own name is free";
}

TEST_F(PropertiesParamTest, ABuiltInParameterKeepsItsNameAndItsMark) {
  const auto saved = Saved("checked", [&] {
    EXPECT_FALSE(form.name_.UserSetsText("x"));
    form.DefaultValue.UserSets("TRUE");
  });
  ASSERT_TRUE(saved);
  EXPECT_TRUE(saved->builtIn);
  EXPECT_EQ(saved->defaultValue, "TRUE");
}

TEST_F(PropertiesParamTest, CancelWritesNothing) {
  const std::string before = test_.Read("program\\Morlan7.tpf");
  form.Load("input", "type");
  form.name_.UserSets("x");
  form.Command1.UserClicks();
  EXPECT_EQ(test_.Read("program\\Morlan7.tpf"), before);
  EXPECT_EQ(form.Saved(), "");
}

}  // namespace
}  // namespace morlan
