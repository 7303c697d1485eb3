#include <chrono>
#include <iostream>
#include <thread>

#include "cli/json_text.h"
#include "cli/problems.h"
#include "cli/results_command.h"
#include "core/code_page.h"
#include "outlets/pages/page_file.h"
#include "outlets/pages/tournament_pages.h"
#include "outlets/results/tournament_files.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

// Makes the page of a request and writes it to its file.
class PageRun {
 public:
  PageRun(const Options& options, const ResultsRequest& request)
      : options_(options), request_(request), refreshes_(request.watch) {}

  // The page that is written from now on does not refresh itself.
  void StopRefreshing() { refreshes_ = false; }

  // Reads the tournament and writes the page. Returns the code for the faults of the entries. All
  // files are closed afterwards.
  ExitCode Write() {
    faults_.clear();
    NewTarget target(request_.html);
    const std::string refusal = RefusalOfPage(target);
    if (!refusal.empty()) throw Refusal(refusal);
    const ResultsPage page = Read();
    const WrittenPage written = WriteResultsPage(page);
    if (written.html.empty()) throw Refusal(TooLargeRefusal(written));
    WritePageFile(target, written.html);
    Report(page, written.extent);
    NoteFaultCount(faults_.size());
    return ExitCodeOfFaults(faults_);
  }

 private:
  ResultsPage Read() {
    const auto application = StartApplication(options_);
    SharedState& state = application->state();
    OpenForResults(state, request_);
    CheckRound(state.Tournament());
    const PageQuestion question{state, request_.tiebreak, refreshes_,
                                [this](const std::string& who, const NumberedError& error) {
                                  NoteProblem(who + ": " + error.Report());
                                  faults_.push_back(error);
                                },
                                NoteProblem};
    if (request_.what == "players") return MakePlayersPage(question);
    if (request_.what == "teams") return MakeTeamsPage(question);
    return MakeCustomPage(question, LayoutOf(state, request_));
  }

  // Raises Refusal if the active round of the record does not exist, as in a damaged file.
  static void CheckRound(TournamentClass& tournament) {
    const int round = tournament.RoundOr({});
    const int rounds = tournament.RoundCount();
    if (round >= 1 && round <= rounds) return;
    throw Refusal("The active round of the tournament is " + std::to_string(round) +
                  ", but it has " + std::to_string(rounds) + ". Choose a round with --round.");
  }

  void Report(const ResultsPage& page, PageExtent extent) const {
    const std::string left_out(LeftOutOf(extent));
    if (options_.json) {
      return WriteJsonLine({{"event", "result"},
                            {"html", request_.html},
                            {"entries", page.entries.size()},
                            {"leftOut", left_out}});
    }
    std::cout << "The page was written to " << request_.html << ".\n" << std::flush;
    if (!left_out.empty()) NoteProblem("The page would be too large with " + left_out + ".");
  }

  const Options& options_;
  const ResultsRequest& request_;
  bool refreshes_;
  std::vector<NumberedError> faults_;
};

// Writes the page again after each change of a file that it shows.
class PageWatch {
 public:
  PageWatch(const Options& options, const ResultsRequest& request)
      : run_(options, request), html_(request.html), application_(StartApplication(options)) {
    const std::string& folder = application_->state().QBDataPath;
    for (const TournamentFile& file : FilesOfTournament(request.tournament)) {
      paths_.push_back(folder + file.name);
    }
    if (request.layout.empty()) return;
    for (const char* const file : {"1", "2"}) {
      paths_.push_back(folder + TextFromUtf8(request.layout) + std::string(kLayoutExtension) +
                       file);
    }
  }

  // Returns after a signal. The last page does not refresh itself.
  void Run() {
    const auto stops = platform().WatchStops();
    std::vector<FileStamp> shown = Stamps();
    bool is_shown = Try(true);
    while (Wait(stops.get())) {
      std::vector<FileStamp> stamps = Stamps();
      const bool is_deleted = NewTarget(html_).Existing() == NewTarget::Kind::kNothing;
      if (is_shown && !is_deleted && stamps == shown) continue;
      if (HasLost(shown, stamps)) continue;
      shown = std::move(stamps);
      is_shown = Try(false);
    }
    run_.StopRefreshing();
    if (!HasLost(shown, Stamps())) Try(false);
  }

 private:
  Platform& platform() { return application_->state().files.platform(); }

  std::vector<FileStamp> Stamps() {
    std::vector<FileStamp> stamps;
    for (const std::string& path : paths_) stamps.push_back(platform().StampOf(path));
    return stamps;
  }

  // Returns true if a file is missing or empty that had content when the page was written. Reports
  // this once. The page is not written then, since another program may be replacing the file.
  bool HasLost(const std::vector<FileStamp>& before, const std::vector<FileStamp>& now) {
    for (std::size_t i = 0; i < paths_.size(); ++i) {
      if (before[i].length <= 0 || now[i].length > 0) continue;
      Note(paths_[i] + (now[i].length < 0 ? " is not there." : " is empty."));
      return true;
    }
    return false;
  }

  // Writes the page. Keeps the old page and returns false if a file is missing or another program
  // has it open. Reports each such problem once.
  bool Try(bool is_first) {
    try {
      run_.Write();
      problem_.clear();
      return true;
    } catch (const NumberedError& error) {
      Note(error.Report());
    } catch (const Refusal& refusal) {
      if (is_first) throw;
      Note(TextFromUtf8(refusal.what()));
    }
    return false;
  }

  void Note(const std::string& problem) {
    if (problem != problem_) NoteProblem(problem + " The old page is kept.");
    problem_ = problem;
  }

  // Waits for two seconds. Returns false as soon as the process is asked to stop.
  static bool Wait(const StopWatch* stops) {
    constexpr auto kPart = std::chrono::milliseconds(100);
    constexpr int kParts = 20;
    for (int part = 0; part < kParts; ++part) {
      if (stops != nullptr && stops->Signal() != 0) return false;
      std::this_thread::sleep_for(kPart);
    }
    return true;
  }

  PageRun run_;
  std::string html_;                          // the file of the page
  std::unique_ptr<Application> application_;  // for its paths and its platform; opens no file
  std::vector<std::string> paths_;
  std::string problem_;  // that was reported last; empty after a page was written
};

}  // namespace

ExitCode RunResultsPage(const Options& options, const ResultsRequest& request) {
  if (!request.watch) return PageRun(options, request).Write();
  PageWatch(options, request).Run();
  return ExitCode::kDone;
}

}  // namespace golf
