// The internal viewer: a small web browser in the client area of the main window.
#pragma once

#include <string>
#include <string_view>

#include "core/defs.h"
#include "platform/encoding.h"
#include "platform/forms/controls.h"
#include "platform/forms/webbrowser.h"

namespace morlan {

class FrmBrowser : public Form {
 public:
  explicit FrmBrowser(Program& program);

  ToolBar tbToolBar{*this, "tbToolBar"};
  ComboBox cboAddress{*this, "cboAddress"};
  WebBrowser brwWebBrowser{*this, "brwWebBrowser"};
  Timer timTimer{*this, "timTimer", 250, false};

  // Goes to the address in DialogResult, if there is one.
  void Form_Load();

 private:
  void Form_KeyDown(KeyPress& press);
  void tbToolBar_ButtonClick(std::string_view key);
  void cboAddress_KeyPress(KeyPress& press);
  void brwWebBrowser_DownloadComplete();
  void timTimer_Timer();
  void Navigate(std::string_view address);

  Program& program_;
  std::string shownAddress_;  // that the program has put into the address box
};

// Shows the viewer in the place of the documents, with that page in it.
void ShowViewer(Program& program, std::string_view address);
void HideViewer(Program& program);
// The viewer while it is shown, else null.
FrmBrowser* ShownViewer(Program& program);

}  // namespace morlan
