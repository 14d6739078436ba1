#include "platform/qt/toolbarview.h"

#include <algorithm>

#include "platform/qt/bindings.h"
#include "platform/qt/qttext.h"
#include "platform/qt/svgicons.h"

namespace morlan {

ToolBarView::ToolBarView(ToolBar& toolBar, QWidget* widget)
    : ControlBinding(toolBar, widget), toolBar_(toolBar), row_(new QHBoxLayout(widget)) {
  row_->setContentsMargins(0, 0, 0, 0);
  row_->setSpacing(1);
  ShowItems();
}

void ToolBarView::Update(Aspect) { ShowItems(); }

void ToolBarView::ShowItems() {
  const std::vector<ToolBar::Item>& items = toolBar_.Items();
  buttons_.resize(std::max(buttons_.size(), items.size()));
  for (std::size_t i = 0; i < items.size(); ++i) {
    QToolButton*& button = buttons_[i];
    if (!button && items[i].visible) row_->insertWidget(PlaceOf(i), button = MakeButton(items[i]));
    if (!button) continue;
    button->setVisible(items[i].visible);
    button->setEnabled(items[i].enabled);
    // In this order, since a button that can no longer be checked is not painted anew.
    if (items[i].pressed) button->setCheckable(true);
    button->setChecked(items[i].pressed);
    button->setCheckable(items[i].pressed);
  }
}

// Buttons that were never shown do not exist.
int ToolBarView::PlaceOf(std::size_t item) const {
  return static_cast<int>(std::count_if(buttons_.begin(), buttons_.begin() + static_cast<std::ptrdiff_t>(item),
                                        [](const QToolButton* button) { return button != nullptr; }));
}

QToolButton* ToolBarView::MakeButton(const ToolBar::Item& item) {
  auto* button = new QToolButton(Widget());
  const QIcon icon = SvgIcon(item.icon);
  button->setIcon(icon);
  if (icon.isNull()) button->setText(ToQt(item.key));
  button->setIconSize(QSize(kToolIconSize, kToolIconSize));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setObjectName(ToQt(item.key));
  button->setToolTip(ToQt(item.toolTip));
  button->setAccessibleName(ToQt(item.toolTip));
  // A pressed button stays down until the program says otherwise.
  connect(button, &QToolButton::clicked, this, [this, key = item.key] {
    const QPointer<ToolBarView> alive = this;
    toolBar_.UserPresses(key);
    if (alive) ShowItems();
  });
  return button;
}

std::unique_ptr<ControlBinding> BindToolBar(ToolBar& toolBar, BindingContext& context) {
  return std::make_unique<ToolBarView>(toolBar, new QWidget(context.parent));
}

}  // namespace morlan
