#include "screens/results/player_standings.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "core/number_text.h"
#include "core/text.h"
#include "core/while_set.h"
#include "outlets/results/entry_reader.h"
#include "outlets/results/standings.h"
#include "scoring/layouts/ball_tables.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

constexpr const char* kMeasureNames[] = {"Gross", "Net", "Points", "Quota"};
constexpr const char* kAllFlights = "All flights";
constexpr const char* kSexes[] = {"", "M", "F"};  // in the order of SexList
constexpr int kStatisticsColumns = 6;

std::string NameOf(Measure measure) { return kMeasureNames[static_cast<std::size_t>(measure)]; }

// Replaces the items of a list. Selects the item with the same text as before, or the first one.
void Refill(ComboBox& list, const std::vector<std::string>& items) {
  const std::string before = list.text();
  list.Clear();
  int index = 0;
  for (const std::string& item : items) {
    if (item == before) index = static_cast<int>(list.items().size());
    list.AddItem(item);
  }
  list.Select(index);
}

// Returns the handicap strokes of a hole as dots. A minus sign means that they are added to the
// score instead of subtracted from it.
std::string DotsOf(const std::string& strokes) {
  const int number = RoundToInt32(LeadingNumber(strokes));
  const int size = std::abs(number);
  constexpr int kMostDots = 3;
  const std::string sign = number < 0 ? "-" : "";
  if (size > kMostDots) return sign + std::to_string(size) + "\x95";
  return sign + std::string(static_cast<std::size_t>(size), '\x95');
}

// Returns the column of a block for a hole, a nine or the round.
int BlockColumn(int hole) {
  return hole <= kHoles ? HoleColumn(hole) : SumColumn(1, hole - kFirstNine + 1);
}

}  // namespace

PlayerStandings::PlayerStandings(const ScreenContext& context, StandingsTables& tables)
    : grid3("grid3", kStatisticsColumns), context_(context), tables_(tables) {
  grid3.SetHidden(0, true);
  grid3.LockAllColumns();
  constexpr const char* kHeadings[] = {"Holes",  "Eagles\nor better",      "Birdies", "Pars",
                                       "Bogeys", "Double bogeys\nor worse"};
  for (int column = 1; column <= grid3.columns(); ++column) {
    grid3.SetHeading(column, kHeadings[column - 1]);
    grid3.SetCentred(column, column > 1);
  }
  for (const char* span : {"This round", "All rounds up to it"}) SpanList.AddItem(span);
  for (const char* sex : {"All", "Men", "Ladies"}) SexList.AddItem(sex);
  SpanList.Select(0);
  SexList.Select(0);
  FillLists();
  for (ComboBox* list : {&MeasureList, &SpanList, &FlightList, &SexList}) {
    list->on_click = [this] {
      if (!loading_) Show();
    };
  }
  SearchText.on_change = [this] { Fill(); };
}

bool PlayerStandings::Read(Tiebreak tiebreak, std::string& problem) {
  TournamentClass& tournament = context_.state.Tournament();
  Results read;
  read.round = tournament.RoundOr({});
  read.rounds = tournament.RoundCount();
  read.holes = tournament.RoundType();
  read.position_option = tournament.PositionOption();
  read.has_totals_only = tournament.ScoreEntryTotal() != 0;
  std::string problems;
  read.entries = ReadPlayers({context_.state,
                              tiebreak,
                              false,
                              [&](const std::string& who, const NumberedError& error) {
                                if (error.IsOfFile()) throw;
                                problems += "\r" + who + ": " + error.Report();
                              },
                              {}});
  problem = problems.empty() ? "" : "These players cannot be calculated:" + problems;
  if (read.entries.empty() && !problems.empty()) return false;
  results_ = std::move(read);
  FillLists();
  SetVisible(visible_);
  return true;
}

