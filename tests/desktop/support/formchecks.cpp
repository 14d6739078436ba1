#include "tests/desktop/support/formchecks.h"

#include <QAbstractItemModel>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMap>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <cctype>

#include "platform/forms/form.h"

namespace morlan {
namespace {

constexpr QSize kRoom(1280 - 16, 720 - 72);  // less a frame, a title bar and a panel
constexpr int kTitleButtons = 90, kComboArrow = 24, kButtonMargins = 6, kMostStops = 300;

bool IsContainer(const QWidget& widget) {
  return qobject_cast<const QGroupBox*>(&widget) || qobject_cast<const QTabWidget*>(&widget) || qobject_cast<const QScrollArea*>(&widget);
}

// What lies directly inside a container, through the widgets that a tab widget and a scrolled area put in between.
QList<QWidget*> Inside(QWidget& container) {
  if (auto* tabs = qobject_cast<QTabWidget*>(&container)) return {tabs->tabBar(), tabs->currentWidget()};
  if (auto* area = qobject_cast<QScrollArea*>(&container)) return {area->widget()};
  return container.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
}

bool IsLayer(const QWidget& widget) { return widget.metaObject() == &QWidget::staticMetaObject && widget.layout(); }

// Every visible control, label and group, as they stand on the screen.
void Collect(QWidget& container, QList<QWidget*>& controls, bool groups) {
  for (QWidget* widget : Inside(container)) {
    if (!widget || !widget->isVisible() || widget->isWindow()) continue;
    const bool deeper = IsContainer(*widget) || IsLayer(*widget);
    if (!deeper || (groups && qobject_cast<QGroupBox*>(widget))) controls.push_back(widget);
    if (deeper) Collect(*widget, controls, groups);
  }
}

QList<QWidget*> ControlsOf(QWidget& dialog) {
  QList<QWidget*> controls;
  Collect(dialog, controls, false);
  return controls;
}

QString TextOf(const QWidget& widget) {
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
  if (auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
  if (auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
  return {};
}

std::string Named(const QWidget& widget) {
  const QString name = widget.objectName().isEmpty() ? TextOf(widget) : widget.objectName();
  return name.isEmpty() ? widget.metaObject()->className() : name.toStdString();
}

QRect PlaceIn(const QWidget& dialog, const QWidget& widget) { return {widget.mapTo(&dialog, QPoint(0, 0)), widget.size()}; }

// The scrolled area around a control, or null.
const QWidget* AreaAround(const QWidget& widget) {
  for (const QWidget* around = widget.parentWidget(); around; around = around->parentWidget())
    if (qobject_cast<const QScrollArea*>(around)) return around;
  return nullptr;
}

int WidthOf(const QWidget& widget, const QString& text) {
  return widget.fontMetrics().size(Qt::TextShowMnemonic | Qt::TextSingleLine, text).width();
}

// How much wider a control would have to be for its texts.
int LackOf(const QWidget& widget) {
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return label->wordWrap() ? 0 : label->sizeHint().width() - label->width();
  if (qobject_cast<const QCheckBox*>(&widget) || qobject_cast<const QRadioButton*>(&widget))
    return widget.sizeHint().width() - widget.width();
  if (auto* button = qobject_cast<const QPushButton*>(&widget)) {
    const int picture = button->icon().isNull() ? 0 : button->iconSize().width();
    return WidthOf(widget, button->text()) + picture + kButtonMargins - widget.width();
  }
  if (auto* group = qobject_cast<const QGroupBox*>(&widget)) return WidthOf(widget, group->title()) - widget.width();
  if (auto* tabs = qobject_cast<const QTabBar*>(&widget)) return tabs->sizeHint().width() - tabs->width();
  if (auto* box = qobject_cast<const QComboBox*>(&widget)) {
    int widest = 0;
    for (int row = 0; !box->isEditable() && row < box->count(); ++row) widest = std::max(widest, WidthOf(widget, box->itemText(row)));
    return widest + kComboArrow - widget.width();
  }
  return 0;
}

bool IsLow(const QWidget& widget) {
  const bool hasText = qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
                       qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget);
  return hasText && !TextOf(widget).isEmpty() && widget.height() < widget.fontMetrics().height();
}

bool TakesFocus(const QWidget& widget) { return widget.isEnabled() && widget.focusPolicy() != Qt::NoFocus; }

QString AccessibleNameOf(const QWidget& widget) {
  if (qobject_cast<const QTabBar*>(&widget)) return QStringLiteral("its tabs");
  return widget.accessibleName().isEmpty() ? TextOf(widget) : widget.accessibleName();
}

bool HasWords(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar character) { return character.isLetterOrNumber(); });
}

bool IsUncheckedOption(const QWidget& widget) {
  auto* option = qobject_cast<const QRadioButton*>(&widget);
  return option && !option->isChecked();
}

// The controls at which Tab stops, from the first one on until it comes round.
QList<QWidget*> TabStops(QWidget& dialog) {
  QList<QWidget*> stops;
  QWidget* focused = dialog.nextInFocusChain();
  while (focused != &dialog && !(focused->isVisible() && focused->isEnabled() && focused->focusPolicy() & Qt::TabFocus))
    focused = focused->nextInFocusChain();
  focused->setFocus(Qt::TabFocusReason);
  for (int count = 0; count < kMostStops; ++count) {
    focused = dialog.focusWidget();
    if (!focused || stops.contains(focused)) break;
    stops.push_back(focused);
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    QApplication::sendEvent(focused, &tab);
  }
  return stops;
}

// In a table of rows the eye goes to the right and then down; beside it stands the next column. Rows that are scrolled
// count as one place for what is not among them.
bool IsJump(const QWidget& dialog, const QWidget& left, const QWidget& reached) {
  const QWidget *leftArea = AreaAround(left), *reachedArea = AreaAround(reached);
  const bool together = leftArea == reachedArea;
  const QRect from = PlaceIn(dialog, together || !leftArea ? left : *leftArea);
  const QRect to = PlaceIn(dialog, together || !reachedArea ? reached : *reachedArea);
  if (to.bottom() < from.top()) return to.left() <= from.right();
  return to.top() <= from.bottom() && to.right() < from.left();
}

}  // namespace

