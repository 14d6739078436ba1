// Labels, buttons, check boxes and options.
#include <QButtonGroup>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>

#include "platform/qt/bindings.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr QSize kSwatch(44, 14), kOptionSwatch(14, 14);
constexpr int kSignRoom = 6;

// A caption such as "..." that fits on a small square button.
bool IsSign(const QString& caption) {
  return caption.size() <= 3 && std::none_of(caption.begin(), caption.end(), [](QChar character) { return character.isLetterOrNumber(); });
}

// The style puts a text close to its picture.
QString BesideSwatch(std::string_view caption) { return caption.empty() ? QString() : QLatin1Char(' ') + ToQt(caption); }

// A patch of colour, outlined so that it is seen on a ground of its own colour too. Without a colour it is struck through.
QIcon SwatchOf(std::optional<Colour> colour, QSize size, const QWidget& widget) {
  QPixmap swatch(size * widget.devicePixelRatioF());
  swatch.setDevicePixelRatio(widget.devicePixelRatioF());
  swatch.fill(colour ? QColor(RedOf(*colour), GreenOf(*colour), BlueOf(*colour)) : QColor(Qt::transparent));
  QColor outline = widget.palette().color(QPalette::ButtonText);
  outline.setAlphaF(0.45F);
  QPainter painter(&swatch);
  painter.setPen(outline);
  painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
  if (!colour) painter.drawLine(QPoint(0, size.height() - 1), QPoint(size.width() - 1, 0));
  painter.end();
  return swatch;
}

class LabelBinding : public ControlBinding {
 public:
  LabelBinding(Control& label, QLabel* widget) : ControlBinding(label, widget), label_(label), widget_(widget) {
    widget->setTextFormat(Qt::PlainText);
    if (label.OnClick) widget->setCursor(Qt::PointingHandCursor);
    Update(Aspect::Caption);
  }
  void Update(Aspect) override { widget_->setText(WithoutMnemonic(ToQt(label_.Caption()))); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isClick = watched == widget_ && event->type() == QEvent::MouseButtonRelease;
    if (isClick && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) label_.UserClicks();
    return ControlBinding::eventFilter(watched, event);
  }

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
  void Update(Aspect) override {
    widget_->setText(ToQt(button_.Caption()));
    if (IsSign(widget_->text())) widget_->setFixedWidth(widget_->sizeHint().height() + kSignRoom);
  }

 private:
  Button& button_;
  QPushButton* widget_;
};

class ColourBoxBinding : public ControlBinding {
 public:
  ColourBoxBinding(ColourBox& box, QPushButton* widget) : ControlBinding(box, widget), box_(box), widget_(widget) {
    widget->setAutoDefault(false);
    widget->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(widget, &QPushButton::clicked, this, [this] { box_.UserClicks(); });
    Update(Aspect::Colour);
  }
  void Update(Aspect) override {
    widget_->setText(BesideSwatch(box_.Caption()));
    widget_->setIconSize(kSwatch);
    widget_->setIcon(SwatchOf(box_.IsSet() ? std::optional(box_.Value()) : std::nullopt, kSwatch, *widget_));
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
    widget_->setText(option_.showsSample ? BesideSwatch(option_.Caption()) : ToQt(option_.Caption()));
    if (option_.showsSample) {
      widget_->setIconSize(kOptionSwatch);
      widget_->setIcon(SwatchOf(option_.sample, kOptionSwatch, *widget_));
    }
    widget_->setChecked(option_.Value());
    ChooseTabStop();
  }

 private:
  // Tab goes to the chosen option of a group; the arrows go on from there.
  void ChooseTabStop() {
    const QAbstractButton* chosen = widget_->group()->checkedButton();
    for (QAbstractButton* option : widget_->group()->buttons())
      option->setFocusPolicy(!chosen || option == chosen ? Qt::StrongFocus : Qt::ClickFocus);
  }

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
