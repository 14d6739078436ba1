#include "platform/qt/formdialog.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "platform/qt/qttext.h"
#include "platform/qt/windowplaces.h"

namespace morlan {
namespace {

constexpr int kMargin = 12, kSpacing = 8, kButtonWidth = 88;
constexpr int kLabelColumn = 0, kControlColumn = 1, kCompanionColumn = 2, kColumns = 3;

// Controls that want room of their own stand below their label.
bool IsTall(const Control& control) {
  switch (control.GetKind()) {
    case Control::Kind::List:
    case Control::Kind::Grid:
    case Control::Kind::Picture:
      return true;
    case Control::Kind::Text:
      return static_cast<const TextBox&>(control).IsMultiLine();
    default:
      return false;
  }
}

bool GrowsDownwards(const Layout& part) {
  if (part.kind == Layout::Kind::Stretch) return true;
  if (part.control && IsTall(*part.control)) return part.control->GetKind() != Control::Kind::Picture;
  for (const Layout& child : part.children)
    if (GrowsDownwards(child)) return true;
  return false;
}

}  // namespace

FormDialog::FormDialog(Form& form, Files& files, WindowPlaces* places, QWidget* parent)
    : QDialog(parent), form_(form), places_(places), context_{this, files}, timers_(form) {
  setObjectName(ToQt(form.Name()));
  form.AttachView(this);
}

FormDialog::~FormDialog() {
  if (built_) KeepSize();
  if (form_.View() == this) form_.AttachView(nullptr);
}

void FormDialog::Build() {
  built_ = true;
  FormCaptionChanged();
  auto* outside = new QVBoxLayout(this);
  outside->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  outside->setSpacing(kSpacing);
  Fill(*outside, form_.layout);
  // A control that the layout leaves out still works, below the others.
  for (Control* control : form_.Controls())
    if (form_.layout.kind == Layout::Kind::Empty)
      if (QWidget* widget = WidgetOf(control)) outside->addWidget(widget);
  SetTabOrder();
  if (form_.defaultButton)
    if (auto* button = qobject_cast<QPushButton*>(WidgetOf(form_.defaultButton))) button->setDefault(true);
  RestoreSize();
  Control* focused = wantedFocus_ ? wantedFocus_ : form_.firstFocus;
  if (focused) FocusMoved(*focused);
}

QWidget* FormDialog::WidgetOf(Control* control) {
  auto& binding = bindings_[control];
  if (!binding) binding = BindControl(*control, context_);
  return binding ? binding->Widget() : nullptr;
}

void FormDialog::Fill(QBoxLayout& box, const Layout& part) {
  switch (part.kind) {
    case Layout::Kind::Empty:
      return;
    case Layout::Kind::Rows: {
      auto* grid = new QGridLayout;
      grid->setSpacing(kSpacing);
      box.addLayout(grid, GrowsDownwards(part) ? 1 : 0);
      return FillRows(*grid, part);
    }
    case Layout::Kind::Columns: {
      auto* columns = new QHBoxLayout;
      columns->setSpacing(kSpacing);
      box.addLayout(columns, GrowsDownwards(part) ? 1 : 0);
      for (const Layout& child : part.children) Fill(*columns, child);
      return;
    }
    case Layout::Kind::Group:
      return AddGroup(box, part);
    case Layout::Kind::Pages:
      return AddPages(box, part);
    case Layout::Kind::Field:
      return AddInlineField(box, part);
    case Layout::Kind::Single:
      if (QWidget* widget = WidgetOf(part.control)) box.addWidget(widget, IsTall(*part.control) ? 1 : 0);
      return;
    case Layout::Kind::Buttons:
      return AddButtons(box, part);
    case Layout::Kind::Stretch:
      return box.addStretch(1);
  }
}

void FormDialog::FillRows(QGridLayout& grid, const Layout& rows) {
  int row = 0;
  for (const Layout& child : rows.children) {
    if (child.kind == Layout::Kind::Field && !IsTall(*child.control)) {
      AddField(grid, row++, child);
      continue;
    }
    auto* line = new QVBoxLayout;
    line->setSpacing(kSpacing / 2);
    Fill(*line, child);
    grid.addLayout(line, row, kLabelColumn, 1, kColumns);
    grid.setRowStretch(row++, GrowsDownwards(child) ? 1 : 0);
  }
  grid.setColumnStretch(kControlColumn, 1);
}

void FormDialog::AddField(QGridLayout& grid, int row, const Layout& field) {
  QWidget* widget = WidgetOf(field.control);
  if (!widget) return;
  grid.addWidget(MakeLabel(field, widget), row, kLabelColumn, Qt::AlignVCenter | Qt::AlignLeft);
  QWidget* companion = field.companion ? WidgetOf(field.companion) : nullptr;
  const bool narrow = field.control->GetKind() == Control::Kind::Spin;
  grid.addWidget(widget, row, kControlColumn, 1, companion ? 1 : 2, narrow ? Qt::AlignLeft : Qt::Alignment());
  if (companion) grid.addWidget(companion, row, kCompanionColumn);
}

QWidget* FormDialog::MakeLabel(const Layout& field, QWidget* buddy) {
  auto* label = new QLabel(ToQt(field.caption), this);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(buddy);
  if (buddy->accessibleName().isEmpty()) buddy->setAccessibleName(WithoutMnemonic(label->text()));
  bindings_[field.control]->AddLabel(label);
  return label;
}

void FormDialog::AddInlineField(QBoxLayout& box, const Layout& field) {
  QWidget* widget = WidgetOf(field.control);
  if (!widget) return;
  QWidget* label = MakeLabel(field, widget);
  const bool tall = IsTall(*field.control);
  QBoxLayout* pair = tall ? static_cast<QBoxLayout*>(new QVBoxLayout) : new QHBoxLayout;
  pair->setSpacing(tall ? kSpacing / 2 : kSpacing);
  pair->addWidget(label);
  pair->addWidget(widget, 1);
  if (QWidget* companion = field.companion ? WidgetOf(field.companion) : nullptr) pair->addWidget(companion);
  box.addLayout(pair, tall ? 1 : 0);
}

void FormDialog::AddButtons(QBoxLayout& box, const Layout& buttons) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(0, kSpacing / 2, 0, 0);
  row->addStretch(1);
  for (const Layout& child : buttons.children) {
    Fill(*row, child);
    if (QWidget* widget = child.control ? WidgetOf(child.control) : nullptr) widget->setMinimumWidth(kButtonWidth);
  }
  box.addLayout(row);
}

