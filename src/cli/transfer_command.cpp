#include "cli/transfer_command.h"

#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "cli/change_text.h"
#include "cli/commands.h"
#include "cli/history_command.h"
#include "cli/json_listener.h"
#include "cli/listener_pair.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/progress_bar.h"
#include "cli/transfer_log.h"
#include "outlets/record_kinds.h"
#include "screens/menu/second_copy.h"

namespace golf {
namespace {

// Stores the texts of the boxes until it is known whether the run was refused. Writes problems to
// the log, and also to standard error if `notes` is true.
class ReportListener : public HostListener {
 public:
  ReportListener(ProgressBar& bar, TransferLog& log, bool notes)
      : bar_(bar), log_(log), notes_(notes) {}

  void OnMessage(const Box& box, BoxButton answer) override {
    Keep(box.title, box.text);
    if (box.buttons.size() > 1) KeepAnswer(NameOf(answer));
  }
  void OnTip(const TipView& tip, const std::string& answer) override {
    Keep(tip.title, tip.text);
    if (tip.buttons.size() > 1) KeepAnswer(answer);
  }
  void OnFault(const NumberedError& fault) override { Note(fault.Report()); }
  void OnNotice(const std::string& text) override { Note(text); }
  void OnError(const NumberedError& error) override { Note(error.Report()); }
  void OnProgress(const Progress& progress) override { bar_.Show(progress); }

  void AddLog(std::string_view text) {
    if (!text.empty()) texts_.push_back(PlainText(text));
  }
  void Write(std::ostream& out) const {
    for (const std::string& text : texts_) out << text << '\n';
  }
  void WriteLog() const {
    for (const std::string& text : texts_) log_.Add(text);
  }
  // Reports a problem that no event reports.
  void NoteInLog(const std::string& text) {
    NoteProblem(text);
    log_.Add(PlainText(text));
  }

 private:
  void Note(const std::string& text) {
    bar_.Clear();
    if (notes_) NoteProblem(text);
    log_.Add(PlainText(text));
  }
  void Keep(std::string_view title, std::string_view text) {
    const bool names_nothing =
        title.empty() || title == "Notice" || title == "Message" || title == "Info";
    if (!names_nothing) texts_.push_back(PlainText(title));
    texts_.push_back(PlainText(text));
  }

  void KeepAnswer(std::string_view answer) { texts_.push_back("Answer: " + PlainText(answer)); }

