#include "platform/qt/filedialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QTreeView>

#include "core/paths.h"
#include "core/text.h"
#include "platform/qt/filefilters.h"
#include "platform/qt/messages.h"
#include "platform/qt/qttext.h"

namespace morlan {
namespace {

QString Native(Files& files, std::string_view path) { return path.empty() ? QString() : QString::fromStdString(files.ToNative(path)); }

// Sizes, kinds and dates are told in full; the names get what is left.
void SetUpColumns(QFileDialog& dialog) {
  const int character = dialog.fontMetrics().averageCharWidth();
  dialog.resize(dialog.sizeHint().expandedTo(QSize(character * 110, character * 66)));
  auto* files = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (!files) return;
  files->header()->setStretchLastSection(false);
  files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

std::string Chosen(Files& files, const QFileDialog& dialog) {
  const QStringList names = dialog.selectedFiles();
  return names.isEmpty() ? std::string() : files.FromNative(names.front().toStdString());
}

// The file that a save under this name will really write: a name without a dot gets its extension later.
std::string WrittenFile(const FileRequest& request, const std::string& path) {
  return FileNameOf(path).find('.') == std::string::npos ? Concat({path, request.extension}) : path;
}

bool MayOverwrite(const FileRequest& request, Files& files, const std::string& path, QWidget* parent) {
  const std::string written = WrittenFile(request, path);
  if (!request.overwritePrompt || !files.Size(written)) return true;
  MessageRequest question;
  question.text = Concat({"Plik "_pl, FromQt(Native(files, written)), " już istnieje. Zastąpić go ?"_pl});
  question.title = request.title;
  question.icon = Icon::Warning;
  question.buttons = Buttons::YesNo;
  return AskMessage(question, parent) == Answer::Yes;
}

}  // namespace

std::optional<std::string> AskForFile(const FileRequest& request, Files& files, QWidget* parent) {
  const bool save = request.mode == FileRequest::Mode::Save;
  QFileDialog dialog(parent, ToQt(request.title), Native(files, request.directory));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The question is put here, since only here the name with its extension is known.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  dialog.setNameFilters(QtFilters(request.filter));
  SetUpColumns(dialog);
  if (!request.fileName.empty()) dialog.selectFile(ToQt(request.fileName));
  while (dialog.exec() == QDialog::Accepted) {
    const std::string path = Chosen(files, dialog);
    if (path.empty()) return std::nullopt;
    if (!save || MayOverwrite(request, files, path, parent)) return path;
  }
  return std::nullopt;
}

std::optional<std::string> AskForDirectory(std::string_view title, std::string_view directory, Files& files, QWidget* parent) {
  QFileDialog dialog(parent, ToQt(title), Native(files, directory));
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  SetUpColumns(dialog);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  const std::string path = Chosen(files, dialog);
  return path.empty() ? std::nullopt : std::optional(path);
}

}  // namespace morlan
