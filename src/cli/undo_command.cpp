#include <algorithm>
#include <iostream>

#include "cli/change_text.h"
#include "cli/history_command.h"
#include "cli/json_listener.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "outlets/record_kinds.h"
#include "screens/file_changes.h"
#include "transfers/undo_run.h"

namespace golf {
namespace {

// These listeners report on standard error what an event shows the operator.
class ProblemListener : public HostListener {
 public:
  void OnMessage(const Box& box, BoxButton) override { NoteProblem(box.text); }
  void OnNotice(const std::string& text) override { NoteProblem(text); }
  void OnError(const NumberedError& error) override { NoteProblem(error.Report()); }
};
class JsonProblemListener : public JsonListener {
 public:
  void OnMessage(const Box& box, BoxButton answer) override {
    JsonListener::OnMessage(box, answer);
    NoteProblem(box.text);
  }
};

// Returns the run to undo. Raises Refusal if it cannot be undone.
const HistoryRun& ChosenRun(const KeptRuns& list, const UndoRequest& request) {
  if (!request.number) {
    const HistoryRun* const newest = NewestToUndo(list);
    if (newest == nullptr) throw Refusal("There is no run to undo.");
    return *newest;
  }
  const HistoryRun& run = RunOfNumber(list, *request.number);
  const std::string named = "Run " + std::to_string(run.number);
  switch (run.state) {
    case RunState::kDone:
      break;
    case RunState::kUndone:
      throw Refusal(named + " is undone already.");
    case RunState::kInterrupted:
      throw Refusal(named + " is unfinished: golf-transfer-cli recover says what becomes of it.");
    case RunState::kLeft:
      throw Refusal(named + " was interrupted and left as it was. It cannot be undone.");
  }
  return run;
}

// Undoes one run. The install must be locked.
class UndoCommand {
 public:
  UndoCommand(const Options& options, const UndoRequest& request, SharedState& state)
      : options_(options),
        request_(request),
        state_(state),
        transactions_(*state.transactions),
        list_(ListKeptRuns(state)),
        run_(ChosenRun(list_, request)) {}

  ExitCode Run() {
    Hold();
    for (const UndoConflict& conflict : result_.conflicts) Write(conflict);
    if (!result_.conflicts.empty() && !request_.skip_changed) return Refuse();
    if (request_.dry_run) {
      ShowHeld();
      return ExitCode::kDone;
    }
    ShowCommitted(CommitUndoOfRun(transactions_, run_, result_));
    return ExitCode::kDone;
  }

 private:
  void Hold() {
    const RecordKinds kinds = MakeRecordKinds(state_);
    result_ = HoldUndoOfRun(state_, kinds, run_);
  }

  void Write(const UndoConflict& conflict) const {
    if (options_.json) {
      for (const Json& event : ConflictJson(conflict)) WriteJsonLine(event);
    } else {
      (request_.skip_changed ? std::cout : std::cerr) << ConflictText(conflict, state_.DateFormat);
    }
  }

  ExitCode Refuse() {
    transactions_.Drop();
    NoteProblem(Named() + " cannot be undone as a whole: " + CountText() +
                " changed since. Nothing was changed. The option --skip-changed leaves what "
                "changed, with all that belongs to it, and undoes the rest.");
    return ExitCode::kRefused;
  }

  std::string Named() const { return "Run " + std::to_string(run_.number); }

  std::string CountText() const {
    const std::size_t count = result_.conflicts.size();
    return std::to_string(count) + (count == 1 ? " record has" : " records have");
  }

  void ShowHeld() {
    const RecordKinds kinds = MakeRecordKinds(state_);
    const EachChange each_change = [&](const auto& each) {
      ForEachHeldChange(transactions_, kinds, each);
    };
    const std::int64_t changes = WriteChangeCounts(kinds, options_.json, each_change);
    if (!options_.json) WriteChanges(state_, kinds, each_change);
    transactions_.Drop();
    WriteEnd(changes, 0);
  }

