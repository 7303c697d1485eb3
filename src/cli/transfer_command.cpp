#include "cli/transfer_command.h"

#include <iostream>
#include <vector>

#include "cli/commands.h"
#include "cli/json_listener.h"
#include "cli/plain_text.h"
#include "cli/problems.h"
#include "cli/progress_bar.h"

namespace golf {
namespace {

// Keeps the texts of the boxes until it is known whether the run was refused.
class ReportListener : public HostListener {
 public:
  explicit ReportListener(ProgressBar& bar) : bar_(bar) {}

  void OnMessage(const Box& box, BoxButton answer) override {
    Keep(box.title, box.text);
    if (box.buttons.size() > 1) KeepAnswer(NameOf(answer));
  }
  void OnTip(const TipView& tip, const std::string& answer) override {
    Keep(tip.title, tip.text);
    if (tip.buttons.size() > 1) KeepAnswer(answer);
  }
  void OnFault(const NumberedError& fault) override { Note(fault); }
  void OnNotice(const std::string& text) override {
    bar_.Clear();
    NoteProblem(text);
  }
  void OnError(const NumberedError& error) override { Note(error); }
  void OnProgress(const Progress& progress) override { bar_.Show(progress); }

  void AddLog(std::string_view text) {
    if (!text.empty()) texts_.push_back(PlainText(text));
  }
  void Write(std::ostream& out) const {
    for (const std::string& text : texts_) out << text << '\n';
  }

 private:
  void Note(const NumberedError& error) {
    bar_.Clear();
    NoteProblem(error.Report());
  }
  void Keep(std::string_view title, std::string_view text) {
    const bool names_nothing =
        title.empty() || title == "Notice" || title == "Message" || title == "Info";
    if (!names_nothing) texts_.push_back(PlainText(title));
    texts_.push_back(PlainText(text));
  }

  void KeepAnswer(std::string_view answer) { texts_.push_back("Answer: " + PlainText(answer)); }

  ProgressBar& bar_;
  std::vector<std::string> texts_;
};

// Runs the command's screen. Returns the exit code of an error that ended a click, or nothing.
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

void NoteCancelled(const HeadlessHost& host, const CancellingAnswer& question) {
  std::string text = "The transfer was cancelled: \"" + std::string(question.title) +
                     "\" was answered " + std::string(NameOf(question.answer)) + ". The option " +
                     std::string(question.option) + " answers otherwise.\n";
  std::int64_t done = 0;
  for (const auto& [name, count] : host.counts()) done += count;
  text += done == 0 ? "Nothing was transferred." : std::to_string(done) + " transferred before.";
  NoteProblem(text);
}

void WriteResult(const TransferCommand& command, const HeadlessHost& host) {
  Json result = {{"event", "result"}, {"transfer", command.name}};
  for (const auto& [name, count] : host.counts()) result[name] = count;
  if (command.carries_on || !host.faults().empty()) result["faults"] = host.faults().size();
  WriteJsonLine(result);
}

}  // namespace

ExitCode RunTransferCommand(const Options& options, const TransferCommand& command) {
  const auto application = StartApplication(options);
  ProgressBar bar(!options.quiet && !options.json);
  ReportListener report(bar);
  JsonListener json;
  HostListener& listener = options.json ? static_cast<HostListener&>(json) : report;
  HeadlessHost host(application->state(), Application::Screens(), listener);
  host.clock = ClockOf(options);
  const auto failed = Work(*application, host, report, command);
  bar.Clear();
  const bool cancelled = IsCancelled(host, command);
  const auto lost = CloseFiles(application->state().files);
  const ExitCode code = failed ? *failed
                        : lost ? ExitCodeOf(*lost)
                               : ExitCodeAfterRun(host, cancelled);
  if (host.run_ended_by()) NoteProblem(host.run_ended_by()->Report());
  if (cancelled) NoteCancelled(host, *command.cancelled_by);
  NoteFaultCount(host.faults().size());
  if (options.json) {
    if (!host.counts().empty() && !failed) WriteResult(command, host);
  } else {
    report.Write(host.counts().empty() ? std::cerr : std::cout);
  }
  return code;
}

ExitCode RunCoursesKvToQb(const Options& options) {
  return RunTransferCommand(
      options, {"courses-kv-to-qb", "KVCoursestoQB",
                [](HeadlessHost& host, Screen& screen) { host.Press(screen, "TransferCourses"); }});
}

}  // namespace golf
