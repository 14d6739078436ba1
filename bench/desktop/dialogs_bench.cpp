// Opening the dialogs: from the command to the painted window, for the first time and after.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <algorithm>
#include <chrono>
#include <map>
#include <string>
#include <vector>

#include "platform/qt/desktop.h"
#include "platform/qt/formdialog.h"
#include "tests/desktop/support/formtour.h"

namespace morlan {
namespace {

using Clock = std::chrono::steady_clock;
enum class Use { First, Again };

double MillisecondsSince(Clock::time_point before) { return std::chrono::duration<double, std::milli>(Clock::now() - before).count(); }

// The time of one opening; 0 when the form did not come up.
double OpenedIn(FormTour& tour, const FormStop& stop) {
  const auto before = Clock::now();
  double milliseconds = 0;
  tour.Open(stop, [&](FormDialog&) { milliseconds = MillisecondsSince(before); });
  return milliseconds;
}

// Tells when a dialog has been painted for the first time.
class FirstPainting : public QObject {
 public:
  FirstPainting() { qApp->installEventFilter(this); }
  double milliseconds = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && !seen_ && dynamic_cast<FormDialog*>(watched)) {
      seen_ = true;
      QMetaObject::invokeMethod(
          this, [this] { milliseconds = MillisecondsSince(before_); }, Qt::QueuedConnection);
    }
    return false;
  }

 private:
  Clock::time_point before_ = Clock::now();
  bool seen_ = false;
};

double MedianOf(std::vector<double> times) {
  const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
  std::nth_element(times.begin(), middle, times.end());
  return *middle;
}

// Tells the form that takes longest, by the median of its openings.
void OpenForms(benchmark::State& state, Use use) {
  std::map<std::string, std::vector<double>> times;
  for (auto _ : state) {
    FormTour tour;
    double all = 0;
    for (const FormStop& stop : tour.Stops()) {
      // A form that shows a tag has been made already.
      if (use == Use::First && !stop.tag.empty()) continue;
      if (use == Use::Again) OpenedIn(tour, stop);
      times[stop.Name()].push_back(OpenedIn(tour, stop));
      all += times[stop.Name()].back();
    }
    state.SetIterationTime(all / 1000);
  }
  double worst = 0, sum = 0;
  for (const auto& [form, openings] : times) {
    const double median = MedianOf(openings);
    sum += median;
    if (median <= worst) continue;
    worst = median;
    state.SetLabel(form);
  }
  state.counters["worst_ms"] = worst;
  state.counters["mean_ms"] = sum / static_cast<double>(times.size());
  state.counters["forms"] = static_cast<double>(times.size());
}

void FirstUse(benchmark::State& state) { OpenForms(state, Use::First); }
void LaterUse(benchmark::State& state) { OpenForms(state, Use::Again); }

// The sheet with the most rows, until it is painted; its further rows and pages come behind that.
void PropertySheet(benchmark::State& state) {
  FormTour tour;
  const FormStop stop{"Properties", "tag", "<INPUT TYPE=\"text\" NAME=\"imie\" VALUE=\"Ala\" DISABLED>"};
  std::vector<double> times;
  for (auto _ : state) {
    FirstPainting painting;
    tour.Open(stop, [](FormDialog&) {});
    times.push_back(painting.milliseconds);
    state.SetIterationTime(painting.milliseconds / 1000);
  }
  state.counters["first_ms"] = times.front();
  state.counters["median_ms"] = MedianOf(times);
}

BENCHMARK(FirstUse)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(LaterUse)->UseManualTime()->Iterations(7)->Unit(benchmark::kMillisecond);
BENCHMARK(PropertySheet)->UseManualTime()->Iterations(41)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace morlan

int main(int count, char** arguments) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  morlan::PrepareToolkit();
  QApplication application(count, arguments);
  morlan::SetUpToolkit();
  benchmark::Initialize(&count, arguments);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
