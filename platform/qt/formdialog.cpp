#include "platform/qt/formdialog.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <vector>

#include "platform/qt/formgeometry.h"
#include "platform/qt/mnemonics.h"
#include "platform/qt/qtkeys.h"
#include "platform/qt/qttext.h"
#include "platform/qt/scrolledrows.h"
#include "platform/qt/windowplaces.h"

namespace morlan {
namespace {

constexpr int kMargin = 12, kSpacing = 8, kColumnSpacing = 16, kButtonWidth = 88;
constexpr int kEvenNumerator = 3, kEvenDenominator = 2;  // how much wider the widest group may be
constexpr int kTitleRoom = 110;                          // what a window's title shares its bar with
constexpr int kRowsAtOnce = 20;                          // of a scrolled area, which shows fewer
constexpr int kLabelColumn = 0, kControlColumn = 1, kCompanionColumn = 2, kColumns = 3;

int StretchIn(const QBoxLayout& box, const Layout& part) {
  const bool sideways = box.direction() == QBoxLayout::LeftToRight;
  return (sideways ? GrowsSideways(part) : GrowsDownwards(part)) ? 1 : 0;
}

// Groups side by side are of one width, unless that would cost more room than it is worth.
void MakeEven(const QHBoxLayout& row) {
  std::vector<QWidget*> groups;
  int least = QWIDGETSIZE_MAX, most = 0;
  for (int i = 0; i < row.count(); ++i) {
    auto* group = qobject_cast<QGroupBox*>(row.itemAt(i)->widget());
    if (!group) return;
    groups.push_back(group);
    least = std::min(least, group->minimumSizeHint().width());
    most = std::max(most, group->minimumSizeHint().width());
  }
  if (most * kEvenDenominator > least * kEvenNumerator) return;
  for (QWidget* group : groups) group->setMinimumWidth(most);
}

// The room that a dialog gets without having a use for it opens above its buttons.
bool WantsRoomAbove(const Layout& rows, const Layout& child) {
  return child.kind == Layout::Kind::Buttons && &child == &rows.children.back() && !GrowsDownwards(rows);
}

bool HoldsFieldsAlone(const Layout& rows) {
  return std::all_of(rows.children.begin(), rows.children.end(),
                     [](const Layout& child) { return child.kind == Layout::Kind::Field && !IsTall(*child.control); });
}

QString LabelOf(const Layout& field) { return WithoutMnemonic(ToQt(field.caption.empty() ? field.control->Caption() : field.caption)); }

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
  outside->addStrut(fontMetrics().horizontalAdvance(windowTitle()) + kTitleRoom);
  Fill(*outside, form_.layout);
  // A control that the layout leaves out still works, below the others.
  for (Control* control : form_.Controls())
    if (form_.layout.kind == Layout::Kind::Empty)
      if (QWidget* widget = WidgetOf(control)) outside->addWidget(widget);
  SetTabOrder();
  PartMnemonics(*this);
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
      box.addLayout(grid, StretchIn(box, part));
      return FillRows(*grid, part);
    }
    case Layout::Kind::Columns:
      return AddColumns(box, part);
    case Layout::Kind::Group:
      return AddGroup(box, part);
    case Layout::Kind::Pages:
      return AddPages(box, part);
    case Layout::Kind::Scrolled:
      return AddScrolled(box, part);
    case Layout::Kind::Field:
      return AddInlineField(box, part);
    case Layout::Kind::Single:
      if (QWidget* widget = WidgetOf(part.control)) box.addWidget(widget, StretchIn(box, part));
      return;
    case Layout::Kind::Buttons:
      return AddButtons(box, part);
    case Layout::Kind::Stretch:
      return box.addStretch(1);
  }
}

void FormDialog::FillRows(QGridLayout& grid, const Layout& rows) {
  const bool even = IsColumnOfButtons(rows);
  int row = 0;
  for (const Layout& child : rows.children) {
    if (child.kind == Layout::Kind::Field && !IsTall(*child.control)) {
      AddField(grid, row++, child);
      continue;
    }
    if (WantsRoomAbove(rows, child)) grid.setRowStretch(row++, 1);
    auto* line = new QVBoxLayout;
    line->setSpacing(kSpacing / 2);
    Fill(*line, child);
    const bool narrow = child.kind == Layout::Kind::Single && IsNarrow(*child.control) && !even;
    grid.addLayout(line, row, kLabelColumn, 1, kColumns, narrow ? Qt::AlignLeft : Qt::Alignment());
    grid.setRowStretch(row++, GrowsDownwards(child) ? 1 : 0);
  }
  grid.setColumnStretch(kControlColumn, 1);
}

void FormDialog::AddColumns(QBoxLayout& box, const Layout& columns) {
  auto* row = new QHBoxLayout;
  row->setSpacing(IsColumnOfButtons(columns) ? kSpacing : kColumnSpacing);
  box.addLayout(row, StretchIn(box, columns));
  for (const Layout& child : columns.children) Fill(*row, child);
  if (!GrowsSideways(columns)) row->addStretch(1);
  MakeEven(*row);
}

