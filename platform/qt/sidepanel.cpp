#include "platform/qt/sidepanel.h"

#include <QHBoxLayout>
#include <QListView>
#include <QPainter>
#include <QVBoxLayout>

#include "core/filepanel.h"
#include "core/paths.h"
#include "core/text.h"
#include "platform/qt/bindings.h"
#include "platform/qt/flatsplitter.h"
#include "platform/qt/qttext.h"
#include "platform/qt/rowmodel.h"
#include "platform/qt/svgicons.h"

namespace morlan {
namespace {

constexpr int kMargin = 6, kIconSize = 16;

struct KindIcon {
  std::string_view extensions;  // lower-case, each between blanks
  std::string_view icon;
};

constexpr KindIcon kKindIcons[] = {
    {" html htm shtml xhtml asp cfm cdf hst ", "file-html"},
    {" gif jpg jpeg png bmp svg webp ico ", "file-image"},
    {" mid midi wav mp3 ogg au ", "file-sound"},
};

QIcon IconOfFile(const std::string& name) {
  const std::string extension = Concat({" ", LowerCase(name.substr(std::min(name.rfind('.') + 1, name.size()))), " "});
  for (const KindIcon& kind : kKindIcons)
    if (kind.extensions.find(extension) != std::string_view::npos) return SvgIcon(kind.icon);
  return SvgIcon("file-text");
}

QIcon IconOfDirectory(const std::string& name) { return SvgIcon(name == ".." ? "up-folder" : "folder"); }

}  // namespace

PathLabel::PathLabel(QWidget* parent) : QWidget(parent) { setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed); }

void PathLabel::SetPath(const QString& path) {
  path_ = path;
  setToolTip(path);
  setAccessibleName(path);
  update();
}

QSize PathLabel::sizeHint() const { return {fontMetrics().averageCharWidth() * 20, fontMetrics().height() + 4}; }

void PathLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.drawText(rect(), Qt::AlignVCenter | Qt::TextSingleLine, fontMetrics().elidedText(path_, Qt::ElideMiddle, width()));
}

SidePanel::SidePanel(Morlan& frame, Files& files, QWidget* parent)
    : QWidget(parent),
      frame_(frame),
      context_{this, files},
      path_(new PathLabel(this)),
      lists_(new FlatSplitter(Qt::Vertical, this)),
      panelWatch_(frame.Menadzerplikow,
                  [this](Aspect aspect) {
                    if (aspect == Aspect::Visible) setVisible(frame_.Menadzerplikow.Visible());
                  }),
      pathWatch_(frame.path, [this](Aspect) { ShowPath(); }) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, 0, kMargin);
  column->setSpacing(kMargin);
  auto* place = new QHBoxLayout;
  place->setSpacing(kMargin);
  place->addWidget(AddCombo(frame.Drivelist, QStringLiteral("Dysk")));
  place->addWidget(path_, 1);
  column->addLayout(place);
  lists_->addWidget(AddList(frame.Dirlist, QStringLiteral("Katalogi")));
  lists_->addWidget(AddList(frame.Filelist, QStringLiteral("Pliki")));
  lists_->setStretchFactor(0, 1);
  lists_->setStretchFactor(1, 2);
  column->addWidget(lists_, 1);
  QWidget* types = AddCombo(frame.filetypes, QStringLiteral("Typ plików"));
  types->setSizePolicy(QSizePolicy::Expanding, types->sizePolicy().verticalPolicy());
  types->setMaximumWidth(QWIDGETSIZE_MAX);
  column->addWidget(types);
  ShowPath();
  setMinimumWidth(150);
  setVisible(frame.Menadzerplikow.Visible());
}

QWidget* SidePanel::AddCombo(ComboBox& box, const QString& name) {
  box.WidthInCharacters = 3;
  bindings_.push_back(BindComboBox(box, context_));
  bindings_.back()->Widget()->setAccessibleName(name);
  return bindings_.back()->Widget();
}

QListView* SidePanel::AddList(ListBox& list, const QString& name) {
  list.HeightInRows = 4;
  bindings_.push_back(BindListBox(list, context_));
  auto* view = static_cast<QListView*>(bindings_.back()->Widget());
  view->setAccessibleName(name);
  view->setIconSize(QSize(kIconSize, kIconSize));
  view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  view->setTextElideMode(Qt::ElideMiddle);
  auto* rows = static_cast<RowModel*>(view->model());
  const bool files = &list == &frame_.Filelist;
  rows->iconOf = files ? IconOfFile : IconOfDirectory;
  if (!files) return view;
  view->setDragEnabled(true);
  view->setDragDropMode(QAbstractItemView::DragOnly);
  rows->draggedPath = [this](std::size_t row) {
    if (row >= frame_.Filelist.ListCount()) return std::string();
    return context_.files.ToNative(Concat({WithBackslash(CurrentPanelDirectory(frame_.program())), frame_.Filelist.List(row)}));
  };
  return view;
}

void SidePanel::ShowPath() { path_->SetPath(QString::fromStdString(context_.files.ToNative(frame_.path.Caption()))); }

}  // namespace morlan
