#include "app/history_entries.h"

#include <cstdint>
#include <string>
#include <vector>

#include "core/resume_next.h"
#include "history/transactions.h"
#include "screens/history/run_undo.h"
#include "screens/history/transfer_history.h"

namespace golf {
namespace {

// Contains the line about a run, and what it was made from.
struct KnownLine {
  std::string when;
  std::int32_t run = 0;
  std::string line;
};

const std::string& LineOf(SharedState& state, const HistoryRun& run, KnownLine& known) {
  const std::string when = WhenText(state, run.title.moment);
  if (known.run != run.run || known.when != when) known = {when, run.run, RunLine(state, run)};
  return known.line;
}

MenuEntry UndoEntry(SharedState& state, KnownLine& known) {
  std::string about;
  bool any = false;
  const ResumeNext anyway(nullptr);
  anyway([&] {
    const KeptRuns list = ListRuns(state.transactions->history());
    const HistoryRun* const run = NewestToUndo(list);
    any = run != nullptr;
    if (any) about = " (" + LineOf(state, *run, known) + ")";
  });
  return {.caption = "&Undo last transfer" + about + "...", .open = UndoLastRun, .enabled = any};
}

void ShowTransfers(SharedState&, ScreenHost& host) { host.ShowModal(Load<TransferHistory>(host)); }

}  // namespace

MenuEntries HistoryEntries() {
  return [known = KnownLine()](SharedState& state) mutable -> std::vector<MenuEntry> {
    return {UndoEntry(state, known), {.caption = "&Transfers...", .open = ShowTransfers}};
  };
}

}  // namespace golf
