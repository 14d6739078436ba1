#include "core/safetystore.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <tuple>
#include <utility>

#include "core/text.h"
#include "platform/files.h"
#include "platform/services.h"

namespace morlan {
namespace {

constexpr std::string_view kText = ".tekst", kAbout = ".opis";
constexpr int kPatience = 5000;  // milliseconds

auto OrderOf(const DateTime& moment) { return std::tie(moment.year, moment.month, moment.day, moment.hour, moment.minute, moment.second); }

bool IsNewer(const KeptText& left, const KeptText& right) {
  const auto leftOrder = OrderOf(left.moment), rightOrder = OrderOf(right.moment);
  return leftOrder != rightOrder ? leftOrder > rightOrder : left.name > right.name;
}

std::string MomentText(const DateTime& moment) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%04d%02d%02d%02d%02d%02d", moment.year, moment.month, moment.day, moment.hour, moment.minute,
                moment.second);
  return text.data();
}

constexpr std::size_t kMomentLength = 14;

std::optional<DateTime> MomentIn(std::string_view text) {
  if (text.size() != kMomentLength || text.find_first_not_of("0123456789") != text.npos) return std::nullopt;
  const auto number = [&](std::size_t from, std::size_t length) { return LeadingInteger(text.substr(from, length)); };
  DateTime moment;
  moment.year = number(0, 4);
  moment.month = std::clamp(number(4, 2), 1, 12);
  moment.day = std::clamp(number(6, 2), 1, 31);
  moment.hour = number(8, 2);
  moment.minute = number(10, 2);
  moment.second = number(12, 2);
  return moment;
}

// The value behind "name=" at the front of a line; empty when there is none.
std::string LineValue(std::string_view text, std::string_view name) {
  const std::string key = Concat({CrLf, name, "="});
  const std::string whole = Concat({CrLf, text});
  const std::size_t place = Find(whole, key);
  if (!place) return "";
  const std::size_t from = place - 1 + key.size();
  return whole.substr(from, std::min(whole.find(CrLf, from), whole.size()) - from);
}

std::optional<KeptText> ReadAbout(std::string_view name, std::string_view about) {
  KeptText kept;
  kept.name = name;
  const std::string kind = LineValue(about, "rodzaj");
  const auto moment = MomentIn(LineValue(about, "chwila"));
  kept.path = LineValue(about, "plik");
  if (kind.size() != 1 || std::string_view("LRU").find(kind[0]) == std::string_view::npos || !moment || kept.path.empty())
    return std::nullopt;
  kept.kind = static_cast<KeptKind>(kind[0]);
  kept.moment = *moment;
  const std::string session = LineValue(about, "sesja");
  std::from_chars(session.data(), session.data() + session.size(), kept.session);  // 0 where it is garbled
  return kept;
}

std::string About(const KeptText& kept) {
  return Concat({"rodzaj=", std::string(1, static_cast<char>(kept.kind)), CrLf, "chwila=", MomentText(kept.moment), CrLf,
                 "sesja=", NumberText(static_cast<std::int64_t>(kept.session)), CrLf, "plik=", kept.path, CrLf});
}

// Sixteen digits that stand for a path, whatever its letter case.
std::string Digest(std::string_view path) {
  std::uint64_t hash = 14695981039346656037u;
  for (const char character : LowerCase(path)) hash = (hash ^ static_cast<unsigned char>(character)) * 1099511628211u;
  std::array<char, 17> text{};
  std::snprintf(text.data(), text.size(), "%016llx", static_cast<unsigned long long>(hash));
  return text.data();
}

}  // namespace

SafetyStore::SafetyStore(std::string directory, Files& files, Clock& clock, BackgroundFiles& background, Sessions sessions)
    : directory_(std::move(directory)), files_(files), clock_(clock), background_(background), sessions_(std::move(sessions)) {}

std::string SafetyStore::FileOf(const KeptText& kept, std::string_view extension) const {
  return Concat({directory_, "\\", kept.name, extension});
}

std::string SafetyStore::NameFor(std::string_view path, KeptKind kind) {
  const std::string session = NumberText(static_cast<std::int64_t>(sessions_.own));
  const std::string front = Concat({Digest(path), "-", std::string(1, static_cast<char>(kind)), "-"});
  if (kind == KeptKind::Unsaved) return front + session;
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "%06u", ++counter_);
  return Concat({front, MomentText(clock_.Now()), "-", session, "-", number.data()});
}

