#include "outlets/pages/tournament_pages.h"

#include <utility>

#include "core/date_value.h"
#include "outlets/results/custom_entries.h"
#include "outlets/results/tournament_walk.h"
#include "scoring/layouts/report_header.h"

namespace golf {
namespace {

struct MeasureWords {
  const char* title;
  const char* total;  // the heading of the total
};
constexpr MeasureWords kWords[] = {
    {"Gross", "Gross"}, {"Net", "Net"}, {"Points", "Points"}, {"Quota", "Result"}};
const MeasureWords& WordsOf(Measure measure) { return kWords[static_cast<std::size_t>(measure)]; }

// Makes the page of a tournament.
class PageMaker {
 public:
  explicit PageMaker(const PageQuestion& question)
      : question_(question),
        tournament_(question.state.Tournament()),
        rounds_(tournament_.RoundCount()) {
    page_.round = tournament_.RoundOr({});
    page_.holes = tournament_.RoundType();
    page_.position_option = tournament_.PositionOption();
    page_.refreshes = question.refreshes;
    page_.title = tournament_.Name() + ", round " + std::to_string(page_.round);
  }

  ResultsPage Players() {
    page_.entries = ReadPlayers(Entries());
    AddUsualParts();
    return Finish();
  }

  ResultsPage Teams() {
    page_.of_teams = true;
    page_.entries = ReadTeams(Entries());
    AddUsualParts();
    return Finish();
  }

  ResultsPage Custom(const ReportLayout& layout) {
    page_.of_teams = true;
    page_.layout = layout;
    AddLayoutHeader(layout);
    CustomStandings standings(question_.state, layout);
    ForEachTeam(
        question_.state, [&](int) { standings.AddTeam(); },
        [&](int, const std::string& who, const NumberedError& error) { NoteFailed(who, error); },
        question_.note);
    const std::vector<CustomStanding> worked_out = standings.WorkOut();
    page_.entries = CustomEntries(question_.state, standings, worked_out, question_.tiebreak,
                                  tournament_.ScoreEntryTotal() == 0);
    AddCustomTables();
    Note("On a score card, a score that counts for the team is underlined.");
    return Finish();
  }

 private:
  EntryQuestion Entries() {
    return {question_.state, question_.tiebreak, true,
            [this](const std::string& who, const NumberedError& error) { NoteFailed(who, error); },
            question_.note};
  }

  void NoteFailed(const std::string& who, const NumberedError& error) {
    if (error.IsOfFile()) throw;
    Note("These results cannot be calculated: " + who + ".");
    question_.failed(who, error);
  }

  void Note(std::string_view note) { page_.notes.emplace_back(note); }

  std::string Day() { return tournament_.DateofRound(page_.round); }
  std::string RoundText() const { return "rounds 1 to " + std::to_string(page_.round); }

  void AddUsualParts() {
    std::string round = "Round " + std::to_string(page_.round);
    if (rounds_ > 1) round += " of " + std::to_string(rounds_);
    page_.header = {tournament_.Name(), round + (Day().empty() ? "" : ", " + Day()),
                    tournament_.CourseNamePlayed(page_.round)};
    AddRoundTables();
    if (page_.round > 1) AddTotalTables();
  }

  bool HasTotalsOnly() { return tournament_.ScoreEntryTotal() != 0; }

  void AddRoundTables() {
    const bool by_nines = !HasTotalsOnly() && page_.holes == 18;
    const bool by_holes = IsSomebodyOnCourse(page_.entries, page_.holes);
    const auto add = [&](Measure measure, std::vector<EntryColumn> columns, bool with_nines) {
      if (by_holes) columns.insert(columns.begin(), HolesColumn(page_.holes));
      if (with_nines && by_nines) {
        columns.push_back(PartColumn("Out", Span::kRound, measure, 0));
        columns.push_back(PartColumn("In", Span::kRound, measure, 1));
      }
      columns.push_back(TotalColumn(WordsOf(measure).total, Span::kRound, measure));
      page_.tables.push_back({Span::kRound, measure, WordsOf(measure).title, std::move(columns)});
    };
    const EntryColumn handicap = FactColumn("Hcp", &ResultEntry::handicap);
    add(Measure::kGross, {}, true);
    add(Measure::kNet, {handicap, TotalColumn("Gross", Span::kRound, Measure::kGross)}, false);
    if (HasTotalsOnly()) {
      Note(
          "The tournament has only totals of rounds, so there are no points, quota results and "
          "score cards.");
      return;
    }
    Note(
        "Points are those of the net scores. A quota result is the points of the gross scores "
        "above the quota.");
    add(Measure::kPoints, {handicap}, true);
    add(Measure::kQuota, {FactColumn("Quota", &ResultEntry::quota)}, true);
  }