void FormDialog::AddGroup(QBoxLayout& box, const Layout& group) {
  auto* frame = new QGroupBox(ToQt(group.caption), this);
  auto* grid = new QGridLayout(frame);
  grid->setContentsMargins(kMargin, kSpacing, kMargin, kMargin);
  grid->setSpacing(kSpacing);
  FillRows(*grid, group);
  box.addWidget(frame, GrowsDownwards(group) ? 1 : 0);
}

void FormDialog::AddPages(QBoxLayout& box, const Layout& pages) {
  auto* tabs = new QTabWidget(this);
  for (const Layout& page : pages.children) {
    auto* sheet = new QWidget;
    auto* column = new QVBoxLayout(sheet);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    auto* grid = new QGridLayout;
    grid->setSpacing(kSpacing);
    column->addLayout(grid, GrowsDownwards(page) ? 1 : 0);
    FillRows(*grid, page);
    if (!GrowsDownwards(page)) column->addStretch(1);
    tabs->addTab(sheet, ToQt(page.caption));
  }
  box.addWidget(tabs, 1);
}

void FormDialog::SetTabOrder() {
  QWidget* before = nullptr;
  for (Control* control : form_.Controls()) {
    const auto found = bindings_.find(control);
    if (found == bindings_.end() || !found->second) continue;
    QWidget* widget = found->second->Widget();
    if (before) QWidget::setTabOrder(before, widget);
    before = widget;
  }
}

void FormDialog::RestoreSize() {
  if (!form_.resizable) {
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    return;
  }
  layout()->activate();
  resize(sizeHint());
  if (places_) restoreGeometry(places_->Place(objectName()));
}

void FormDialog::KeepSize() {
  if (!places_ || !form_.resizable) return;
  const QByteArray place = saveGeometry();
  if (places_->Place(objectName()) != place) places_->Keep(objectName(), place);
}

void FormDialog::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) return form_.UserCloses();
  if (!enter) return QWidget::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
  if (form_.defaultButton) form_.defaultButton->UserClicks();
}

void FormDialog::reject() { form_.UserCloses(); }

void FormDialog::closeEvent(QCloseEvent* event) {
  event->ignore();
  form_.UserCloses();
}

void FormDialog::changeEvent(QEvent* event) {
  QDialog::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && form_.OnActivate) form_.OnActivate();
}

void FormDialog::FormCaptionChanged() { setWindowTitle(ToQt(form_.Caption())); }

void FormDialog::FormHidden() {
  hide();
  if (onHidden) onHidden();
}

void FormDialog::FocusMoved(Control& control) {
  wantedFocus_ = &control;
  const auto found = bindings_.find(&control);
  if (found != bindings_.end() && found->second) found->second->Widget()->setFocus();
}

}  // namespace morlan