void SafetyStore::Reload() {
  background_.Finish(kPatience);
  kept_.clear();
  for (const DirectoryEntry& entry : files_.List(directory_)) {
    if (entry.isDirectory || !entry.name.ends_with(kText)) continue;
    const std::string name = entry.name.substr(0, entry.name.size() - kText.size());
    const auto about = files_.Read(Concat({directory_, "\\", name, kAbout}));
    auto kept = about ? ReadAbout(name, *about) : std::nullopt;
    if (!kept) continue;
    kept->size = entry.size;
    kept_.push_back(*std::move(kept));
  }
  std::sort(kept_.begin(), kept_.end(), IsNewer);
  loaded_ = true;
}

void SafetyStore::Keep(KeptText kept, std::string bytes) {
  if (!loaded_) Reload();
  kept.size = bytes.size();
  background_.Write(FileOf(kept, kText), std::move(bytes));
  background_.Write(FileOf(kept, kAbout), About(kept));
  std::erase_if(kept_, [&](const KeptText& earlier) { return earlier.name == kept.name; });
  kept_.insert(kept_.begin(), std::move(kept));
  DeleteBeyondBounds();
}

void SafetyStore::DeleteBeyondBounds() {
  std::vector<KeptText> beyond;
  std::map<std::pair<KeptKind, std::string>, std::size_t> ofDocument;
  std::uint64_t bytes = 0;
  std::size_t texts = 0;
  for (const KeptText& kept : kept_) {
    const std::size_t newer = ofDocument[{kept.kind, LowerCase(kept.path)}]++;
    const bool tooMany =
        (kept.kind == KeptKind::Loaded && newer >= 1) || (kept.kind == KeptKind::Replaced && newer >= kReplacedPerDocument);
    // The newest stays, however large, and so does what nobody has saved.
    const bool mayGo = texts > 0 && !(kept.kind == KeptKind::Unsaved && kept.session == sessions_.own);
    const bool tooLarge = mayGo && (texts >= kMostTexts || bytes + kept.size > kMostBytes);
    if (tooMany || tooLarge) {
      beyond.push_back(kept);
    } else {
      bytes += kept.size;
      ++texts;
    }
  }
  for (const KeptText& kept : beyond) Delete(kept);
}

void SafetyStore::KeepLoaded(std::string_view path, std::string bytes) {
  Keep({NameFor(path, KeptKind::Loaded), KeptKind::Loaded, std::string(path), clock_.Now(), sessions_.own, 0}, std::move(bytes));
}

void SafetyStore::KeepReplaced(std::string_view path, std::string bytes) {
  Keep({NameFor(path, KeptKind::Replaced), KeptKind::Replaced, std::string(path), clock_.Now(), sessions_.own, 0}, std::move(bytes));
}

void SafetyStore::KeepUnsaved(std::string_view path, std::string text) {
  Keep({NameFor(path, KeptKind::Unsaved), KeptKind::Unsaved, std::string(path), clock_.Now(), sessions_.own, 0}, std::move(text));
}

void SafetyStore::ForgetUnsavedBut(const std::vector<std::string>& paths) {
  if (!loaded_) return;  // nothing has been kept
  std::vector<KeptText> gone;
  for (const KeptText& kept : kept_)
    if (kept.kind == KeptKind::Unsaved && kept.session == sessions_.own && std::find(paths.begin(), paths.end(), kept.path) == paths.end())
      gone.push_back(kept);
  for (const KeptText& kept : gone) Delete(kept);
}

std::vector<KeptText> SafetyStore::All() {
  Reload();
  return kept_;
}

std::vector<KeptText> SafetyStore::LeftBehind() {
  std::vector<KeptText> left = All();
  std::erase_if(left, [&](const KeptText& kept) {
    return kept.kind != KeptKind::Unsaved || kept.session == sessions_.own || sessions_.isRunning(kept.session);
  });
  return left;
}

std::optional<std::string> SafetyStore::Read(const KeptText& kept) {
  background_.Finish(kPatience);
  return files_.Read(FileOf(kept, kText));
}

void SafetyStore::Delete(const KeptText& kept) {
  // The text first: without it the description counts for nothing.
  background_.Delete(FileOf(kept, kText));
  background_.Delete(FileOf(kept, kAbout));
  std::erase_if(kept_, [name = kept.name](const KeptText& other) { return other.name == name; });
}

bool SafetyStore::Finish(int milliseconds) { return background_.Finish(milliseconds); }

}  // namespace morlan
