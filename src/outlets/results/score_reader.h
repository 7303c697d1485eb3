#pragma once

#include <array>
#include <optional>
#include <string>

#include "outlets/results/entry_reader.h"
#include "scoring/tournament_class.h"

namespace golf {

// Contains the members of PlayerClass or TeamClass that return the keys of a tiebreak.
template <class Owner>
struct TiebreakMembers {
  using Member = std::string (Owner::*)(std::optional<int> round);
  Member gross;
  Member net;
};
// Contains them for each tiebreak but Tiebreak::kNone.
template <class Owner>
using TiebreakTable = std::array<TiebreakMembers<Owner>, std::size(kTiebreakNames) - 1>;

// Returns the key that orders equal scores of a measure in a round. It is empty if they stay equal.
template <class Owner>
std::string TiebreakKey(Owner& owner, const TiebreakTable<Owner>& table, Tiebreak tiebreak,
                        Measure measure, int round) {
  if (tiebreak == Tiebreak::kNone || !RanksLowestFirst(measure)) return {};
  const TiebreakMembers<Owner>& members = table[static_cast<std::size_t>(tiebreak) - 1];
  return (owner.*(measure == Measure::kGross ? members.gross : members.net))(round);
}

// Reads the scores of a player or a team. The shown round is the active round of the tournament.
// All functions raise the errors of the calculation.
class ScoreReader {
 public:
  virtual ~ScoreReader() = default;

 protected:
  // The question must outlive the object.
  explicit ScoreReader(const EntryQuestion& question)
      : question_(question),
        tournament_(question.state.Tournament()),
        round_(tournament_.RoundOr({})) {}

  // Rounds are 1 to 7.
  virtual bool IsPlayed(int round) = 0;
  // Returns the score of a hole, a nine or a round as text. A quota result has no scores of holes.
  virtual std::string Score(Measure measure, int hole, int round) = 0;
  // Returns the sum of round 1 to the shown round as text. Returns no value for a measure that is
  // not added over rounds.
  virtual std::optional<std::string> Total(Measure measure) = 0;
  virtual std::string Key(Measure measure) = 0;

  // Adds the scores and the totals of the shown round to an entry. An entry has no place by its
  // total if it did not play each round.
  void ReadScores(ResultEntry& entry);
  // Adds the rows of the gross scores, the net scores and the points to a card.
  void AddScoreRows(RoundCard& card);

  const EntryQuestion& question_;
  TournamentClass& tournament_;
  const int round_;  // the shown round

 private:
  void ReadRound(ResultEntry& entry);
  void ReadTotals(ResultEntry& entry);
  bool HasPlaces(Measure measure) const;
};

}  // namespace golf
