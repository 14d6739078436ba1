#include "platform/qt/mnemonics.h"

#include <QAbstractButton>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QStackedWidget>

#include "platform/qt/qttext.h"

namespace morlan {
namespace {

QChar MnemonicOf(const QString& caption) {
  const QString keys = QKeySequence::mnemonic(caption).toString(QKeySequence::PortableText);
  return keys.isEmpty() ? QChar() : keys.back().toLower();
}

// The page of a tab widget on which a control lies; null for one that is seen beside all pages.
const QWidget* PageOf(const QWidget& widget) {
  for (const QWidget* inner = &widget; inner; inner = inner->parentWidget())
    if (qobject_cast<const QStackedWidget*>(inner->parentWidget())) return inner;
  return nullptr;
}

template <class Widget>
void PartOne(Widget& widget, QSet<QChar>& taken) {
  const QString caption = widget.text();
  if (MnemonicOf(caption).isNull()) return;
  if (taken.contains(MnemonicOf(caption))) widget.setText(WithFreeMnemonic(caption, taken));
  if (const QChar letter = MnemonicOf(widget.text()); !letter.isNull()) taken.insert(letter);
}

void Part(QWidget& widget, QSet<QChar>& taken) {
  if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return PartOne(*button, taken);
  auto* label = qobject_cast<QLabel*>(&widget);
  if (label && label->buddy()) PartOne(*label, taken);
}

}  // namespace

QString WithFreeMnemonic(const QString& caption, const QSet<QChar>& taken) {
  const QString plain = WithoutMnemonic(caption);
  const auto escaped = [](QStringView text) { return text.toString().replace(u'&', QStringLiteral("&&")); };
  const auto beginsWord = [&](qsizetype i) { return i == 0 || plain[i - 1].isSpace(); };
  const auto hasKey = [&](qsizetype i) { return plain[i].unicode() < 0x80; };
  qsizetype best = -1;
  int bestRank = 0;
  for (qsizetype i = 0; i < plain.size(); ++i) {
    if (!plain[i].isLetterOrNumber() || taken.contains(plain[i].toLower())) continue;
    const int rank = 1 + (beginsWord(i) ? 1 : 0) + (hasKey(i) ? 2 : 0);
    if (rank <= bestRank) continue;
    bestRank = rank;
    best = i;
  }
  if (best < 0) return escaped(plain);
  return escaped(QStringView(plain).left(best)) + u'&' + escaped(QStringView(plain).mid(best));
}

void PartMnemonics(QWidget& dialog) {
  QMap<const QWidget*, QSet<QChar>> taken;
  const QList<QWidget*> widgets = dialog.findChildren<QWidget*>();
  for (QWidget* widget : widgets)
    if (!PageOf(*widget)) Part(*widget, taken[nullptr]);
  for (QWidget* widget : widgets) {
    const QWidget* page = PageOf(*widget);
    if (!page) continue;
    if (!taken.contains(page)) taken[page] = taken[nullptr];
    Part(*widget, taken[page]);
  }
}

}  // namespace morlan
