#include "platform/qt/findbar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include "platform/qt/svgicons.h"

namespace morlan {
namespace {

constexpr int kMargin = 6;

QToolButton* AddButton(QHBoxLayout& row, const char* icon, const QString& toolTip) {
  auto* button = new QToolButton;
  button->setIcon(SvgIcon(icon));
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  button->setToolTip(toolTip);
  button->setAccessibleName(toolTip);
  row.addWidget(button);
  return button;
}

}  // namespace

FindBar::FindBar(QWidget* parent) : QWidget(parent), text_(new QLineEdit(this)) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, kMargin / 2, kMargin, kMargin / 2);
  auto* label = new QLabel(QStringLiteral("&Znajdź:"), this);
  label->setBuddy(text_);
  row->addWidget(label);
  row->addWidget(text_, 1);
  text_->setAccessibleName(QStringLiteral("Znajdź na stronie"));
  connect(text_, &QLineEdit::textEdited, this, [this] { Find(false); });
  connect(AddButton(*row, "findnext", QStringLiteral("Następne (Enter)")), &QToolButton::clicked, this, [this] { Find(false); });
  connect(AddButton(*row, "previous", QStringLiteral("Poprzednie (Shift+Enter)")), &QToolButton::clicked, this, [this] { Find(true); });
  connect(AddButton(*row, "close", QStringLiteral("Zamknij szukanie (Esc)")), &QToolButton::clicked, this, [this] { Close(); });
  hide();
}

void FindBar::Open() {
  show();
  text_->setFocus();
  text_->selectAll();
}

void FindBar::Find(bool backwards) {
  if (onFind) onFind(text_->text(), backwards);
}

void FindBar::Close() {
  hide();
  if (onFind) onFind(QString(), false);
  if (onClose) onClose();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return Close();
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return Find(event->modifiers() & Qt::ShiftModifier);
  QWidget::keyPressEvent(event);
}

}  // namespace morlan
