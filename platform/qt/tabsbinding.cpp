#include "platform/qt/tabsbinding.h"

#include "platform/qt/bindings.h"
#include "platform/qt/qttext.h"

namespace morlan {

TabsBinding::TabsBinding(Tabs& tabs, FlatTabBar* bar, ToolTipOf toolTipOf)
    : ControlBinding(tabs, bar), tabs_(tabs), bar_(bar), toolTipOf_(std::move(toolTipOf)) {
  connect(bar, &QTabBar::currentChanged, this, [this](int index) {
    if (!showing_ && index >= 0) tabs_.UserSelects(index);
  });
  connect(bar, &QTabBar::tabCloseRequested, this, [this](int index) {
    if (tabs_.OnCloseTab) tabs_.OnCloseTab(index);
  });
  Synchronise();
}

void TabsBinding::Update(Aspect) { synchronise_.Ask(); }

void TabsBinding::Synchronise() {
  showing_ = true;
  const int wanted = static_cast<int>(tabs_.Count());
  while (bar_->count() > wanted) bar_->removeTab(bar_->count() - 1);
  for (int i = 0; i < wanted; ++i) {
    const Tabs::Tab& tab = tabs_.All()[static_cast<std::size_t>(i)];
    // In a tab bar "&" marks a mnemonic; in a file name it is itself.
    const QString text = ToQt(tab.text).replace(QLatin1Char('&'), QLatin1StringView("&&"));
    if (i == bar_->count()) bar_->addTab(text);
    if (bar_->tabText(i) != text) bar_->setTabText(i, text);
    bar_->setTabToolTip(i, QString::fromStdString(toolTipOf_ ? toolTipOf_(tab.tag) : ToUtf8(tab.tag)));
    bar_->SetMarked(i, tab.image == 1);
  }
  if (tabs_.Selected() >= 0) bar_->setCurrentIndex(tabs_.Selected());
  showing_ = false;
}

std::unique_ptr<ControlBinding> BindTabs(Tabs& tabs, BindingContext& context) {
  return std::make_unique<TabsBinding>(tabs, new FlatTabBar(context.parent));
}

}  // namespace morlan
