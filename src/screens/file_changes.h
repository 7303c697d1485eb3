#pragma once

#include <functional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/transactions.h"

namespace golf {

// Finishes an earlier run that was interrupted, and notifies the operator. It must be called before
// a screen that can change files reads them. It raises no numbered error: it does nothing if
// another process has locked the install or if the run needs a decision of the operator.
void RecoverInterruptedRun(SharedState& state, ScreenHost& host);

// Must exist while an event changes files. It locks the install against other processes that change
// it, from its construction to its destruction. The constructor raises error 70 if another process
// has the lock. It finishes an earlier run that was interrupted, and notifies the operator.
class ChangingClick {
 public:
  ChangingClick(SharedState& state, ScreenHost& host);
  ChangingClick(const ChangingClick&) = delete;
  ChangingClick& operator=(const ChangingClick&) = delete;
  ~ChangingClick();

  // False if an interrupted run needs a decision of the operator, who has been notified. Nothing
  // may be changed then.
  bool IsAllowed() const { return allowed_; }

 private:
  Transactions& transactions_;
  std::unique_ptr<RunLock> lock_;
  bool allowed_ = false;
};

// Runs `change` as a transaction of its own. If `change` raises a numbered error, commits what it
// has changed so far and raises the error again. Raises CommitFailed if nothing could be changed.
// Returns false and does nothing if an interrupted run needs a decision of the operator.
bool ChangeFiles(SharedState& state, ScreenHost& host, std::string command, std::string about,
                 const std::function<void()>& change);

}  // namespace golf
