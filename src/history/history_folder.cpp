#include "history/history_folder.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <tuple>

#include "core/text.h"

namespace golf {
namespace {

constexpr std::string_view kFolder = "transfer-history";
constexpr std::string_view kEnding = ".run";
constexpr std::string_view kKeptEnding = ".kept";
constexpr std::size_t kNumberDigits = 6;

// Removes the leading number from a text and returns it. Returns nothing if there is none.
std::optional<std::int32_t> TakeNumber(std::string_view& text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || number < 0) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

std::optional<HistoryName> NameOf(const std::string& text) {
  HistoryName name{.text = text};
  std::string_view rest = text;
  if (!EqualIgnoringCase(LastCharacters(rest, kEnding.size()), kEnding)) return std::nullopt;
  rest.remove_suffix(kEnding.size());
  const auto take = [&](bool begins_with_dash) {
    if (begins_with_dash) {
      if (!rest.starts_with('-')) return std::optional<std::int32_t>();
      rest.remove_prefix(1);
    }
    return TakeNumber(rest);
  };
  const auto run = take(false);
  if (!run || *run < 1 || !take(true) || !take(true)) return std::nullopt;
  name.run = *run;
  if (!rest.empty()) {
    const auto part = take(true);
    if (!part || *part < 2 || !rest.empty()) return std::nullopt;
    name.part = *part;
  }
  return name;
}

}  // namespace

HistoryFolder::HistoryFolder(Platform& platform) : gate_(platform) {
  paths_.install = platform.ProgramFolder();
  paths_.separator = platform.Separator();
  paths_.history = paths_.install + std::string(kFolder) + paths_.separator;
}

bool HistoryFolder::Exists() { return gate_.platform().FolderExists(paths_.history); }

void HistoryFolder::Make() {
  if (!Exists()) gate_.CreateFolder(paths_.install + std::string(kFolder));
  // Also syncs if the folder exists: the process that created it may have ended before the sync.
  gate_.SyncFolder(paths_.install);
}

std::vector<HistoryName> HistoryFolder::List() {
  std::vector<HistoryName> names;
  if (!Exists()) return names;
  for (const std::string& text : gate_.platform().FileNames(paths_.history)) {
    if (auto name = NameOf(text)) names.push_back(std::move(*name));
  }
  std::sort(names.begin(), names.end(), [](const HistoryName& a, const HistoryName& b) {
    return std::tie(a.run, a.part, a.text) < std::tie(b.run, b.part, b.text);
  });
  return names;
}

HistoryName HistoryFolder::Next(DateValue moment, bool continues) {
  const std::vector<HistoryName> names = List();
  HistoryName name;
  if (!names.empty()) name.run = names.back().run;
  if (continues && !names.empty()) {
    name.part = names.back().part + 1;
  } else {
    ++name.run;
  }
  std::string number = std::to_string(name.run);
  number.insert(0, kNumberDigits - std::min(kNumberDigits, number.size()), '0');
  name.text = number + "-" + FormatPicture(CivilFromDate(moment), "yyyyMMdd'-'HHmmss");
  if (name.part > 1) name.text += "-" + std::to_string(name.part);
  name.text += kEnding;
  return name;
}

std::string HistoryFolder::KeptName(const HistoryName& run, std::size_t number) {
  return run.text.substr(0, run.text.size() - kEnding.size()) + "." + std::to_string(number) +
         std::string(kKeptEnding);
}

std::unique_ptr<HistoryFile> HistoryFolder::Open(const HistoryName& name, FileAccess access) {
  return std::make_unique<HistoryFile>(Path(name), gate_.platform().Open(Path(name), access));
}

void HistoryFolder::Forget(const HistoryName& name) {
  const std::string beginning = KeptName(name, 0).substr(0, name.text.size() - kEnding.size() + 1);
  for (const std::string& text : gate_.platform().FileNames(paths_.history)) {
    const std::string_view ending = LastCharacters(text, kKeptEnding.size());
    if (text.starts_with(beginning) && EqualIgnoringCase(ending, kKeptEnding)) {
      gate_.Delete(paths_.history + text);
    }
  }
  gate_.Delete(Path(name));  // last, since only its name leads to the kept files
  gate_.SyncFolder(paths_.history);
}

}  // namespace golf
