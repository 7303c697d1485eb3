#pragma once

#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/run_list.h"

namespace golf {

// Returns what a run was, in words such as "golfers to QB".
std::string TransferName(const std::string& command);

// Returns what a run was about, such as "CLUB18, roster 3". The text of an undo begins with the
// name of the transfer that it undid.
std::string AboutText(const HistoryRun& run);

// Returns a moment such as "today 14:32" or "05/12/2026 14:32".
std::string WhenText(SharedState& state, DateValue moment);

// Returns a line that identifies a run, such as "golfers to QB, today 14:32, 12 golfers". Reads its
// whole history.
std::string RunLine(SharedState& state, const HistoryRun& run);

// Undoes a run: asks the operator first, with the counts. If other programs have changed some of
// the same data since, shows these conflicts and offers to undo the rest.
void UndoRun(SharedState& state, ScreenHost& host, const HistoryRun& run);

// Undoes the newest run that can be undone. Tells the operator if there is none.
void UndoLastRun(SharedState& state, ScreenHost& host);

}  // namespace golf
