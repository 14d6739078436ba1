#include "platform/qt/hintpanel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <algorithm>
#include <cmath>
#include <utility>

#include "core/document.h"
#include "platform/qt/qtkeys.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr double kRoomAboveLine = 2;  // between a block above the caret's line and that line
constexpr int kMostRows = 10;

// The list passes its keys on to the control, which knows what Enter and Esc mean.
class HintList : public QListWidget {
 public:
  HintList(ListBox& control, QWidget* parent) : QListWidget(parent), control_(control) {}

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    KeyPress press = ReadKey(*event).press;
    if (control_.OnKeyDown) control_.OnKeyDown(press);
    if (press.code != 0) QListWidget::keyPressEvent(event);
  }

 private:
  ListBox& control_;
};

}  // namespace

HintPanel::HintPanel(TEditor& document, QWidget& area, std::function<QRectF()> caret)
    : document_(document), area_(area), caret_(std::move(caret)) {
  document_.FastHelpL.AttachView(this);
  document_.FastHelpC.AttachView(this);
}

HintPanel::~HintPanel() {
  document_.FastHelpL.AttachView(nullptr);
  document_.FastHelpC.AttachView(nullptr);
  delete list_;
  delete block_;
}

void HintPanel::ControlChanged(Control& control, Aspect aspect) {
  if (aspect == Aspect::Focus) return;
  if (&control == &document_.FastHelpL)
    ShowBlock();
  else
    ShowList(aspect == Aspect::Rows);
}

void HintPanel::ShowBlock() {
  if (!document_.FastHelpL.Visible()) {
    if (block_) block_->hide();
    return;
  }
  if (!block_) {
    block_ = new QLabel(&area_);
    block_->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    block_->setAutoFillBackground(true);
    block_->setBackgroundRole(QPalette::ToolTipBase);
    block_->setForegroundRole(QPalette::ToolTipText);
    block_->setMargin(4);
    block_->setTextFormat(Qt::PlainText);
    block_->setWordWrap(true);
    block_->setFocusPolicy(Qt::NoFocus);
  }
  block_->setText(ToQt(document_.FastHelpL.Caption()));
  PlaceBlock(caret_());
  block_->show();
}

QListWidget* HintPanel::MakeList() {
  auto* list = new HintList(document_.FastHelpC, &area_);
  list->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
  list->setFocusPolicy(Qt::ClickFocus);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setUniformItemSizes(true);
  list->setAccessibleName(QStringLiteral("Podpowiedzi"));
  QObject::connect(list, &QListWidget::currentRowChanged, list, [this](int row) {
    if (row >= 0 && row != document_.FastHelpC.ListIndex()) document_.FastHelpC.UserSelects(row);
  });
  QObject::connect(list, &QListWidget::itemDoubleClicked, list, [this] { document_.FastHelpC.UserDblClicks(); });
  return list;
}

void HintPanel::ShowList(bool rowsChanged) {
  const ListBox& control = document_.FastHelpC;
  if (!control.Visible()) {
    if (list_) list_->hide();
    return;
  }
  if (!list_) list_ = MakeList();
  const QSignalBlocker quiet(list_);
  if (rowsChanged || !list_->isVisible()) {
    list_->clear();
    for (const std::string& row : control.Rows()) list_->addItem(ToQt(row));
  }
  list_->setCurrentRow(control.ListIndex());
  PlaceList(caret_());
  list_->show();
}

void HintPanel::Place() {
  const bool blockShown = block_ && block_->isVisible(), listShown = ListIsShown();
  if (!blockShown && !listShown) return;
  const QRectF caret = caret_();
  if (blockShown) PlaceBlock(caret);
  if (listShown) PlaceList(caret);
}

QRect HintPanel::BesideLine(const QRectF& caret, QSize wanted, double left, double gapAbove) const {
  const double below = area_.height() - caret.bottom(), above = caret.top() - gapAbove;
  const bool goesBelow = wanted.height() <= below || below >= above;
  const double room = std::max(0.0, goesBelow ? below : above);
  const int height = std::min(wanted.height(), static_cast<int>(room));
  const double top = goesBelow ? caret.bottom() : above - height;
  const double inside = std::clamp(left, 0.0, std::max(0.0, static_cast<double>(area_.width() - wanted.width())));
  return {static_cast<int>(inside), static_cast<int>(std::ceil(top)), std::min(wanted.width(), area_.width()), height};
}

void HintPanel::PlaceBlock(const QRectF& caret) {
  const int oneLine = block_->fontMetrics().horizontalAdvance(block_->text()) + 2 * (block_->margin() + block_->frameWidth() + 1);
  const int width = std::min(oneLine, area_.width());
  const QSize size(width, block_->heightForWidth(width));
  block_->setGeometry(BesideLine(caret, size, (area_.width() - width) / 2.0, kRoomAboveLine));
}

void HintPanel::PlaceList(const QRectF& caret) {
  const int rowHeight = std::max(1, list_->sizeHintForRow(0)), frame = 2 * list_->frameWidth();
  const int height = std::min(kMostRows, list_->count()) * rowHeight + frame;
  const int width = list_->sizeHintForColumn(0) + list_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) + frame + rowHeight / 2;
  list_->setGeometry(BesideLine(caret, QSize(width, height), caret.left(), 0));
}

bool HintPanel::ListIsShown() const { return list_ && list_->isVisible(); }

void HintPanel::EnterList() {
  if (!ListIsShown()) return;
  if (list_->currentRow() < 0) list_->setCurrentRow(0);
  list_->setFocus();
}

}  // namespace morlan
