#pragma once

#include <functional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "history/transactions.h"

namespace golf {

// Finishes a run that was interrupted before, and tells the operator. Called before a screen that
// can change files reads them. A run that cannot be finished by itself, or an install that another
// process has locked, is left alone until something is to be changed.
void RecoverInterruptedRun(SharedState& state, ScreenHost& host);

// A click that changes files. While it lives, the install is locked against other processes that
// change it. Error 70 where another process has the lock. A run that was interrupted before is
// finished first, and the operator is told.
class ChangingClick {
 public:
  ChangingClick(SharedState& state, ScreenHost& host);
  ChangingClick(const ChangingClick&) = delete;
  ChangingClick& operator=(const ChangingClick&) = delete;
  ~ChangingClick();

  // False where an interrupted run stands in the way, which the operator was told. Nothing may be
  // changed then.
  bool IsAllowed() const { return allowed_; }

 private:
  Transactions& transactions_;
  std::unique_ptr<RunLock> lock_;
  bool allowed_ = false;
};

// Runs `change` as a transaction of its own. What it has changed before a numbered error is
// committed as well, and the error goes on. CommitFailed where nothing could be changed. Returns
// false, with nothing done, where an interrupted run stands in the way.
bool ChangeFiles(SharedState& state, ScreenHost& host, std::string command, std::string about,
                 const std::function<void()>& change);

}  // namespace golf