  // Adds the standings of all rounds up to the shown one.
  void AddTotalTable(Measure measure, const std::string& title) {
    PageTable table{Span::kAllRounds, measure, title + ", " + RoundText(), {}};
    for (int round = 1; round <= page_.round; ++round) {
      table.columns.push_back(PartColumn("Rd " + std::to_string(round), Span::kAllRounds, measure,
                                         static_cast<std::size_t>(round) - 1));
    }
    table.columns.push_back(TotalColumn("Total", Span::kAllRounds, measure));
    page_.tables.push_back(std::move(table));
  }

  void AddTotalTables() {
    for (const Measure measure : kMeasures) {
      const bool is_points = !RanksLowestFirst(measure);
      if (is_points && (page_.of_teams || HasTotalsOnly())) continue;
      AddTotalTable(measure, WordsOf(measure).title);
    }
    NoteTotals();
  }

  void NoteTotals() {
    Note("Who did not play each round has no place in the standings of " + RoundText() + ".");
    if (page_.layout) return;
    if (tournament_.HandicapDecimalPlaces() > 0) Note("Totals of net scores are whole strokes.");
    if (!page_.of_teams && !HasTotalsOnly() && tournament_.PointQuotaOption() != 3) {
      Note("The quota results of earlier rounds are those of the handicap of this round.");
    }
  }

  void AddCustomTables() {
    const std::string of_round = rounds_ > 1 ? ", round " + std::to_string(page_.round) : "";
    constexpr std::pair<Measure, const char*> kCustom[] = {{Measure::kGross, "Scores"},
                                                           {Measure::kPoints, "Points"}};
    for (const auto& [measure, title] : kCustom) {
      page_.tables.push_back(
          {Span::kRound,
           measure,
           title + of_round,
           {PartColumn("Out", Span::kRound, measure, 0), PartColumn("In", Span::kRound, measure, 1),
            TotalColumn("Total", Span::kRound, measure)}});
    }
    if (page_.round == 1) return;
    for (const auto& [measure, title] : kCustom) AddTotalTable(measure, title);
    NoteTotals();
  }

  void AddLayoutHeader(const ReportLayout& layout) {
    enum HeaderItem { kReportNumber, kPageNumber, kReportDate };
    const HeaderValues values{tournament_.Name(), tournament_.CourseNamePlayed(page_.round),
                              std::to_string(page_.round), Day()};
    for (std::size_t i = 0; i < 3; ++i) {
      std::string line = HeaderLine(layout.HeaderText[i], values);
      if (!line.empty()) page_.header.push_back(std::move(line));
    }
    if (layout.Header[kReportNumber] != 0 && !layout.ReportNumber.empty()) {
      page_.header.push_back(layout.ReportNumber);
    }
    if (layout.Header[kReportDate] != 0) {
      page_.header.push_back(FormatDay(question_.state.Now(), question_.state.DateFormat));
    }
    page_.has_page_numbers = layout.Header[kPageNumber] != 0;
  }

  ResultsPage Finish() {
    if (!HasTotalsOnly()) page_.statistics = ReadFieldStatistics(tournament_);
    Note(page_.position_option == 1
             ? "Equal scores share a place. The places are numbered 1, 2, 2, 3."
             : "Equal scores share a place. The places are numbered 1, 2, 2, 4.");
    if (question_.tiebreak != Tiebreak::kNone) NoteTiebreak();
    if (HasUnfinishedHole()) Note("F is the score of a hole that was not finished.");
    const DateValue now = question_.state.Now();
    page_.footer = "Made with Golf Transfer on " + FormatDay(now, question_.state.DateFormat) +
                   " at " + FormatPicture(CivilFromDate(now), "HH:mm") + ".";
    return std::move(page_);
  }

  void NoteTiebreak() {
    constexpr const char* kComparisons[] = {"", "the last 9, 6, 3 and 1 holes",
                                            "the holes in the order of their handicap strokes",
                                            "the holes from the last one to the first one",
                                            "the holes from the first one to the last one"};
    const std::string scores = page_.layout ? "scores" : "gross and net scores";
    const std::string holes = kComparisons[static_cast<std::size_t>(question_.tiebreak)];
    Note("Equal " + scores + " are ordered by " + holes + ".");
    if (page_.round > 1) {
      Note("Equal totals of several rounds are ordered by the score of round " +
           std::to_string(page_.round) + ", and then by these holes of that round.");
    }
  }

  bool HasUnfinishedHole() const {
    for (const ResultEntry& entry : page_.entries) {
      for (const RoundCard& card : entry.cards) {
        for (const CardRow& row : card.rows) {
          for (int hole = 1; hole <= kHoles; ++hole) {
            if (row.cells[hole] == "F") return true;
          }
        }
      }
    }
    return false;
  }

  const PageQuestion& question_;
  TournamentClass& tournament_;
  int rounds_;
  ResultsPage page_;
};

}  // namespace

ResultsPage MakePlayersPage(const PageQuestion& question) { return PageMaker(question).Players(); }

ResultsPage MakeTeamsPage(const PageQuestion& question) { return PageMaker(question).Teams(); }

ResultsPage MakeCustomPage(const PageQuestion& question, const ReportLayout& layout) {
  return PageMaker(question).Custom(layout);
}

}  // namespace golf