Findings ClippedTexts(QWidget& dialog) {
  Findings found;
  QList<QWidget*> controls;
  Collect(dialog, controls, true);
  for (const QWidget* widget : controls) {
    if (LackOf(*widget) > 0) found.push_back(Named(*widget) + " lacks " + std::to_string(LackOf(*widget)) + " pixels for its text");
    if (IsLow(*widget)) found.push_back(Named(*widget) + " is lower than its text");
  }
  for (const QScrollArea* area : dialog.findChildren<QScrollArea*>())
    if (area->isVisible() && area->widget() && area->widget()->minimumSizeHint().width() > area->viewport()->width())
      found.push_back("rows that are scrolled are cut off at the right");
  const int title = dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + kTitleButtons;
  if (title > dialog.width()) found.push_back("the title is wider than the window");
  return found;
}

Findings OverlappingControls(QWidget& dialog) {
  Findings found;
  const QList<QWidget*> controls = ControlsOf(dialog);
  for (qsizetype i = 0; i < controls.size(); ++i)
    for (qsizetype j = i + 1; j < controls.size(); ++j)
      if (controls[i]->parent() == controls[j]->parent() && PlaceIn(dialog, *controls[i]).intersects(PlaceIn(dialog, *controls[j])))
        found.push_back(Named(*controls[i]) + " overlaps " + Named(*controls[j]));
  return found;
}

Findings ControlsOutsideTheirParents(QWidget& dialog) {
  Findings found;
  QList<QWidget*> controls;
  Collect(dialog, controls, true);
  for (const QWidget* widget : controls)
    if (!widget->parentWidget()->rect().contains(widget->geometry())) found.push_back(Named(*widget) + " reaches out of its parent");
  return found;
}

Findings NamelessControls(QWidget& dialog) {
  Findings found;
  for (const QWidget* widget : ControlsOf(dialog))
    if (TakesFocus(*widget) && !HasWords(AccessibleNameOf(*widget))) found.push_back(Named(*widget) + " has no accessible name");
  return found;
}

Findings DuplicateMnemonics(QWidget& dialog) {
  Findings found;
  QMap<QString, std::string> owners;
  const auto take = [&](const QString& text, const std::string& owner) {
    const QString mnemonic = QKeySequence::mnemonic(text).toString();
    if (mnemonic.isEmpty()) return;
    if (owners.contains(mnemonic)) found.push_back(mnemonic.toStdString() + " of " + owner + " is that of " + owners[mnemonic]);
    owners[mnemonic] = owner;
  };
  QList<QWidget*> controls;
  Collect(dialog, controls, true);
  for (const QWidget* widget : controls) {
    if (widget->isEnabled()) take(TextOf(*widget), Named(*widget));
    if (auto* tabs = qobject_cast<const QTabBar*>(widget))
      for (int tab = 0; tab < tabs->count(); ++tab) take(tabs->tabText(tab), tabs->tabText(tab).toStdString());
  }
  return found;
}

Findings TooLarge(QWidget& dialog) {
  if (dialog.width() <= kRoom.width() && dialog.height() <= kRoom.height()) return {};
  return {"it takes " + std::to_string(dialog.width()) + " by " + std::to_string(dialog.height())};
}

Findings MissingButtons(const Form& form) {
  Findings found;
  if (!form.defaultButton) found.push_back("Enter presses no button");
  if (!form.cancelButton) found.push_back("Esc presses no button");
  return found;
}

Findings OutOfReach(QWidget& dialog) {
  Findings found;
  const QList<QWidget*> stops = TabStops(dialog);
  for (const QWidget* widget : ControlsOf(dialog)) {
    const bool inside = std::any_of(stops.begin(), stops.end(), [&](const QWidget* stop) { return widget->isAncestorOf(stop); });
    if (TakesFocus(*widget) && !inside && !stops.contains(widget) && !IsUncheckedOption(*widget))
      found.push_back(Named(*widget) + " is not reached by Tab");
  }
  return found;
}

Findings TabJumps(QWidget& dialog) {
  Findings found;
  const QList<QWidget*> stops = TabStops(dialog);
  for (qsizetype i = 1; i < stops.size(); ++i)
    if (IsJump(dialog, *stops[i - 1], *stops[i])) found.push_back("Tab jumps from " + Named(*stops[i - 1]) + " to " + Named(*stops[i]));
  return found;
}

Findings MissingToolTips(QWidget& dialog) {
  Findings found;
  for (const QWidget* widget : ControlsOf(dialog)) {
    auto* button = qobject_cast<const QPushButton*>(widget);
    const bool explainsItself = qobject_cast<const QTabBar*>(widget) || (button && HasWords(button->text()));
    if (widget->focusPolicy() != Qt::NoFocus && !explainsItself && widget->toolTip().isEmpty())
      found.push_back(Named(*widget) + " has no tool tip");
  }
  return found;
}

}  // namespace morlan