// Fills the lists whose items depend on the results.
void PlayerStandings::FillLists() {
  const WhileSet loading(loading_);
  std::vector<std::string> measures;
  for (const Measure measure : kMeasures) {
    if (HasMeasure(measure)) measures.push_back(NameOf(measure));
  }
  Refill(MeasureList, measures);
  std::vector<std::string> flights = {kAllFlights};
  for (const StandingsGroup& group : GroupsOf(results_.entries)) {
    if (group.kind == StandingsGroup::Kind::kFlight) flights.push_back(group.key);
  }
  Refill(FlightList, flights);
}

void PlayerStandings::SetVisible(bool visible) {
  visible_ = visible;
  for (Control* control : std::initializer_list<Control*>{
           &MeasureLabel, &MeasureList, &FlightLabel, &FlightList, &SexLabel, &SexList,
           &SearchLabel, &SearchText, &grid3, &StatisticsLabel}) {
    control->SetVisible(visible);
  }
  SpanList.SetVisible(visible && results_.round > 1);
}

// A tournament that has only totals of rounds has neither points nor quota results.
bool PlayerStandings::HasMeasure(Measure measure) const {
  return !results_.has_totals_only || RanksLowestFirst(measure);
}

Measure PlayerStandings::ChosenMeasure() const {
  return kMeasures[static_cast<std::size_t>(std::max(MeasureList.index(), 0))];
}

Span PlayerStandings::ChosenSpan() const {
  return results_.round > 1 && SpanList.index() == 1 ? Span::kAllRounds : Span::kRound;
}

void PlayerStandings::Show() {
  tables_.ForgetSort();
  tables_.SetCardColumns("Hole", results_.holes);
  Fill();
}

// Returns all columns in their fixed order. A column that does not apply has no heading.
std::vector<PlayerStandings::Column> PlayerStandings::Columns() const {
  const Measure chosen = ChosenMeasure();
  std::vector<Column> columns = {
      {FactColumn("Name", &ResultEntry::name), false, SortKind::kText},
      {FactColumn("Handicap", &ResultEntry::handicap)},
      {FactColumn("Flight", &ResultEntry::flight), true, SortKind::kText},
      {FactColumn("Sex", &ResultEntry::sex), true, SortKind::kText}};
  const auto add = [&](EntryColumn column, bool applies) {
    if (!applies) column.heading.clear();
    columns.push_back({std::move(column)});
  };
  const bool has_nines = !results_.has_totals_only && results_.holes == kHoles;
  const bool is_gross = chosen == Measure::kGross;
  add(PartColumn(is_gross ? "Out" : NameOf(chosen) + "\nout", Span::kRound, chosen, 0), has_nines);
  add(PartColumn(is_gross ? "In" : NameOf(chosen) + "\nin", Span::kRound, chosen, 1), has_nines);
  for (const Span span : kSpans) {
    const bool is_round = span == Span::kRound;
    for (const Measure measure : kMeasures) {
      add(TotalColumn((is_round ? "" : "Total\n") + NameOf(measure), span, measure),
          HasMeasure(measure) && (is_round || results_.round > 1));
    }
  }
  add(HolesColumn(results_.holes), IsSomebodyOnCourse(results_.entries, results_.holes));
  for (int round = 1; round <= results_.rounds; ++round) {
    add(PartColumn("Rd " + std::to_string(round), Span::kAllRounds, chosen,
                   static_cast<std::size_t>(round) - 1),
        ChosenSpan() == Span::kAllRounds && round <= results_.round);
  }
  return columns;
}

