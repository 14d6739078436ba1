#include "core/browsers.h"

#include <algorithm>

#include "core/defs.h"
#include "core/paths.h"
#include "core/preview.h"
#include "core/settings.h"

namespace morlan {
Browsers::Browsers(Program& program) : Form("Browsers", "Przeglądarki"_pl), program_(program) {
  List.SetAccessibleName("Przeglądarki"_pl);
  List.SetToolTip("Przeglądarka, która ma pokazać stronę"_pl);
  List.HeightInRows = 6;
  List.OnClick = [this] { List_Click(); };
  List.OnKeyDown = [this](KeyPress& press) { List_KeyDown(press); };
  OnLoad = [this] { Form_Load(); };
  firstFocus = &List;
  layout = layout::Rows(Hint, List);
}

void Browsers::Form_Load() {
  paths_.clear();
  List.Clear();
  Settings settings(program_.MainIni);
  const std::int32_t count = settings.Integer(Setting::BrowserCount);
  for (std::int32_t n = 1; n <= count; ++n) {
    std::string path = settings.Text(Setting::Browser, n);
    if (path.empty()) continue;
    List.AddItem(StripExtension(FileNameOf(path)));
    paths_.push_back(std::move(path));
  }
  List.SetListIndex(0);
  Hint.SetVisible(paths_.empty());
}

// To choose a row by mouse is to click it, which must not come of a key that only moves.
void Browsers::List_KeyDown(KeyPress& press) {
  const int row = List.ListIndex(), last = static_cast<int>(List.ListCount()) - 1;
  switch (press.code) {
    case key::kUp:
      List.SetListIndex(std::max(0, row - 1));
      break;
    case key::kDown:
      List.SetListIndex(std::min(last, row + 1));
      break;
    case key::kHome:
      List.SetListIndex(0);
      break;
    case key::kEnd:
      List.SetListIndex(last);
      break;
    case key::kEnter:
    case key::kSpace:
      List_Click();
      break;
    default:
      return;
  }
  press.code = 0;
}

void Browsers::List_Click() {
  if (!IsVisible() || List.ListIndex() < 0) return;
  const std::string path = paths_[static_cast<std::size_t>(List.ListIndex())];
  Hide();
  PreviewInBrowser(program_, path);
}

void ShowBrowsers(Program& program) { program.platform.windows.ShowModal(program.forms.Get<Browsers>()); }

}  // namespace morlan