  void ShowCommitted(std::int32_t committed) {
    std::int64_t changes = 0;
    if (committed != 0) {
      HistoryFolder& folder = transactions_.history();
      const RecordKinds kinds = MakeRecordKinds(state_);
      changes = WriteChangeCounts(kinds, options_.json, [&](const auto& each) {
        for (const HistoryName& name : folder.List()) {
          if (name.run != committed) continue;
          ForEachChange(*folder.Open(name, FileAccess::kReadOnly), kinds, each);
        }
      });
    }
    WriteEnd(changes, committed);
  }

  void WriteEnd(std::int64_t changes, std::int32_t committed) const {
    if (options_.json) {
      WriteJsonLine({{"event", "result"},
                     {"command", "undo"},
                     {"run", run_.run},
                     {"dryRun", request_.dry_run},
                     {"history", committed == 0 ? Json(nullptr) : Json(committed)},
                     {"changes", changes},
                     {"conflicts", result_.conflicts.size()}});
      return;
    }
    if (changes > 0) std::cout << '\n';
    std::cout << Named()
              << (request_.dry_run            ? " would be undone. Nothing was changed."
                  : committed != 0            ? " is undone."
                  : result_.conflicts.empty() ? " is undone: everything is as it was before it."
                                              : " stays as it is.")
              << '\n';
    if (!result_.conflicts.empty()) {
      std::cout << CountText() << " changed since and "
                << (request_.dry_run                ? "would be left"
                    : result_.conflicts.size() == 1 ? "was left"
                                                    : "were left")
                << ", see above.\n";
    }
  }

  const Options& options_;
  const UndoRequest& request_;
  SharedState& state_;
  Transactions& transactions_;
  KeptRuns list_;
  const HistoryRun& run_;
  UndoResult result_;
};

// Shows what an undo would change. It does not finish an interrupted run, since a dry run changes
// nothing.
ExitCode TryUndo(const Options& options, const UndoRequest& request, SharedState& state) {
  const auto lock = state.files.platform().LockRun(state.ProgramPath);
  if (state.transactions->IsUnfinished()) {
    throw Refusal(
        "A run is unfinished. Decide what becomes of it first: golf-transfer-cli "
        "recover --finish, --put-back or --leave.");
  }
  return UndoCommand(options, request, state).Run();
}

}  // namespace

ExitCode RunUndo(const Options& options, const UndoRequest& request) {
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  ProblemListener plain;
  JsonProblemListener json;
  HostListener& listener = options.json ? static_cast<HostListener&>(json) : plain;
  HeadlessHost host(state, Application::Screens(), listener);
  host.clock = ClockOf(options);
  ExitCode code = ExitCode::kRefused;
  try {
    host.Operate([&] {
      if (request.dry_run) {
        code = TryUndo(options, request, state);
        return;
      }
      const ChangingClick click(state, host);
      if (click.IsAllowed()) code = UndoCommand(options, request, state).Run();
    });
    return code;
  } catch (const ClickEnded& ended) {
    return ExitCodeOf(ended.error);
  }
}

ExitCode RunRecover(const Options& options, const std::string& choice) {
  const std::pair<std::string_view, RecoveryChoice> choices[] = {
      {"finish", RecoveryChoice::kFinish},
      {"put-back", RecoveryChoice::kPutBack},
      {"leave", RecoveryChoice::kLeave}};
  const auto chosen = std::find_if(std::begin(choices), std::end(choices),
                                   [&](const auto& known) { return known.first == choice; });
  const auto application = StartApplication(options);
  SharedState& state = application->state();
  const auto lock = state.files.platform().LockRun(state.ProgramPath);
  const Recovery recovery = state.transactions->Recover(chosen->second);
  if (options.json) {
    Json texts = Json::array();
    for (const std::string& text : recovery.finished) texts.push_back(JsonText(text));
    WriteJsonLine({{"event", "result"}, {"recover", choice}, {"runs", std::move(texts)}});
  } else {
    for (const std::string& text : recovery.finished) std::cout << PlainText(text) << '\n';
    if (recovery.finished.empty() && !recovery.stuck) std::cout << "No run is unfinished.\n";
  }
  if (!recovery.stuck) return ExitCode::kDone;
  NoteProblem(recovery.stuck_text);
  return ExitCode::kRefused;
}

}  // namespace golf
