#include "platform/qt/menuview.h"

#include <QMenu>
#include <algorithm>

#include "platform/qt/menuicons.h"
#include "platform/qt/qttext.h"
#include "platform/qt/svgicons.h"

namespace morlan {
namespace {

constexpr std::string_view kLastOpened = "mn_lastopen";

// A path in a menu stands as people know it, and its "&" is no mnemonic.
QString CaptionOf(const MenuEntry& entry, Files& files) {
  if (!entry.name.starts_with(kLastOpened)) return ToQt(entry.caption);
  return QString::fromStdString(files.ToNative(entry.caption)).replace(QLatin1Char('&'), QLatin1StringView("&&"));
}

QString ShortcutOf(const MenuEntry& entry) {
  QString shortcut = ToQt(entry.shortcut);
  return shortcut.isEmpty() ? shortcut : shortcut.prepend(QLatin1Char('\t'));
}

// The shortcut stands as a text only: keys find their way to commands through the menu itself.
void Fill(QMenu& menu, const std::vector<MenuEntry>& entries, Files& files, const RunEntry& run) {
  for (const MenuEntry& entry : entries) {
    if (!entry.visible) continue;
    if (entry.IsSeparator()) {
      menu.addSeparator();
      continue;
    }
    if (!entry.children.empty()) {
      QMenu* below = menu.addMenu(CaptionOf(entry, files));
      below->setEnabled(entry.enabled);
      Fill(*below, entry.children, files, run);
      continue;
    }
    QAction* action = menu.addAction(CaptionOf(entry, files) + ShortcutOf(entry));
    action->setObjectName(ToQt(entry.name));
    action->setEnabled(entry.enabled);
    action->setIcon(SvgIcon(MenuIconOf(entry.name)));
    action->setCheckable(entry.checkable || entry.checked);
    action->setChecked(entry.checked);
    QObject::connect(action, &QAction::triggered, action, [run, name = entry.name] { run(name); });
  }
}

}  // namespace

MenuBarView::MenuBarView(QMenuBar& bar, Files& files, RunEntry run) : bar_(bar), files_(files), run_(std::move(run)) {}

MenuBarView::~MenuBarView() {
  if (menu_) menu_->AttachView(nullptr);
}

void MenuBarView::Show(Menu& menu) {
  if (menu_ == &menu) return;
  if (menu_) menu_->AttachView(nullptr);
  menu_ = &menu;
  menu.AttachView(this);
  synchronise_.Ask();
  synchronise_.DoNow();
}

// Only the titles of the bar are made here; a menu is filled each time it opens.
void MenuBarView::Synchronise() {
  const std::vector<MenuEntry>& entries = menu_->Entries();
  QList<QAction*> titles = bar_.actions();
  while (titles.size() < static_cast<qsizetype>(entries.size())) {
    const std::size_t place = static_cast<std::size_t>(titles.size());
    auto* menu = new QMenu(&bar_);
    QObject::connect(menu, &QMenu::aboutToShow, &bar_, [this, menu, place] {
      menu->clear();
      if (place < menu_->Entries().size()) Fill(*menu, menu_->Entries()[place].children, files_, run_);
    });
    titles += bar_.addMenu(menu);
  }
  for (qsizetype i = 0; i < titles.size(); ++i) {
    const bool present = i < static_cast<qsizetype>(entries.size());
    titles[i]->setVisible(present && entries[static_cast<std::size_t>(i)].visible);
    if (!present) continue;
    titles[i]->setText(ToQt(entries[static_cast<std::size_t>(i)].caption));
    titles[i]->setEnabled(entries[static_cast<std::size_t>(i)].enabled);
  }
}

QMenu* MakePopUp(const Menu& menu, Files& files, const RunEntry& run, QWidget* parent) {
  // Some pop-ups hang below one title of their own.
  const std::vector<MenuEntry>& top = menu.Entries();
  const bool titled = top.size() == 1 && !top.front().children.empty();
  auto* popUp = new QMenu(parent);
  popUp->setAttribute(Qt::WA_DeleteOnClose);
  // A command may let events be handled, which deletes the closed menu while it still works on the click.
  const RunEntry runLater = [parent, run](const std::string& name) {
    QMetaObject::invokeMethod(
        parent, [run, name] { run(name); }, Qt::QueuedConnection);
  };
  Fill(*popUp, titled ? top.front().children : top, files, runLater);
  if (!popUp->isEmpty()) return popUp;
  delete popUp;
  return nullptr;
}

}  // namespace morlan
