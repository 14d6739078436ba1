#include "platform/qt/editorpages.h"

#include <algorithm>

#include "core/document.h"
#include "platform/qt/editorview.h"

namespace morlan {

EditorPages::EditorPages(QWidget* parent) : QStackedWidget(parent) {}

EditorPages::~EditorPages() {
  ForgetClosed();
  for (const Page& page : pages_) delete page.view;
}

void EditorPages::Activate(TEditor& document) {
  EditorWidget* view = ViewOf(document);
  if (!view) {
    view = new EditorWidget(document, this);
    view->SetLineNumbersShown(lineNumbersShown_);
    pages_.push_back({&document, view});
    addWidget(view);
  }
  setCurrentWidget(view);
}

void EditorPages::Close(TEditor& document) {
  const auto page = std::find_if(pages_.begin(), pages_.end(), [&](const Page& open) { return open.document == &document; });
  if (page == pages_.end()) return;
  removeWidget(page->view);
  page->view->hide();
  closed_.push_back(page->view);
  pages_.erase(page);
}

void EditorPages::ForgetClosed() {
  for (EditorWidget* view : closed_) delete view;
  closed_.clear();
}

EditorWidget* EditorPages::Current() const {
  const auto page = std::find_if(pages_.begin(), pages_.end(), [this](const Page& open) { return open.view == currentWidget(); });
  return page == pages_.end() ? nullptr : page->view;
}

EditorWidget* EditorPages::ViewOf(const TEditor& document) const {
  const auto page = std::find_if(pages_.begin(), pages_.end(), [&](const Page& open) { return open.document == &document; });
  return page == pages_.end() ? nullptr : page->view;
}

void EditorPages::SetLineNumbersShown(bool shown) {
  lineNumbersShown_ = shown;
  for (const Page& page : pages_) page.view->SetLineNumbersShown(shown);
}

}  // namespace morlan
