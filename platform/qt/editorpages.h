// The text views of the open documents, one above the other. A view is made when its document first comes forward.
#pragma once

#include <QStackedWidget>
#include <memory>
#include <vector>

namespace morlan {

class EditorWidget;
class TEditor;

class EditorPages : public QStackedWidget {
 public:
  explicit EditorPages(QWidget* parent = nullptr);
  ~EditorPages() override;

  void Activate(TEditor& document);
  // The view is hidden at once and goes with ForgetClosed; it must be gone before its document.
  void Close(TEditor& document);
  void ForgetClosed();
  EditorWidget* Current() const;
  EditorWidget* ViewOf(const TEditor& document) const;  // null while the document was never active
  void SetLineNumbersShown(bool shown);

 private:
  struct Page {
    TEditor* document;
    EditorWidget* view;
  };
  std::vector<Page> pages_;
  std::vector<EditorWidget*> closed_;
  bool lineNumbersShown_ = true;
};

}  // namespace morlan