void PlayerStandings::Fill() {
  const std::vector<Column> columns = Columns();
  std::vector<StandingsColumn> shown = {{"Place", true, SortKind::kValue}};
  for (const Column& column : columns) {
    shown.push_back({column.entry.heading, column.centred, column.sort_kind});
  }
  std::vector<std::vector<std::string>> rows;
  std::vector<std::string> keys;
  const std::string wanted = UpperCase(SearchText.text());
  const std::vector<ResultEntry>& entries = results_.entries;
  const StandingsGroup group =
      FilteredGroup(entries, FlightList.index() > 0 ? FlightList.text() : "",
                    kSexes[std::max(SexList.index(), 0)]);
  for (const auto& [index, place] :
       RankGroup(entries, group, ChosenSpan(), ChosenMeasure(), results_.position_option)) {
    const ResultEntry& entry = entries[index];
    if (UpperCase(entry.name).find(wanted) == std::string::npos) continue;
    auto& row = rows.emplace_back();
    row.push_back(TextOrEmpty(place));
    for (const Column& column : columns) {
      row.push_back(column.entry.heading.empty() ? "" : column.entry.text(entry));
    }
    keys.push_back(std::to_string(entry.number));
  }
  tables_.ShowStandings(shown, rows, keys);
  tables_.SortAgain();
  Grid& grid = tables_.grid1;
  int active = std::min(grid.rows(), 1);
  for (int row = 1; row <= grid.rows(); ++row) {
    if (grid.text(0, row) == chosen_) active = row;
  }
  grid.SetActiveRow(active);
}

void PlayerStandings::ShowCard() {
  const Grid& standings = tables_.grid1;
  const int row = standings.active_row();
  tables_.CardLabel.SetCaption("");
  tables_.grid2.SetRows(0);
  grid3.SetRows(0);
  StatisticsLabel.SetCaption("");
  if (row < 1) return;
  const std::string& key = standings.text(0, row);
  const auto entry =
      std::find_if(results_.entries.begin(), results_.entries.end(),
                   [&](const ResultEntry& known) { return std::to_string(known.number) == key; });
  if (entry == results_.entries.end()) return;
  chosen_ = key;
  const Span span = ChosenSpan();
  const PlayerCards cards = ReadPlayerCards(context_.state, entry->number, span);
  std::string caption = entry->name + (span == Span::kRound ? ", round " : ", rounds 1 to ") +
                        std::to_string(results_.round);
  if (cards.cards.empty()) {
    caption += results_.has_totals_only
                   ? ": the tournament has only totals of rounds, so there is no score card"
                   : ": no score";
  } else {
    ShowCardRows(cards);
    for (const std::string& fact : cards.cards.back().facts) {
      if (!fact.empty()) caption += ", " + fact;
    }
    caption += ", Quota " + entry->quota;
    ShowStatistics(cards);
  }
  tables_.CardLabel.SetCaption(caption);
}

void PlayerStandings::ShowCardRows(const PlayerCards& cards) {
  Grid& grid = tables_.grid2;
  grid.SetRepainting(false);
  int row = 0;
  for (const RoundCard& card : cards.cards) {
    for (const CardRow& shown : card.rows) {
      grid.SetRows(++row);
      const std::string of_round = "Round " + std::to_string(card.round) + ", ";
      grid.SetText(1, row, (ChosenSpan() == Span::kRound ? "" : of_round) + shown.heading);
      const bool is_strokes = &shown == &card.rows[kStrokesRow];
      for (int hole = 1; hole <= kWholeRound; ++hole) {
        const std::string& cell = shown.cells[hole];
        tables_.SetCardText(BlockColumn(hole), row,
                            is_strokes && hole <= kHoles ? DotsOf(cell) : cell);
      }
    }
  }
  grid.SetRepainting(true);
}

void PlayerStandings::ShowStatistics(const PlayerCards& cards) {
  grid3.SetRepainting(false);
  grid3.SetRows(2);
  int row = 0;
  for (const auto& [name, counts] :
       {std::pair("Gross", &cards.gross), std::pair("Net", &cards.net)}) {
    grid3.SetText(1, ++row, name);
    int column = 1;
    for (const std::int32_t count :
         {counts->eagles, counts->birdies, counts->pars, counts->bogeys, counts->double_bogeys}) {
      grid3.SetText(++column, row, std::to_string(count));
    }
  }
  grid3.SetRepainting(true);
  std::string shown;
  for (const auto& [name, count] :
       {std::pair("Putts", &cards.putts), std::pair("Fairways", &cards.fairways),
        std::pair("Greens", &cards.greens)}) {
    if (LeadingNumber(*count) == 0) continue;
    shown += (shown.empty() ? "" : ", ") + std::string(name) + " " + *count;
  }
  StatisticsLabel.SetCaption(shown);
}

}  // namespace golf
