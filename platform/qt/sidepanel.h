// The side panel: the drive, the folders and the files of one directory.
#pragma once

#include <QSplitter>
#include <QWidget>
#include <memory>
#include <vector>

#include "core/morlan.h"
#include "platform/qt/controlbinding.h"
#include "platform/qt/controlwatch.h"

class QListView;

namespace morlan {

// One line that leaves out its middle when there is no room.
class PathLabel : public QWidget {
 public:
  explicit PathLabel(QWidget* parent = nullptr);
  void SetPath(const QString& path);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString path_;
};

class SidePanel : public QWidget {
 public:
  SidePanel(Morlan& frame, Files& files, QWidget* parent = nullptr);
  QSplitter& Lists() { return *lists_; }

 private:
  QListView* AddList(ListBox& list, const QString& name);
  QWidget* AddCombo(ComboBox& box, const QString& name);
  void ShowPath();

  Morlan& frame_;
  BindingContext context_;
  std::vector<std::unique_ptr<ControlBinding>> bindings_;
  PathLabel* path_;
  QSplitter* lists_;
  ControlWatch panelWatch_, pathWatch_;
};

}  // namespace morlan
