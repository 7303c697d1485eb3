#pragma once

#include <functional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/transactions.h"

namespace golf {

// Recovers an interrupted run and notifies the operator. Must be called before a screen that can
// change files reads them. Does nothing if the operator must decide about the run, or if another
// process holds the lock of the install. Raises no numbered error.
void RecoverInterruptedRun(SharedState& state, ScreenHost& host);

// Begins a click that changes files, and ends it in the destructor. Holds the lock of the install
// meanwhile. The constructor raises error 70 if another process holds the lock. It first recovers
// an interrupted run and notifies the operator.
class ChangingClick {
 public:
  ChangingClick(SharedState& state, ScreenHost& host);
  ChangingClick(const ChangingClick&) = delete;
  ChangingClick& operator=(const ChangingClick&) = delete;
  ~ChangingClick();

  // False if the operator must decide about an interrupted run. The operator was notified then, and
  // the caller must not change files.
  bool IsAllowed() const { return allowed_; }

 private:
  Transactions& transactions_;
  std::unique_ptr<RunLock> lock_;
  bool allowed_ = false;
};

// Runs `change` as a click with one transaction. If `change` raises a numbered error, commits the
// changes made before and raises the error again. Raises CommitFailed if the commit fails. Returns
// false and does not call `change` if the operator must decide about an interrupted run.
bool ChangeFiles(SharedState& state, ScreenHost& host, std::string command, std::string about,
                 const std::function<void()>& change);

// Does the same, but drops all changes if `change` raises a numbered error.
bool ChangeFilesOrNone(SharedState& state, ScreenHost& host, std::string command, std::string about,
                       const std::function<void()>& change);

// Calls `show`, and then makes the shared objects again, which closes all files. Passes on what
// `show` raises, and raises the first error of closing.
void ThenCloseFiles(SharedState& state, const std::function<void()>& show);

}  // namespace golf
