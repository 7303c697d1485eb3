#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "outlets/results/entry_columns.h"
#include "outlets/results/player_cards.h"
#include "screens/results/standings_tables.h"

namespace golf {

// Shows the standings of the open tournament's players in the tables of a screen. The operator
// chooses the measure, the rounds and the players to rank. The card shows the player of the active
// row, and his statistics are below it.
class PlayerStandings {
 public:
  PlayerStandings(const ScreenContext& context, StandingsTables& tables);

  // Reads the results of the active round. `problem` becomes a text that lists the players that are
  // left out because of an error, or an empty text. Returns false and keeps the previous results if
  // no player can be calculated. It also keeps them if it raises an error. Raises the errors of the
  // records' classes, and those of files that a player needs.
  bool Read(Tiebreak tiebreak, std::string& problem);
  // Shows the standings in the order of their places. The row of the player who was chosen last
  // becomes active.
  void Show();
  // Shows the card of the active row. Raises the errors of PlayerClass.
  void ShowCard();
  // Shows or hides the controls of this class.
  void SetVisible(bool visible);

  Label MeasureLabel{"MeasureLabel", "Places b&y"};
  ComboBox MeasureList{"MeasureList"};
  ComboBox SpanList{"SpanList"};
  Label FlightLabel{"FlightLabel", "&Flight"};
  ComboBox FlightList{"FlightList"};
  Label SexLabel{"SexLabel", "S&ex"};
  ComboBox SexList{"SexList"};
  Label SearchLabel{"SearchLabel", "Fin&d"};
  TextBox SearchText{"SearchText"};
  Grid grid3;
  Label StatisticsLabel{"StatisticsLabel"};

 private:
  // Contains the results of a round and the options of the tournament.
  struct Results {
    std::vector<ResultEntry> entries;
    int round = 1;
    int rounds = 1;
    int holes = 18;  // of a round: 9 or 18
    int position_option = 1;
    bool has_totals_only = false;
  };

  struct Column {
    EntryColumn entry;
    bool centred = true;
    SortKind sort_kind = SortKind::kPlusBelowZero;
  };

  void FillLists();
  bool HasMeasure(Measure measure) const;
  Measure ChosenMeasure() const;
  Span ChosenSpan() const;
  std::vector<Column> Columns() const;
  void Fill();
  void ShowCardRows(const PlayerCards& cards);
  void ShowStatistics(const PlayerCards& cards);

  ScreenContext context_;
  StandingsTables& tables_;
  Results results_;
  std::string chosen_;  // the record of the player whose card is shown
  bool loading_ = false;
  bool visible_ = true;
};

}  // namespace golf