void FormDialog::AddField(QGridLayout& grid, int row, const Layout& field) {
  QWidget* widget = WidgetOf(field.control);
  if (!widget) return;
  grid.addWidget(MakeLabel(field, widget), row, kLabelColumn, Qt::AlignVCenter | Qt::AlignLeft);
  QWidget* companion = field.companion ? WidgetOf(field.companion) : nullptr;
  const Qt::Alignment place = IsNarrow(*field.control) ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment();
  grid.addWidget(widget, row, kControlColumn, 1, companion ? 1 : 2, place);
  if (companion) grid.addWidget(companion, row, kCompanionColumn);
}

QWidget* FormDialog::MakeLabel(const Layout& field, QWidget* buddy) {
  const LabelText text = field.caption.empty() ? LabelText::FollowsCaption : LabelText::Stays;
  auto* label = new QLabel(ToQt(field.caption.empty() ? field.control->Caption() : field.caption), this);
  label->setTextFormat(Qt::PlainText);
  label->setBuddy(buddy);
  if (buddy->accessibleName().isEmpty()) buddy->setAccessibleName(WithoutMnemonic(label->text()));
  bindings_[field.control]->AddLabel(label, text);
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
  pair->addWidget(widget, IsNarrow(*field.control) ? 0 : 1);
  if (QWidget* companion = field.companion ? WidgetOf(field.companion) : nullptr) pair->addWidget(companion);
  box.addLayout(pair, StretchIn(box, field));
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
  if (!GrowsDownwards(group)) grid->setRowStretch(grid->rowCount(), 1);
  box.addWidget(frame, StretchIn(box, group));
}

void FormDialog::AddPages(QBoxLayout& box, const Layout& pages) {
  auto* tabs = new QTabWidget(this);
  tabs->setUsesScrollButtons(false);  // the dialog is as wide as all tabs want
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
  tabs->setMinimumWidth(std::max(tabs->minimumSizeHint().width(), tabs->tabBar()->sizeHint().width()));
  box.addWidget(tabs, 1);
}

void FormDialog::AddScrolled(QBoxLayout& box, const Layout& rows) {
  auto* area = new ScrolledRows(this);
  area->Grid().setSpacing(kSpacing);
  if (HoldsFieldsAlone(rows)) {
    AddRowsSeenFirst(*area, rows);
  } else {
    FillRows(area->Grid(), rows);
    area->Grid().setRowStretch(area->Grid().rowCount(), 1);
  }
  area->Fit();
  box.addWidget(area, 1);
  areas_.push_back(area);
}

// A dialog of a hundred fields would take long to come up, though a dozen are seen. Its columns get the widths that they have
// when all rows are there.
void FormDialog::AddRowsSeenFirst(ScrolledRows& area, const Layout& rows) {
  const auto isCompanied = [](const Layout& field) { return field.companion != nullptr; };
  const auto withCompanion = std::find_if(rows.children.begin(), rows.children.end(), isCompanied) - rows.children.begin();
  std::vector<std::pair<int, Layout>> others;
  int row = 0, widest = 0;
  for (const Layout& field : rows.children) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(LabelOf(field)));
    if (row < kRowsAtOnce || row == withCompanion)
      AddField(area.Grid(), row, field);
    else
      others.emplace_back(row, field);
    ++row;
  }
  area.Grid().setRowStretch(row, 1);
  area.Grid().setColumnMinimumWidth(kLabelColumn, widest);
  area.Grid().setColumnStretch(kControlColumn, 1);
  if (others.empty()) return;
  area.fill = [this, &area, others = std::move(others)] {
    context_.parent = area.widget();
    for (const auto& [place, field] : others) AddField(area.Grid(), place, field);
    context_.parent = this;
    SetTabOrder();
    PartMnemonics(*this);
  };
}

void FormDialog::SetTabOrder() {
  QWidget* before = nullptr;
  for (Control* control : InOrder(form_.layout)) {
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
  if (KeyPress press = ReadKey(*event).press; form_.OnKeyDown && press.code != 0) {
    form_.OnKeyDown(press);
    if (press.code == 0) return;
  }
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (event->key() == Qt::Key_Escape) return form_.UserCloses();
  if (!enter) return QWidget::keyPressEvent(event);
  if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
  // A button on another page is not meant.
  if (form_.defaultButton && WidgetOf(form_.defaultButton)->isVisible()) form_.defaultButton->UserClicks();
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
  if (built_ && !bindings_.contains(&control))
    for (ScrolledRows* area : areas_) area->FillNow();
  const auto found = bindings_.find(&control);
  if (found != bindings_.end() && found->second) found->second->Widget()->setFocus();
}

}  // namespace morlan
