// A widget that shows one control of a form: it takes over the control's changes and tells it what the user does.
#pragma once

#include <QLabel>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>
#include <memory>
#include <string>

#include "platform/files.h"
#include "platform/forms/controls.h"

class QButtonGroup;
class QKeyEvent;

namespace morlan {

// What the bindings of one window share.
struct BindingContext {
  QWidget* parent = nullptr;
  Files& files;
  std::map<std::string, QButtonGroup*> optionGroups = {};  // by the options' group
};

// Whether the label beside a control is the layout's for good, or shows the control's caption.
enum class LabelText { Stays, FollowsCaption };

class ControlBinding : public QObject, public ControlView {
 public:
  ControlBinding(Control& control, QWidget* widget);
  ~ControlBinding() override;

  QWidget* Widget() const { return widget_; }
  // A label that comes and goes with the control.
  void AddLabel(QLabel* label, LabelText text = LabelText::Stays);
  void ControlChanged(Control& control, Aspect aspect) override;

 protected:
  // The value, caption or rows changed; enabling, showing and focus are dealt with already.
  virtual void Update(Aspect aspect) = 0;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool SwallowsKey(QEvent* event);
  bool IsForWindow(const QKeyEvent& event) const;
  Control& control_;
  QWidget* widget_;
  void FollowCaption();

  QPointer<QLabel> label_;
  LabelText labelText_ = LabelText::Stays;
};

// The widget that fits a control's kind; null for a control without one, such as a timer.
std::unique_ptr<ControlBinding> BindControl(Control& control, BindingContext& context);

}  // namespace morlan
