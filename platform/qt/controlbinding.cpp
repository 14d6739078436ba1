#include "platform/qt/controlbinding.h"

#include <QFocusEvent>
#include <QKeyEvent>

#include "platform/qt/bindings.h"
#include "platform/qt/qtkeys.h"
#include "platform/qt/qttext.h"

namespace morlan {

ControlBinding::ControlBinding(Control& control, QWidget* widget) : control_(control), widget_(widget) {
  control.AttachView(this);
  widget->setObjectName(ToQt(control.Name()));
  widget->setEnabled(control.Enabled());
  // Showing is left to the window that is not up yet.
  const bool late = widget->parentWidget() && widget->parentWidget()->isVisible();
  if (late || !control.Visible()) widget->setVisible(control.Visible());
  widget->setToolTip(ToQt(control.ToolTip()));
  if (!control.AccessibleName().empty()) widget->setAccessibleName(ToQt(control.AccessibleName()));
  widget->installEventFilter(this);
}

ControlBinding::~ControlBinding() {
  if (control_.View() == this) control_.AttachView(nullptr);
}

void ControlBinding::AddLabel(QLabel* label, LabelText text) {
  label_ = label;
  labelText_ = text;
  if (!control_.Visible()) label->hide();
  label->setEnabled(control_.Enabled());
}

void ControlBinding::ControlChanged(Control&, Aspect aspect) {
  switch (aspect) {
    case Aspect::Enabled:
      widget_->setEnabled(control_.Enabled());
      if (label_) label_->setEnabled(control_.Enabled());
      break;
    case Aspect::Visible:
      widget_->setVisible(control_.Visible());
      if (label_) label_->setVisible(control_.Visible());
      break;
    case Aspect::Focus:
      widget_->setFocus();
      break;
    case Aspect::Caption:
      FollowCaption();
      [[fallthrough]];
    default:
      Update(aspect);
  }
}

void ControlBinding::FollowCaption() {
  if (!label_ || labelText_ != LabelText::FollowsCaption) return;
  label_->setText(ToQt(control_.Caption()));
  if (control_.AccessibleName().empty()) widget_->setAccessibleName(WithoutMnemonic(label_->text()));
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
  if (watched != widget_) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::FocusIn && control_.OnGotFocus) control_.OnGotFocus();
  // A menu or another window that takes the focus for a while is no leaving.
  if (event->type() == QEvent::FocusOut) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason) control_.UserLeaves();
  }
  if (event->type() == QEvent::ContextMenu && control_.OnRightClick) return control_.UserRightClicks();
  if (event->type() != QEvent::KeyPress) return false;
  const bool swallowed = SwallowsKey(event);
  if (!swallowed && !IsForWindow(*static_cast<QKeyEvent*>(event))) return false;
  event->setAccepted(swallowed);
  return true;
}

// A list-only box would take Ctrl and a letter for the search of a row, and no shortcut would work in it.
bool ControlBinding::IsForWindow(const QKeyEvent& event) const {
  if (control_.GetKind() != Control::Kind::Combo || !(event.modifiers() & Qt::ControlModifier)) return false;
  return !static_cast<const ComboBox&>(control_).IsEditable() && !event.text().isEmpty();
}

bool ControlBinding::SwallowsKey(QEvent* event) {
  if (!control_.OnKeyDown) return false;
  KeyPress press = ReadKey(*static_cast<QKeyEvent*>(event)).press;
  if (press.code == 0) return false;
  control_.OnKeyDown(press);
  return press.code == 0;
}

std::unique_ptr<ControlBinding> BindControl(Control& control, BindingContext& context) {
  switch (control.GetKind()) {
    case Control::Kind::Label:
      if (auto* sample = dynamic_cast<TextSample*>(&control)) return BindTextSample(*sample, context);
      return BindLabel(static_cast<Label&>(control), context);
    case Control::Kind::Button:
      if (auto* box = dynamic_cast<ColourBox*>(&control)) return BindColourBox(*box, context);
      return BindButton(static_cast<Button&>(control), context);
    case Control::Kind::Text:
      return BindTextBox(static_cast<TextBox&>(control), context);
    case Control::Kind::Combo:
      return BindComboBox(static_cast<ComboBox&>(control), context);
    case Control::Kind::List:
      return BindListBox(static_cast<ListBox&>(control), context);
    case Control::Kind::Check:
      return BindCheckBox(static_cast<CheckBox&>(control), context);
    case Control::Kind::Option:
      return BindOption(static_cast<OptionButton&>(control), context);
    case Control::Kind::Spin:
      return BindSpinButton(static_cast<SpinButton&>(control), context);
    case Control::Kind::Grid:
      return BindGrid(static_cast<Grid&>(control), context);
    case Control::Kind::Tabs:
      return BindTabs(static_cast<Tabs&>(control), context);
    case Control::Kind::Toolbar:
      return BindToolBar(static_cast<ToolBar&>(control), context);
    case Control::Kind::Picture:
      return BindPicture(static_cast<Picture&>(control), context);
    case Control::Kind::Frame:
    case Control::Kind::Panel:
      return BindPanel(control, context);
    case Control::Kind::Web:
      return BindWebBrowser(static_cast<WebBrowser&>(control), context);
    case Control::Kind::Timer:
      break;
  }
  return nullptr;
}

}  // namespace morlan
