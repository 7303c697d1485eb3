#pragma once

#include <memory>
#include <string>
#include <vector>

#include "scoring/standings_table.h"
#include "screens/results/standings_tables.h"

namespace golf {

// Shows the standings of the open tournament's teams in the tables of a screen. The standings are
// those of the total scores or those under a report layout. The card shows the team of the active
// row hole by hole and marks the balls that count.
class TeamStandings {
 public:
  TeamStandings(const ScreenContext& context, StandingsTables& tables);

  // Fills LayoutList with the totals and the layouts, and selects the totals.
  void FillLayouts();
  // True if a layout is chosen, and not the totals.
  bool HasLayout() const { return LayoutList.index() > 0; }
  // Reads the chosen layout. Returns the reason if it cannot be read. The next Calculate then
  // calculates the totals.
  std::string TakeLayout();
  const ReportLayout& layout() const { return layout_; }

  // Calculates the standings for the active round. Returns a text that lists the teams that are
  // left out because of an error, or an empty text. If it raises an error, the previous standings
  // stay valid. Raises the errors of the records' classes.
  std::string Calculate();
  // Forgets the calculated standings, so that Show shows empty tables.
  void Forget() { calculated_.reset(); }
  // Shows the calculated standings and the card of the first team.
  void Show();
  // Shows the card of the active row. Raises the errors of TeamClass.
  void ShowCard();

  Label LayoutLabel{"LayoutLabel", "Standings"};
  ComboBox LayoutList{"LayoutList"};

 private:
  struct Calculated;

  void ShowCardLine(const TeamBalls& balls, int row, const std::string& name, int golfer,
                    BallTable table);
  void ShowCardSums(const TeamBalls& balls, int row);

  ScreenContext context_;
  StandingsTables& tables_;
  ReportLayout layout_;
  std::shared_ptr<const Calculated> calculated_;
};

}  // namespace golf