  ProgressBar& bar_;
  TransferLog& log_;
  bool notes_;
  std::vector<std::string> texts_;
};

// Runs the command's screen. Returns the exit code of an error that ended an event, or nothing.
std::optional<ExitCode> Work(Application& application, HeadlessHost& host, ReportListener& report,
                             const TransferCommand& command) {
  application.state().remembers_settings = false;
  host.drive = [&](Screen& screen) {
    const auto add_log = [&] {
      const auto* log = dynamic_cast<const TextBox*>(screen.FindControl(command.log));
      if (log != nullptr) report.AddLog(log->text());
    };
    try {
      command.work(host, screen);
    } catch (const ClickEnded&) {
      add_log();  // shows what was done before the error
      throw;
    }
    add_log();
  };
  try {
    host.Operate([&] { OpenScreen(application.state(), host, command.screen, ""); });
  } catch (const ClickEnded& ended) {
    return ExitCodeOf(ended.error);
  }
  return std::nullopt;
}

bool IsCancelled(const HeadlessHost& host, const TransferCommand& command) {
  return command.cancelled_by &&
         host.AnswerTo(command.cancelled_by->title) == command.cancelled_by->answer;
}

ExitCode ExitCodeAfterRun(const HeadlessHost& host, bool cancelled) {
  if (!host.faults().empty()) return ExitCodeOfFaults(host.faults());
  if (host.run_ended_by()) return ExitCodeOf(*host.run_ended_by());
  return cancelled || host.counts().empty() ? ExitCode::kRefused : ExitCode::kDone;
}

std::string CancelledText(const HeadlessHost& host, const CancellingAnswer& question) {
  std::string text = "The transfer was cancelled: \"" + std::string(question.title) +
                     "\" was answered " + std::string(NameOf(question.answer)) + ". The option " +
                     std::string(question.option) + " answers otherwise.\n";
  std::int64_t done = 0;
  for (const auto& [name, count] : host.counts()) done += count;
  text += done == 0 ? "Nothing was transferred." : std::to_string(done) + " transferred before.";
  return text;
}

void WriteResult(const TransferCommand& command, const HeadlessHost& host, bool dry_run,
                 std::int32_t history) {
  Json result = {{"event", "result"}, {"transfer", command.name}};
  for (const auto& [name, count] : host.counts()) result[name] = count;
  if (command.carries_on || !host.faults().empty()) result["faults"] = host.faults().size();
  result["dryRun"] = dry_run;
  result["history"] = history == 0 ? Json(nullptr) : Json(history);
  WriteJsonLine(result, "leftOut", [&host](const auto& write) {
    host.left_out().ForEach([&](std::string_view title, std::string_view reason) {
      write({{"title", JsonText(title)}, {"reason", JsonText(reason)}});
    });
  });
}

// Writes what the runs have left out. It is the last section of the report.
void WriteLeftOut(const LeftOut& left_out, std::ostream* out, TransferLog& log) {
  if (out != nullptr && left_out.Count() > 0) *out << '\n';
  left_out.ForEachLine([&](std::string_view line) {
    const std::string plain = PlainCell(line);
    if (out != nullptr) *out << plain << '\n';
    log.Add(plain);
  });
}

// Writes what a dry run would have changed.
void WriteHeldChanges(const Options& options, SharedState& state) {
  Transactions& transactions = *state.transactions;
  const RecordKinds kinds = MakeRecordKinds(state);
  const EachChange each_change = [&](const auto& each) {
    ForEachHeldChange(transactions, kinds, each);
  };
  if (!options.json) std::cout << "\nA dry run: nothing was changed. The run would change:\n\n";
  WriteChangeCounts(kinds, options.json, each_change);
  if (!options.json) WriteChanges(state, kinds, each_change);
}

ExitCode Transfer(const Options& options, const TransferCommand& command, Application& application,
                  TransferLog& log) {
  ProgressBar bar(!options.quiet && !options.json);
  ReportListener report(bar, log, !options.json);
  JsonListener json;
  ListenerPair both(json, report);
  HostListener& listener = options.json ? static_cast<HostListener&>(both) : report;
  HeadlessHost host(application.state(), Application::Screens(), listener);
  host.clock = ClockOf(options);
  const auto failed = Work(application, host, report, command);
  bar.Clear();
  const bool cancelled = IsCancelled(host, command);
  const auto lost = CloseFiles(application.state().files);
  const ExitCode code = failed ? *failed
                        : lost ? ExitCodeOf(*lost)
                               : ExitCodeAfterRun(host, cancelled);
  const std::int32_t history = application.state().transactions->last_committed();
  report.WriteLog();
  if (host.run_ended_by()) report.NoteInLog(host.run_ended_by()->Report());
  if (cancelled) report.NoteInLog(CancelledText(host, *command.cancelled_by));
  NoteFaultCount(host.faults().size());
  const bool refused = host.counts().empty();
  std::ostream& out = refused ? std::cerr : std::cout;
  if (!options.json) report.Write(out);
  if (options.dry_run) WriteHeldChanges(options, application.state());
  WriteLeftOut(host.left_out(), options.json ? nullptr : &out, log);
  if (options.dry_run) log.Add("A dry run: nothing was changed.");
  log.End(code, history);
  if (options.json && !refused && !failed) WriteResult(command, host, options.dry_run, history);
  return code;
}

// Raises Refusal if Windows keeps copies of the data and no folder was named.
void RequireOnePlace(const Options& options, SharedState& state) {
  if (options.install) return;
  const std::string text = SecondCopyText(state);
  if (text.empty()) return;
  throw Refusal("There are two copies of this data. Name the right folder with --install.\n" +
                PlainText(text));
}

}  // namespace

ExitCode RunTransferCommand(const Options& options, const TransferCommand& command) {
  TransferLog log(options, command.name);
  std::unique_ptr<Application> application;
  try {
    application = StartApplication(options);
    RequireOnePlace(options, application->state());
    return Transfer(options, command, *application, log);
  } catch (const NumberedError& error) {
    log.Add(PlainText(error.description()));
    log.End(ExitCodeOf(error), 0);
    throw;
  } catch (const Refusal& refusal) {
    log.Add(refusal.what());
    log.End(ExitCode::kRefused, 0);
    throw;
  } catch (const Stopped& stopped) {
    const std::int32_t history = application->state().transactions->last_committed();
    log.Add(stopped.what());
    log.End(ExitCodeOf(stopped), history);
    if (history == 0) throw;
    NoteProblem("The run was stopped. What it had done before is run " + std::to_string(history) +
                " of the history.");
    return ExitCodeOf(stopped);
  }
}

ExitCode RunCoursesKvToQb(const Options& options) {
  return RunTransferCommand(
      options, {"courses-kv-to-qb", "KVCoursestoQB",
                [](HeadlessHost& host, Screen& screen) { host.Press(screen, "TransferCourses"); }});
}

}  // namespace golf
