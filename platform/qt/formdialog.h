// Any form as a real dialog, built from its layout.
#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/forms/form.h"
#include "platform/qt/controlbinding.h"
#include "platform/qt/formtimers.h"

class QBoxLayout;
class QGridLayout;

namespace morlan {

class ScrolledRows;
class WindowPlaces;

class FormDialog : public QDialog, private FormView {
 public:
  // Attaches to the form; the widgets come with Build.
  FormDialog(Form& form, Files& files, WindowPlaces* places, QWidget* parent);
  ~FormDialog() override;

  // Makes the widgets from the form's layout and present values.
  void Build();
  Form& ShownForm() const { return form_; }
  // Raised when the form is hidden.
  std::function<void()> onHidden;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void reject() override;

 private:
  void FormCaptionChanged() override;
  void FormHidden() override;
  void FocusMoved(Control& control) override;

  QWidget* WidgetOf(Control* control);
  void Fill(QBoxLayout& box, const Layout& part);
  void FillRows(QGridLayout& grid, const Layout& rows);
  void AddColumns(QBoxLayout& box, const Layout& columns);
  void AddField(QGridLayout& grid, int row, const Layout& field);
  QWidget* MakeLabel(const Layout& field, QWidget* buddy);
  void AddButtons(QBoxLayout& box, const Layout& buttons);
  void AddGroup(QBoxLayout& box, const Layout& group);
  void AddPages(QBoxLayout& box, const Layout& pages);
  void AddScrolled(QBoxLayout& box, const Layout& rows);
  void AddRowsSeenFirst(ScrolledRows& area, const Layout& rows);
  void AddInlineField(QBoxLayout& box, const Layout& field);
  void SetTabOrder();
  void RestoreSize();
  void KeepSize();

  Form& form_;
  WindowPlaces* places_;
  BindingContext context_;
  std::map<const Control*, std::unique_ptr<ControlBinding>> bindings_;
  FormTimers timers_;
  std::vector<ScrolledRows*> areas_;
  Control* wantedFocus_ = nullptr;
  bool built_ = false;
};

}  // namespace morlan
