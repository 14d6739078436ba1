#include "core/browserlist.h"

#include <algorithm>

#include "core/settings.h"
#include "core/text.h"

namespace morlan {
namespace {

bool IsDefault(std::string_view row) { return EqualNoCase(WithoutBrackets(row), kDefaultBrowser); }

std::string RowOf(std::string_view browser, std::string_view current) {
  return EqualNoCase(browser, current) ? InBrackets(browser) : std::string(browser);
}

const std::string* RowInUse(std::span<const std::string> rows) {
  const auto found = std::find_if(rows.begin(), rows.end(), HasBrackets);
  return found == rows.end() ? nullptr : &*found;
}

}  // namespace

const std::string_view kDefaultBrowser = "Domyślna"_pl;

std::string InBrackets(std::string_view browser) { return Concat({"{", browser, "}"}); }

bool HasBrackets(std::string_view row) { return row.size() >= 2 && row.front() == '{' && row.back() == '}'; }

std::string_view WithoutBrackets(std::string_view row) { return HasBrackets(row) ? row.substr(1, row.size() - 2) : row; }

std::vector<std::string> LoadBrowsers(INIFile& store) {
  Settings settings(store);
  const std::int32_t count = settings.Integer(Setting::BrowserCount);
  const std::string current = settings.Text(Setting::CurrentBrowser);
  std::vector<std::string> rows;
  for (std::int32_t number = 1; number <= count; ++number)
    if (const std::string browser = settings.Text(Setting::Browser, number); !browser.empty()) rows.push_back(RowOf(browser, current));
  if (std::none_of(rows.begin(), rows.end(), IsDefault)) rows.push_back(RowOf(kDefaultBrowser, current));
  return rows;
}

void SaveBrowsers(INIFile& store, std::span<const std::string> rows) {
  Settings settings(store);
  const std::vector<std::string> before = LoadBrowsers(store);
  const auto count = std::count_if(rows.begin(), rows.end(), [](const std::string& row) { return !IsDefault(row); });
  settings.SetText(Setting::BrowserCount, NumberText(std::int64_t{count}));
  int number = 0;
  for (const std::string& row : rows)
    if (!IsDefault(row)) settings.SetText(Setting::Browser, WithoutBrackets(row), ++number);
  if (const std::string* inUse = RowInUse(rows))
    settings.SetText(Setting::CurrentBrowser, WithoutBrackets(*inUse));
  else if (RowInUse(before))
    settings.SetText(Setting::CurrentBrowser, "domyślna"_pl);
}

}  // namespace morlan
