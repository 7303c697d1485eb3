#include <chrono>
#include <iostream>
#include <thread>

#include "cli/json_text.h"
#include "cli/problems.h"
#include "cli/results_command.h"
#include "core/code_page.h"
#include "outlets/pages/page_file.h"
#include "outlets/pages/tournament_pages.h"
#include "stores/course/course_library.h"

namespace golf {
namespace {

constexpr std::string_view kCardsNames[] = {"all rounds", "shown round", "none"};

// Makes the page of a request and writes it to its file.
class PageRun {
 public:
  PageRun(const Options& options, const ResultsRequest& request)
      : options_(options), request_(request) {}

  // Reads the tournament and writes the page. Returns the code for the faults of the entries. All
  // files are closed afterwards.
  ExitCode Write() {
    faults_.clear();
    NewTarget target(request_.html);
    const std::string refusal = RefusalOfPage(target);
    if (!refusal.empty()) throw Refusal(refusal);
    const ResultsPage page = Read();
    const WrittenPage written = WriteResultsPage(page);
    if (written.html.empty()) throw Refusal(TooLargeRefusal());
    WritePageFile(target, written.html);
    Report(page, written.cards);
    NoteFaultCount(faults_.size());
    return faults_.empty() ? ExitCode::kDone : ExitCodeOfFaults(faults_);
  }

 private:
  ResultsPage Read() {
    const auto application = StartApplication(options_);
    SharedState& state = application->state();
    OpenForResults(state, request_);
    const PageQuestion question{state, request_.tiebreak, request_.watch,
                                [this](const std::string& who, const NumberedError& error) {
                                  NoteProblem(who + ": " + error.Report());
                                  faults_.push_back(error);
                                },
                                NoteProblem};
    if (request_.what == "players") return MakePlayersPage(question);
    if (request_.what == "teams") return MakeTeamsPage(question);
    return MakeCustomPage(question, LayoutOf(state, request_));
  }

  void Report(const ResultsPage& page, PageCards cards) const {
    const std::string_view name = kCardsNames[static_cast<std::size_t>(cards)];
    if (options_.json) {
      return WriteJsonLine({{"event", "result"},
                            {"html", request_.html},
                            {"entries", page.entries.size()},
                            {"cards", name}});
    }
    std::cout << "The page was written to " << request_.html << ".\n" << std::flush;
    if (cards != PageCards::kAllRounds) {
      NoteProblem("The page would be too large, so score cards are left out. It has those of: " +
                  std::string(name) + ".");
    }
  }

  const Options& options_;
  const ResultsRequest& request_;
  std::vector<NumberedError> faults_;
};

// Writes the page again after each change of a file that it shows.
class PageWatch {
 public:
  PageWatch(const Options& options, const ResultsRequest& request)
      : run_(options, request), application_(StartApplication(options)) {
    SharedState& state = application_->state();
    const std::string& folder = state.QBDataPath;
    for (const char* const extension : {".Q9C", ".Q9G", ".Q9T"}) {
      paths_.push_back(folder + TournamentFileName(request.tournament, extension));
    }
    paths_.push_back(folder + "QBGOLFER.Q9D");
    paths_.push_back(CourseFilePath(state, kQuenbyCourses));
    if (request.layout.empty()) return;
    for (const char* const file : {"1", "2"}) {
      paths_.push_back(folder + TextFromUtf8(request.layout) + std::string(kLayoutExtension) +
                       file);
    }
  }

  // Returns after a signal.
  void Run() {
    const auto stops = platform().WatchStops();
    // The first page must not fail for a wrong name or number.
    std::vector<FileStamp> shown = Stamps();
    bool is_shown = Try(true);
    while (Wait(stops.get())) {
      std::vector<FileStamp> stamps = Stamps();
      if (is_shown && stamps == shown) continue;
      shown = std::move(stamps);
      is_shown = Try(false);
    }
  }

 private:
  Platform& platform() { return application_->state().files.platform(); }

  std::vector<FileStamp> Stamps() {
    std::vector<FileStamp> stamps;
    for (const std::string& path : paths_) stamps.push_back(platform().StampOf(path));
    return stamps;
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
