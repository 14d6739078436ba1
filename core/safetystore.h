// Keeps texts against loss: what a file held when it was read, what each of the last saves replaced, and what has not been saved
// yet. Each kept text is two files of the store's directory: NAME.tekst with its bytes, and NAME.opis with a line each (CR LF):
//   rodzaj=U            L as loaded, R replaced by a save, U unsaved
//   chwila=20261121071000   year to second, local time
//   sesja=1234          the run of the program that kept it, by a number that no other run has
//   plik=c:\strona.html     the document's name
// An unsaved text goes when its document is saved or closed, so that one that is left by a program which no longer runs tells of
// an end that nobody wanted.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/datetime.h"

namespace morlan {

class BackgroundFiles;
class Clock;
class Files;

enum class KeptKind : char { Loaded = 'L', Replaced = 'R', Unsaved = 'U' };

struct KeptText {
  std::string name;  // of its files, without their extension
  KeptKind kind = KeptKind::Unsaved;
  std::string path;  // the document's name, in the program's form
  DateTime moment;
  std::uint64_t session = 0, size = 0;  // size in bytes
};

// The runs of the program, by number.
struct Sessions {
  std::uint64_t own = 0;
  std::function<bool(std::uint64_t number)> isRunning;
};

class SafetyStore {
 public:
  static constexpr std::size_t kReplacedPerDocument = 10, kMostTexts = 1000;
  static constexpr std::uint64_t kMostBytes = 256u << 20;  // of all together; the oldest goes first

  // The directory stands already, in the program's form without a trailing "\".
  SafetyStore(std::string directory, Files& files, Clock& clock, BackgroundFiles& background, Sessions sessions);

  void KeepLoaded(std::string_view path, std::string bytes);
  void KeepReplaced(std::string_view path, std::string bytes);
  void KeepUnsaved(std::string_view path, std::string text);
  // The own program's unsaved texts go, but for those of the named documents.
  void ForgetUnsavedBut(const std::vector<std::string>& paths);

  // What is kept, the newest first.
  std::vector<KeptText> All();
  // The unsaved texts of programs that run no longer, the newest first.
  std::vector<KeptText> LeftBehind();
  // Nothing when it is gone.
  std::optional<std::string> Read(const KeptText& kept);
  void Delete(const KeptText& kept);
  // Waits until everything kept is in its file; false when that took longer.
  bool Finish(int milliseconds);

 private:
  void Reload();
  void Keep(KeptText kept, std::string bytes);
  void DeleteBeyondBounds();
  std::string FileOf(const KeptText& kept, std::string_view extension) const;
  std::string NameFor(std::string_view path, KeptKind kind);

  std::string directory_;
  Files& files_;
  Clock& clock_;
  BackgroundFiles& background_;
  Sessions sessions_;
  std::vector<KeptText> kept_;
  bool loaded_ = false;
  unsigned counter_ = 0;
};

}  // namespace morlan
