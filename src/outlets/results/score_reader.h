#pragma once

#include <array>
#include <optional>
#include <string>

#include "outlets/results/entry_reader.h"

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

// Returns the key of the owner's round for a measure. It is empty if a tie is not broken.
template <class Owner>
std::string TiebreakKey(Owner& owner, const TiebreakTable<Owner>& table, Tiebreak tiebreak,
                        Measure measure, int round) {
  if (tiebreak == Tiebreak::kNone || !RanksLowestFirst(measure)) return {};
  const TiebreakMembers<Owner>& members = table[static_cast<std::size_t>(tiebreak) - 1];
  return (owner.*(measure == Measure::kGross ? members.gross : members.net))(round);
}

// Reads the scores of a player or a team. All functions raise the errors of the calculation.
class ScoreReader {
 public:
  virtual ~ScoreReader() = default;

 protected:
  // Rounds are 1 to 7.
  virtual bool IsPlayed(int round) = 0;
  // Returns the score of a hole, a nine or a round, as text. For kQuota there are no holes.
  virtual std::string Score(Measure measure, int hole, int round) = 0;
  // Returns the total of the rounds 1 to the shown one. Returns no value if the measure has none.
  virtual std::optional<std::string> Total(Measure measure) = 0;
  virtual std::string Key(Measure measure) = 0;
  // Returns false for points and quota results if the tournament has only totals of rounds.
  virtual bool HasPlaces(Measure measure) = 0;

  // Adds the scores of the shown round to an entry, if it was played.
  void ReadRound(int round, ResultEntry& entry);
  // Adds the totals of the rounds 1 to the shown one. An entry has no place by its totals if it did
  // not play each of them.
  void ReadTotals(int round, ResultEntry& entry);
};

}  // namespace golf
