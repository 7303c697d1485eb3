#include "outlets/export/export_results.h"

#include <algorithm>
#include <functional>
#include <string>
#include <utility>

#include "core/code_page.h"
#include "core/number_text.h"
#include "outlets/export/result_rows.h"
#include "outlets/export/result_tables.h"
#include "outlets/results/player_values.h"
#include "outlets/results/team_values.h"
#include "outlets/results/tournament_walk.h"
#include "scoring/layouts/custom_standings.h"
#include "scoring/layouts/report_layout.h"
#include "scoring/open_tournament.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

class TournamentResults {
 public:
  TournamentResults(ExportRun& run, const ExportedTournament& tournament,
                    std::vector<NumberedError>& faults)
      : run_(run), state_(run.state()), tournament_(tournament), faults_(faults) {}

  void Run() {
    Try("", [&] {
      state_.InitSharedObjects();
      OpenTournament(state_, tournament_.number);
      ExportCustom();
      const int rounds = state_.Tournament().RoundCount();
      for (int round = 1; round <= rounds; ++round) {
        state_.Tournament().SetActiveRound(round);
        ExportPlayers(round);
        ExportTeams(round);
      }
    });
    state_.InitSharedObjects();
  }

 private:
  // Returns the number of the error that a calculation in `work` raised, or 0. Notes such an error.
  // An error of a file ends the export.
  int Try(const std::string& what, const std::function<void()>& work) {
    try {
      work();
      return 0;
    } catch (const NumberedError& error) {
      if (error.IsOfFile()) throw;
      run_.Note("Results of tournament " + std::to_string(tournament_.number) + what + ": " +
                error.Report());
      faults_.push_back(error);
      return error.number();
    }
  }

  void ExportPlayers(int round) {
    PlayerClass& player = state_.Player();
    const bool decimals = state_.Tournament().HandicapDecimalPlaces() > 0;
    ForEachPlayer(state_, [&](std::int32_t record) {
      const std::int64_t entry = tournament_.entries.Find(record);
      if (entry == 0) return;
      ResultRows rows;
      const int error = Try(", record " + std::to_string(record) + ", " + player.NameLF(),
                            [&] { VisitPlayerValues(&player, decimals, round, rows); });
      ExportRow described;
      described.AddIntegerOrNull(
          static_cast<std::int64_t>(LeadingNumber(player.IDNum())));  // 0: none
      described.AddText(Utf8FromText(player.NameLF()));
      AddRows(kPlayerResults, entry, round, described, error, rows);
    });
  }

  // Calls `action(team, id)` for each exported team that can be read.
  template <class Action>
  void ForEachExportedTeam(Action action) {
    const auto export_team = [&](int team) {
      const std::int64_t id = tournament_.teams.Find(team);
      if (id != 0) action(team, id);
    };
    ForEachTeam(state_, export_team, [](int) {});
  }

  void ExportTeams(int round) {
    ForEachExportedTeam([&](int team, std::int64_t id) {
      ResultRows rows;
      const int error = Try(", team " + std::to_string(team),
                            [&] { VisitTeamValues(&state_.Team1(), round, rows); });
      ExportRow described;
      described.AddInteger(team);
      AddRows(kTeamResults, id, round, described, error, rows);
    });
  }

  void AddRows(std::size_t table, std::int64_t owner, int round, const ExportRow& described,
               int error, const ResultRows& rows) {
    run_.Report();
    row_.Clear();
    row_.AddInteger(owner);
    row_.AddInteger(round);
    row_.AddInteger(tournament_.id);
    row_.AddCells(described);
    row_.AddIntegerOrNull(error);
    if (error == 0) row_.AddCells(rows.round().values);
    const std::size_t first = kInstallTables + table;
    while (row_.size() < ResultTables()[table].columns.size()) row_.AddNull();
    run_.AddRow(first, row_);
    if (error != 0) return;
    AddParts(first + 1, owner, round, rows.holes());
    AddParts(first + 2, owner, round, rows.keys());
    AddParts(first + 3, owner, round, rows.holes_and_keys());
  }

  void AddParts(std::size_t table, std::int64_t owner, int round,
                const std::vector<ResultRows::Part>& parts) {
    for (const ResultRows::Part& part : parts) {
      if (!part.has_content) continue;
      row_.Clear();
      row_.AddInteger(owner);
      row_.AddInteger(round);
      if (part.hole != 0) row_.AddInteger(part.hole);
      if (part.key) row_.AddInteger(*part.key);
      row_.AddCells(part.values);
      run_.AddRow(table, row_);
    }
  }

  void ExportCustom() {
    for (const std::string& name : ListReportLayouts(state_.files, state_.StoreDataPath)) {
      Try(", layout " + name, [&] { ExportLayout(name); });
    }
  }

  void ExportLayout(const std::string& name) {
    ReadLayout read = ReadReportLayout(state_.files, state_.StoreDataPath, name);
    if (!read.layout) return run_.Note(read.problem + " Its results are left out.");
    LimitToChoices(*read.layout);
    CustomStandings standings(state_, *read.layout);
    ForEachExportedTeam([&](int team, std::int64_t) {
      Try(", layout " + name + ", team " + std::to_string(team), [&] { standings.AddTeam(); });
    });
    for (const CustomStanding& standing : standings.WorkOut()) AddStanding(name, standing);
  }

  void AddStanding(const std::string& layout, const CustomStanding& standing) {
    constexpr std::string_view kParts[kSumsOfBlock] = {"out", "in", "total", "running"};
    for (std::size_t block = 0; block < standing.Scores.size(); ++block) {
      for (std::size_t part = 0; part < kSumsOfBlock; ++part) {
        row_.Clear();
        row_.AddInteger(tournament_.id);
        row_.AddText(Utf8FromText(layout));
        row_.AddInteger(tournament_.teams.Find(standing.TeamNumber));
        row_.AddInteger(static_cast<std::int64_t>(block) + 1);
        row_.AddText(kParts[part]);
        for (const CustomStanding::Sums* const sums : {&standing.Scores, &standing.Points}) {
          const TeamBalls::Sum& sum = (*sums)[block][part];
          sum ? row_.AddInteger(*sum) : row_.AddNull();
        }
        row_.AddInteger(standing.Positions[block][part]);
        row_.AddInteger(standing.PointsPositions[block][part]);
        run_.AddRow(kInstallTables + kCustomResults, row_);
      }
    }
  }

  ExportRun& run_;
  SharedState& state_;
  const ExportedTournament& tournament_;
  std::vector<NumberedError>& faults_;
  ExportRow row_;
};

}  // namespace

void ExportResults(ExportRun& run, const ExportedTournament& tournament,
                   std::vector<NumberedError>& faults) {
  TournamentResults(run, tournament, faults).Run();
}

}  // namespace golf
