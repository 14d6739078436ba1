#include "platform/qt/commandpanel.h"

#include <QFrame>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/bindings.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

constexpr std::string_view kGeneralToolbar = "Toolbar0";
// The buttons that choose one of the tag lists, and those that insert from it, stand beside the tag list.
constexpr std::string_view kTagListToolbars[] = {"Toolbar10", "Toolbar7"};
constexpr std::string_view kMacroToolbar = "Toolbar16";
constexpr int kMargin = 6, kSpacing = 6;

bool HasUse(const ComboBox& box) { return box.OnChange || box.OnClick || box.OnKeyDown; }

QFrame* MakeSeparator(QWidget* parent) {
  auto* line = new QFrame(parent);
  line->setFrameStyle(int(QFrame::VLine) | int(QFrame::Plain));
  line->setForegroundRole(QPalette::Mid);
  return line;
}

}  // namespace

CommandPanel::CommandPanel(Morlan& frame, Files& files, QWidget* parent)
    : QWidget(parent), frame_(frame), context_{this, files}, watch_(frame.commandline, [this](Aspect aspect) {
        if (aspect == Aspect::Visible) setVisible(frame_.commandline.Visible());
      }) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(MakeFirstLine());
  column->addWidget(MakeTabBar(frame.objectsmenu));
  column->addWidget(MakeTabBar(frame.CDFObject));
  toolbarLine_ = new QWidget(this);
  toolbarRow_ = new QHBoxLayout(toolbarLine_);
  toolbarRow_->setContentsMargins(kMargin, 3, kMargin, 4);
  toolbarRow_->setSpacing(kSpacing);
  toolbarRow_->addStretch(1);
  column->addWidget(toolbarLine_);
  for (TabLine& line : tabLines_) ShowTabs(line);
  ShowToolbars();
  setVisible(frame.commandline.Visible());
}

QWidget* CommandPanel::MakeFirstLine() {
  auto* line = new QWidget(this);
  auto* row = new QHBoxLayout(line);
  row->setContentsMargins(kMargin, 4, kMargin, 3);
  row->setSpacing(kSpacing);
  if (ToolBar* general = ToolbarNamed(kGeneralToolbar)) row->addWidget(ToolbarWidget(*general, line));
  row->addWidget(MakeSeparator(line));
  row->addWidget(MakeCombo(frame_.tags, QStringLiteral("Lista znaczników"), 22));
  for (const std::string_view name : kTagListToolbars)
    if (ToolBar* toolBar = ToolbarNamed(name); toolBar && toolBar->HasVisibleItems()) row->addWidget(ToolbarWidget(*toolBar, line));
  // Nothing to choose from until a command listens to it.
  if (HasUse(frame_.Combo1)) row->addWidget(MakeCombo(frame_.Combo1, QStringLiteral("Style"), 14));
  row->addStretch(1);
  return line;
}

QWidget* CommandPanel::MakeCombo(ComboBox& box, const QString& name, int widthInCharacters) {
  box.WidthInCharacters = widthInCharacters;
  combos_.push_back(BindComboBox(box, context_));
  QWidget* widget = combos_.back()->Widget();
  widget->setAccessibleName(name);
  if (widget->toolTip().isEmpty()) widget->setToolTip(name);
  return widget;
}

FlatTabBar* CommandPanel::MakeTabBar(Tabs& tabs) {
  auto* bar = new FlatTabBar(this);
  bar->setFocusPolicy(Qt::TabFocus);
  bar->setAccessibleName(QStringLiteral("Paski narzędzi"));
  bar->setObjectName(ToQt(tabs.Name()));
  const std::size_t place = tabLines_.size();
  tabLines_.push_back({&tabs, bar, std::make_unique<ControlWatch>(tabs, [this, place](Aspect) {
                         ShowTabs(tabLines_[place]);
                         showToolbars_.Ask();
                       })});
  connect(bar, &QTabBar::currentChanged, this, [this, &tabs](int index) {
    if (index < 0 || index == tabs.Selected()) return;
    tabs.UserSelects(index);
    showToolbars_.Ask();
    showToolbars_.DoNow();
  });
  return bar;
}

void CommandPanel::ShowTabs(TabLine& line) {
  const QSignalBlocker quiet(line.bar);
  const int count = static_cast<int>(line.tabs->Count());
  while (line.bar->count() > count) line.bar->removeTab(line.bar->count() - 1);
  for (int i = 0; i < count; ++i) {
    const QString text = ToQt(line.tabs->All()[static_cast<std::size_t>(i)].text);
    if (i == line.bar->count())
      line.bar->addTab(text);
    else if (line.bar->tabText(i) != text)
      line.bar->setTabText(i, text);
  }
  line.bar->setCurrentIndex(line.tabs->Selected());
  line.bar->setVisible(line.tabs->Visible() && count > 0);
  line.bar->setEnabled(line.tabs->Enabled());
}

void CommandPanel::ShowToolbars() {
  std::string wanted;
  for (const TabLine& line : tabLines_)
    if (line.tabs->Visible() && line.tabs->Selected() >= 0) wanted = line.tabs->All()[static_cast<std::size_t>(line.tabs->Selected())].key;
  ToolBar* shown = wanted.empty() ? nullptr : ToolbarNamed(wanted);
  toolbarLine_->setVisible(shown != nullptr);
  if (!shown) return;
  if (!toolbars_.contains(wanted)) toolbarRow_->insertWidget(0, ToolbarWidget(*shown, toolbarLine_));
  for (const auto& [name, view] : toolbars_)
    if (view->Widget()->parentWidget() == toolbarLine_) view->Widget()->setVisible(name == wanted);
  ShowMacroList(wanted == kMacroToolbar);
}

// The macros to choose from stand in front of the buttons that run them.
void CommandPanel::ShowMacroList(bool visible) {
  if (visible && !macroList_) toolbarRow_->insertWidget(0, macroList_ = MakeCombo(frame_.makro, QStringLiteral("Makra"), 24));
  if (macroList_) macroList_->setVisible(visible);
}

QWidget* CommandPanel::ToolbarWidget(ToolBar& toolBar, QWidget* parent) {
  auto& view = toolbars_[toolBar.Name()];
  if (!view) view = std::make_unique<ToolBarView>(toolBar, new QWidget(parent));
  return view->Widget();
}

ToolBar* CommandPanel::ToolbarNamed(std::string_view name) const {
  const auto found = std::find_if(frame_.toolbars.begin(), frame_.toolbars.end(), [&](const auto& bar) { return bar->Name() == name; });
  return found == frame_.toolbars.end() ? nullptr : found->get();
}

}  // namespace morlan
