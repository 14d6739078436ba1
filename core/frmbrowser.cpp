#include "core/frmbrowser.h"

#include "core/menus.h"
#include "core/preview.h"

namespace morlan {
namespace {

constexpr std::string_view kName = "frmBrowser";

struct ButtonRow {
  std::string_view key, toolTip, icon, shortcut;
  void (WebBrowser::*act)();
};

constexpr ButtonRow kButtons[] = {
    {"Back", "Wstecz (Alt+Lewo)", "previous", "Alt+Left", &WebBrowser::Back},
    {"Forward", "Dalej (Alt+Prawo)", "next", "Alt+Right", &WebBrowser::Forward},
    {"Refresh", "Odśwież stronę (F5)"_pl, "refresh", "F5", &WebBrowser::Refresh},
    {"Home", "Strona, od której zaczęto (Alt+Home)"_pl, "home", "Alt+Home", &WebBrowser::Home},
    {"Search", "Szukaj na stronie (Ctrl+F)", "find", "Ctrl+F", &WebBrowser::Search},
    {"Stop", "Zatrzymaj otwieranie strony", "stop", "", &WebBrowser::Stop},
};
constexpr std::string_view kAddressShortcut = "Ctrl+L";

bool IsShortcut(const KeyPress& press, std::string_view shortcut) {
  const KeyPress meant = KeyFromText(shortcut);
  return meant.code != 0 && meant.code == press.code && meant.shift == press.shift;
}

}  // namespace

FrmBrowser::FrmBrowser(Program& program) : Form(kName, "Podgląd"_pl), program_(program) {
  for (const ButtonRow& row : kButtons)
    tbToolBar.Add({.key = std::string(row.key), .toolTip = std::string(row.toolTip), .icon = std::string(row.icon)});
  tbToolBar.OnButtonClick = [this](const std::string& key) { tbToolBar_ButtonClick(key); };
  cboAddress.WidthInCharacters = 40;
  cboAddress.SetToolTip("Adres strony (Ctrl+L): plik albo miejsce w sieci"_pl);
  cboAddress.OnClick = [this] { Navigate(cboAddress.Text()); };
  cboAddress.OnKeyDown = [this](KeyPress& press) { cboAddress_KeyPress(press); };
  brwWebBrowser.SetAccessibleName("Strona"_pl);
  brwWebBrowser.OnDownloadComplete = [this] { brwWebBrowser_DownloadComplete(); };
  timTimer.OnTimer = [this] { timTimer_Timer(); };
  OnLoad = [this] { Form_Load(); };
  OnKeyDown = [this](KeyPress& press) { Form_KeyDown(press); };
  OnUnload = [this] {
    timTimer.SetEnabled(false);
    brwWebBrowser.Stop();
  };
  firstFocus = &brwWebBrowser;
  layout = layout::Rows(layout::Columns(tbToolBar, layout::Field("&Adres:", cboAddress)), brwWebBrowser);
}

void FrmBrowser::Form_Load() {
  const std::string address = program_.DialogResult;
  if (address.empty()) return;
  brwWebBrowser.HomeAddress = address;
  cboAddress.SetText(address);
  Navigate(address);
}

void FrmBrowser::Form_KeyDown(KeyPress& press) {
  if (IsShortcut(press, kAddressShortcut)) {
    cboAddress.SetFocus();
    press.code = 0;
  }
  for (const ButtonRow& row : kButtons) {
    if (!IsShortcut(press, row.shortcut)) continue;
    tbToolBar_ButtonClick(row.key);
    press.code = 0;
  }
}

void FrmBrowser::tbToolBar_ButtonClick(std::string_view key) {
  for (const ButtonRow& row : kButtons) {
    if (row.key != key) continue;
    timTimer.SetEnabled(row.act != &WebBrowser::Stop);
    (brwWebBrowser.*row.act)();
  }
}

void FrmBrowser::cboAddress_KeyPress(KeyPress& press) {
  if (press.code != key::kEnter) return;
  press.code = 0;
  Navigate(cboAddress.Text());
}

void FrmBrowser::Navigate(std::string_view address) {
  shownAddress_ = address;
  timTimer.SetEnabled(true);
  brwWebBrowser.Navigate(shownAddress_);
  brwWebBrowser.SetFocus();
}

void FrmBrowser::brwWebBrowser_DownloadComplete() {
  timTimer.SetEnabled(false);
  SetCaption(brwWebBrowser.LocationName());
  const std::string& address = brwWebBrowser.LocationURL();
  if (address.empty()) return;
  if (cboAddress.IndexOf(address) < 0) cboAddress.AddItem(address);
  // What the user types meanwhile stays, unless a link has led elsewhere.
  if (address != shownAddress_) cboAddress.SetText(address);
  shownAddress_ = address;
}

void FrmBrowser::timTimer_Timer() {
  if (brwWebBrowser.Busy()) return SetCaption("Otwieram...");
  timTimer.SetEnabled(false);
}

void ShowViewer(Program& program, std::string_view address) {
  FrmBrowser& viewer = program.forms.Get<FrmBrowser>();
  program.DialogResult = address;
  if (viewer.IsVisible())
    viewer.Form_Load();
  else
    program.platform.windows.ShowInside(viewer);
}

void HideViewer(Program& program) {
  if (FrmBrowser* viewer = ShownViewer(program)) viewer->Hide();
}

FrmBrowser* ShownViewer(Program& program) {
  auto* viewer = static_cast<FrmBrowser*>(program.forms.FindMade(kName));
  return viewer && viewer->IsVisible() ? viewer : nullptr;
}

}  // namespace morlan
