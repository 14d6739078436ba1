#include "tests/support/trialform.h"

#include "platform/platform.h"

namespace morlan {

TrialForm::TrialForm(Program& program) : Form("TrialForm", "Próba"_pl) {
  wybor.AddItems({"jeden", "dwa", "trzy"});
  adres.AddItems({"a.html", "b.html"});
  lista.AddItems({"Ala", "ma", "kota"});
  wiele.AddItems({"x", "y", "z"});
  karty.Add({.key = "k1", .text = "Pierwsza", .tag = ""});
  karty.Add({.key = "k2", .text = "Druga", .tag = ""});
  pasek.Add({.key = "bold", .toolTip = "", .icon = ""});
  pasek.Add({.key = "off", .toolTip = "", .icon = "", .enabled = false});
  ukryty.SetVisible(false);
  nieczynny.SetEnabled(false);
  defaultButton = &Command2;
  cancelButton = &Command1;
  nazwa.OnGotFocus = [this] { events.push_back("nazwa+"); };
  nazwa.OnLostFocus = [this] { events.push_back("nazwa-"); };
  nazwa.OnKeyDown = [](KeyPress& press) {
    if (press.code == key::kF1) press.code = 0;
  };
  NoteRows(wybor);
  NoteRows(lista);
  duze.OnClick = [this] { events.push_back("duze " + duze.ValueText()); };
  prawa.OnClick = [this] { events.push_back("prawa"); };
  lista.OnDblClick = [this] { events.push_back("lista dbl"); };
  pasek.OnButtonClick = [this](const std::string& key) { events.push_back("pasek " + key); };
  obraz.OnMouseDown = [this](MouseButton, int x, int y) { events.push_back("down " + std::to_string(x) + "," + std::to_string(y)); };
  obraz.OnMouseUp = [this](MouseButton, int x, int y) { events.push_back("up " + std::to_string(x) + "," + std::to_string(y)); };
  obraz.OnClick = [this] { events.push_back("obraz"); };
  Command1.OnClick = [this] { Hide(); };
  Command2.OnClick = [this] {
    events.push_back("ok");
    Hide();
  };
  Command3.OnClick = [this, &program] {
    const Answer answer = program.platform.windows.Message({.text = "Na pewno ?", .icon = Icon::Question, .buttons = Buttons::YesNoCancel});
    events.push_back(answer == Answer::Yes ? "tak" : answer == Answer::No ? "nie" : "anuluj");
  };
}

void TrialForm::NoteRows(RowControl& control) {
  control.OnChange = [this, &control] { events.push_back(control.Name() + " " + control.SelectedRow()); };
}

void RegisterTrialForm(Program& program) {
  program.forms.OnShow("TrialForm", [&program] { program.platform.windows.ShowModal(program.forms.Get<TrialForm>()); });
  program.forms.OnShow("TrialTool", [&program] { program.platform.windows.Show(program.forms.Get<TrialForm>()); });
}

}  // namespace morlan
