// Labels, buttons, check boxes and options.
#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include "platform/qt/bindings.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

class LabelBinding : public ControlBinding {
 public:
  LabelBinding(Control& label, QLabel* widget) : ControlBinding(label, widget), label_(label), widget_(widget) {
    widget->setTextFormat(Qt::PlainText);
    Update(Aspect::Caption);
  }
  void Update(Aspect) override { widget_->setText(WithoutMnemonic(ToQt(label_.Caption()))); }

 private:
  Control& label_;
  QLabel* widget_;
};

class ButtonBinding : public ControlBinding {
 public:
  ButtonBinding(Button& button, QPushButton* widget) : ControlBinding(button, widget), button_(button), widget_(widget) {
    widget->setAutoDefault(false);
    connect(widget, &QPushButton::clicked, this, [this] { button_.UserClicks(); });
    Update(Aspect::Caption);
  }
  void Update(Aspect) override { widget_->setText(ToQt(button_.Caption())); }

 private:
  Button& button_;
  QPushButton* widget_;
};

class ColourBoxBinding : public ControlBinding {
 public:
  ColourBoxBinding(ColourBox& box, QPushButton* widget) : ControlBinding(box, widget), box_(box), widget_(widget) {
    widget->setAutoDefault(false);
    connect(widget, &QPushButton::clicked, this, [this] { box_.UserClicks(); });
    Update(Aspect::Colour);
  }
  void Update(Aspect) override {
    widget_->setText(ToQt(box_.Caption()));
    QPixmap swatch(QSize(28, 14) * widget_->devicePixelRatioF());
    swatch.setDevicePixelRatio(widget_->devicePixelRatioF());
    swatch.fill(QColor(RedOf(box_.Value()), GreenOf(box_.Value()), BlueOf(box_.Value())));
    QPainter painter(&swatch);
    painter.setPen(widget_->palette().color(QPalette::Mid));
    painter.drawRect(QRectF(0.5, 0.5, 27, 13));
    painter.end();
    widget_->setIconSize(QSize(28, 14));
    widget_->setIcon(swatch);
  }

 private:
  ColourBox& box_;
  QPushButton* widget_;
};

class CheckBoxBinding : public ControlBinding {
 public:
  CheckBoxBinding(CheckBox& box, QCheckBox* widget) : ControlBinding(box, widget), box_(box), widget_(widget) {
    connect(widget, &QCheckBox::toggled, this, [this](bool checked) { box_.UserSets(checked); });
    Update(Aspect::Checked);
  }
  void Update(Aspect) override {
    const QSignalBlocker quiet(widget_);
    widget_->setText(ToQt(box_.Caption()));
    widget_->setChecked(box_.Value());
  }

 private:
  CheckBox& box_;
  QCheckBox* widget_;
};

class OptionBinding : public ControlBinding {
 public:
  OptionBinding(OptionButton& option, QRadioButton* widget) : ControlBinding(option, widget), option_(option), widget_(widget) {
    connect(widget, &QRadioButton::toggled, this, [this](bool checked) {
      if (checked) option_.UserSets();
    });
    Update(Aspect::Checked);
  }
  void Update(Aspect) override {
    const QSignalBlocker quiet(widget_);
    widget_->setText(ToQt(option_.Caption()));
    widget_->setChecked(option_.Value());
  }

 private:
  OptionButton& option_;
  QRadioButton* widget_;
};

}  // namespace

std::unique_ptr<ControlBinding> BindLabel(Label& label, BindingContext& context) {
  return std::make_unique<LabelBinding>(label, new QLabel(context.parent));
}

std::unique_ptr<ControlBinding> BindPanel(Control& panel, BindingContext& context) {
  auto* widget = new QLabel(context.parent);
  widget->setFrameStyle(int(QFrame::StyledPanel) | int(QFrame::Plain));
  return std::make_unique<LabelBinding>(panel, widget);
}

std::unique_ptr<ControlBinding> BindButton(Button& button, BindingContext& context) {
  return std::make_unique<ButtonBinding>(button, new QPushButton(context.parent));
}

std::unique_ptr<ControlBinding> BindColourBox(ColourBox& box, BindingContext& context) {
  return std::make_unique<ColourBoxBinding>(box, new QPushButton(context.parent));
}

std::unique_ptr<ControlBinding> BindCheckBox(CheckBox& box, BindingContext& context) {
  return std::make_unique<CheckBoxBinding>(box, new QCheckBox(context.parent));
}

std::unique_ptr<ControlBinding> BindOption(OptionButton& option, BindingContext& context) {
  auto* widget = new QRadioButton(context.parent);
  QButtonGroup*& group = context.optionGroups[option.Group()];
  if (!group) group = new QButtonGroup(context.parent);
  group->addButton(widget);
  return std::make_unique<OptionBinding>(option, widget);
}

}  // namespace morlan
