#include "screens/history/run_undo.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "core/date_value.h"
#include "outlets/change_summary.h"
#include "outlets/record_kinds.h"
#include "screens/file_changes.h"
#include "screens/history/change_preview.h"
#include "transfers/undo_run.h"

namespace golf {
namespace {

constexpr const char* kTitle = "Undo";

constexpr std::pair<std::string_view, const char*> kNames[] = {
    {"courses-kv-to-qb", "courses to QB"},     {"golfers-kv-to-qb", "golfers to QB"},
    {"golfers-kv-to-zd", "golfers to ZD"},     {"golfers-zd-to-qb", "golfers of ZD to QB"},
    {"scores-qb-to-kv", "scores of QB to KV"}, {"scores-zd-to-kv", "scores of ZD to KV"},
    {"new-kv-roster", "new roster of KV"},     {"delete-kv-roster", "roster of KV deleted"},
    {"save-qb-roster", "roster of QB saved"},  {"delete-qb-roster", "roster of QB deleted"},
    {"course-indexes", "course indexes"},      {"save-layout", "layout saved"},
    {"delete-layout", "layout deleted"},       {"copy-layout", "layout duplicated"},
    {"restore-course", "course restored"}};

// Returns what the undo did with the conflicts, or an empty text.
std::string LeftText(const UndoResult& result) {
  const std::size_t count = result.conflicts.size();
  if (count == 0) return "";
  return "\r" + std::to_string(count) +
         (count == 1 ? " record was left as it is." : " records were left as they are.");
}

bool IsWanted(SharedState& state, ScreenHost& host, const RecordKinds& kinds, const HistoryRun& run,
              const UndoResult& result) {
  if (!result.conflicts.empty()) {
    return Load<ChangePreview>(host).Show(
        ChangeListUse::kConflicts, TableOfConflicts(state, result.conflicts),
        "Another program or a later transfer has changed this data since. It would stay as it is.");
  }
  const Box question{.title = kTitle,
                     .text = "Undo this transfer?\r\r" + TransferName(run.title.command) + ", " +
                             WhenText(state, run.title.moment) +
                             (run.title.about.empty() ? "" : "\r" + AboutText(run)) +
                             "\r\rIt would change: " + TableOfHeldChanges(state, kinds).counts,
                     .icon = BoxIcon::kQuestion,
                     .buttons = {BoxButton::kYes, BoxButton::kNo},
                     .default_button = 1};
  return host.Ask(question) == BoxButton::kYes;
}

}  // namespace

std::string TransferName(const std::string& command) {
  const auto known = std::find_if(std::begin(kNames), std::end(kNames),
                                  [&](const auto& name) { return name.first == command; });
  return known == std::end(kNames) ? command : known->second;
}

std::string AboutText(const HistoryRun& run) {
  const std::string& about = run.title.about;
  if (!run.IsUndo()) return about;
  const std::size_t end = std::min(about.find(' '), about.size());
  return TransferName(about.substr(0, end)) + about.substr(end);
}

std::string WhenText(SharedState& state, DateValue moment) {
  const std::string day =
      std::floor(moment) == std::floor(state.Now()) ? "today" : FormatDay(moment, state.DateFormat);
  return day + " " + FormatPicture(CivilFromDate(moment), "HH':'mm");
}

std::string RunLine(SharedState& state, const HistoryRun& run) {
  const RecordKinds kinds = MakeRecordKinds(state);
  ChangeSummary summary(kinds);
  ForEachChange(state.transactions->history(), run, kinds,
                [&](const RecordChange& change) { summary.Add(change); });
  return TransferName(run.title.command) + ", " + WhenText(state, run.title.moment) + ", " +
         summary.BriefText();
}

void UndoRun(SharedState& state, ScreenHost& host, const HistoryRun& run) {
  const ChangingClick click(state, host);
  if (!click.IsAllowed()) return;
  const RecordKinds kinds = MakeRecordKinds(state);
  const UndoResult result = HoldUndoOfRun(state, kinds, run);
  if (!IsWanted(state, host, kinds, run, result)) return;  // the end of the click drops the changes
  CommitUndoOfRun(*state.transactions, run, result);
  host.Ask(Box{.title = kTitle,
               .text = TransferName(run.title.command) + ", " + WhenText(state, run.title.moment) +
                       ": undone." + LeftText(result),
               .icon = BoxIcon::kInformation});
}

void UndoLastRun(SharedState& state, ScreenHost& host) {
  const KeptRuns list = ListRuns(state.transactions->history());
  const HistoryRun* const run = NewestToUndo(list);
  if (run == nullptr) {
    host.Ask(Box{
        .title = kTitle, .text = "There is no transfer to undo.", .icon = BoxIcon::kInformation});
    return;
  }
  UndoRun(state, host, *run);
}

}  // namespace golf
