// From the start of the process to the first painted window that takes keys.
#include <benchmark/benchmark.h>
#include <signal.h>
#include <spawn.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <string>

namespace {

class Profile {
 public:
  Profile() {
    std::string pattern = (std::filesystem::temp_directory_path() / "morlan7-bench-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    setenv("XDG_CONFIG_HOME", (folder_ / "config").c_str(), 1);
    setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
    setenv("MORLAN7_DATA", MORLAN7_TREE, 1);
    setenv("MORLAN7_TRACE_START", "1", 1);
    if (!getenv("DISPLAY") && !getenv("WAYLAND_DISPLAY")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  }
  ~Profile() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

 private:
  std::filesystem::path folder_;
};

// Waits until the program tells of its first paint; false when it ends without.
bool WaitForPaint(int output) {
  std::string told;
  char buffer[256];
  for (ssize_t count; (count = read(output, buffer, sizeof buffer)) > 0;) {
    told.append(buffer, static_cast<std::size_t>(count));
    if (told.find("first paint") != std::string::npos) return true;
  }
  return false;
}

// Seconds until the window is painted; negative when it never was.
double StartOnce() {
  int ends[2];
  if (pipe(ends) != 0) return -1;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
  posix_spawn_file_actions_addclose(&actions, ends[0]);
  std::string program = MORLAN7_PROGRAM;
  char* arguments[] = {program.data(), nullptr};
  pid_t child = 0;
  const auto begin = std::chrono::steady_clock::now();
  const bool started = posix_spawn(&child, arguments[0], &actions, nullptr, arguments, environ) == 0;
  close(ends[1]);
  const bool painted = started && WaitForPaint(ends[0]);
  const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - begin;
  close(ends[0]);
  posix_spawn_file_actions_destroy(&actions);
  if (started) {
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
  }
  return painted ? passed.count() : -1;
}

void BM_StartToFirstPaint(benchmark::State& state) {
  const Profile profile;
  StartOnce();
  for (auto _ : state) {
    const double seconds = StartOnce();
    if (seconds < 0) return state.SkipWithError("the program showed no window");
    state.SetIterationTime(seconds);
  }
}
BENCHMARK(BM_StartToFirstPaint)->UseManualTime()->Iterations(20)->Unit(benchmark::kMillisecond)->Repetitions(3)->ReportAggregatesOnly();

}  // namespace

BENCHMARK_MAIN();
