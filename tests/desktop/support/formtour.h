// A tour of all forms: a whole program in its window, with the shipped data, opens them one after the other.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace morlan {

class FormDialog;
class MainWindow;
class Program;

// A stop of the tour: a form, and the tag that it shows. Without a tag it comes up as by its own command.
struct FormStop {
  std::string form;
  std::string state;  // which of several pictures of one form, such as "select"
  std::string tag;
  std::string Name() const { return state.empty() ? form : form + "-" + state; }
};

class FormTour {
 public:
  enum class Scheme { Light, Dark };
  explicit FormTour(Scheme scheme = Scheme::Light);
  ~FormTour();

  // Every form that is registered under a name, the ones that edit a tag both filled and as they come up for a new one.
  std::vector<FormStop> Stops();
  // Opens the form and calls the visit while it is up and painted; then the form is closed. False when it did not come up.
  bool Open(const FormStop& stop, const std::function<void(FormDialog& dialog)>& visit);

  Program& program();
  MainWindow& Window();

 private:
  class Running;
  std::unique_ptr<Running> running_;
};

// Shows each page of a dialog with tabs, counted from 1; a dialog without tabs has the one page 0.
void VisitPages(FormDialog& dialog, const std::function<void(int page)>& visit);
// Lets the events that are waiting be handled, so that new windows are painted.
void HandleEvents();

}  // namespace morlan
