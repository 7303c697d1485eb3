#include "screens/file_changes.h"

#include <utility>

#include "core/resume_next.h"

namespace golf {
namespace {

Recovery Recover(SharedState& state, ScreenHost& host) {
  Recovery recovery = state.transactions->Recover();
  for (const std::string& text : recovery.finished) host.Notify(text);
  if (!recovery.finished.empty()) state.files.Synchronize();
  return recovery;
}

}  // namespace

void RecoverInterruptedRun(SharedState& state, ScreenHost& host) {
  // Ignores errors here. ChangingClick raises them when the operator changes files.
  const ResumeNext anyway(nullptr);
  anyway([&] {
    const auto lock = state.files.platform().LockRun(state.ProgramPath);
    Recover(state, host);
  });
}

ChangingClick::ChangingClick(SharedState& state, ScreenHost& host)
    : transactions_(*state.transactions), lock_(state.files.platform().LockRun(state.ProgramPath)) {
  const Recovery recovery = Recover(state, host);
  if (recovery.stuck) {
    lock_.reset();  // the operator may decide at once
    host.NoteUnfinishedRun(recovery.stuck_text +
                           " Nothing can be changed before you decide what becomes of it: finish "
                           "it, put it back, or leave it as it is (golf-transfer-cli recover "
                           "--finish, --put-back or --leave).");
    return;
  }
  transactions_.BeginClick();
  allowed_ = true;
}

ChangingClick::~ChangingClick() {
  if (allowed_) transactions_.EndClick();
}

bool ChangeFiles(SharedState& state, ScreenHost& host, std::string command, std::string about,
                 const std::function<void()>& change) {
  const ChangingClick click(state, host);
  if (!click.IsAllowed()) return false;
  Transactions& transactions = *state.transactions;
  transactions.Begin({.command = std::move(command), .about = about});
  transactions.BeginGroup(about);
  RunAndCommit(change, [&](const NumberedError*) { transactions.Commit(""); });
  return true;
}

bool ChangeFilesOrNone(SharedState& state, ScreenHost& host, std::string command, std::string about,
                       const std::function<void()>& change) {
  return ChangeFiles(state, host, std::move(command), std::move(about), [&] {
    try {
      change();
    } catch (const NumberedError&) {
      state.transactions->Drop();
      throw;
    }
  });
}

void ThenCloseFiles(SharedState& state, const std::function<void()>& show) {
  try {
    show();
  } catch (const NumberedError&) {
    const ResumeNext anyway(nullptr);
    anyway([&state] { state.InitSharedObjects(); });
    throw;
  }
  state.InitSharedObjects();
}

}  // namespace golf
