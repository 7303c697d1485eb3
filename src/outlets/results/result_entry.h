#pragma once

#include <bitset>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "scoring/ranking.h"
#include "scoring/round_results.h"

namespace golf {

// These structures contain the results of a player or a team as they are shown. All texts are in
// code page 1252. They are the texts that the members of PlayerClass and TeamClass return.

// Standings rank the scores of the shown round, or the totals of round 1 to the shown round.
enum class Span { kRound, kAllRounds };
inline constexpr Span kSpans[] = {Span::kRound, Span::kAllRounds};

template <class T>
using BySpan = ByEnum<Span, std::size(kSpans), T>;

// Contains a score of a measure. All texts are empty if there is no score.
struct ShownScore {
  std::vector<std::string> parts;  // of the two nines, or of each round
  std::string total;
  RankedScore ranked;
};

// Contains a row of a score card: a value for each hole, the two nines and the round.
struct CardRow {
  std::string heading;
  ByHole<std::string> cells;
  std::bitset<kWholeRound + 1> counts;  // by hole: the score of this golfer counts for the team
};

// Returns a row. `text_of(hole)` returns the text of a hole, 1 to 18, of kFirstNine, kSecondNine or
// kWholeRound.
template <class TextOf>
CardRow CardRowOf(std::string heading, TextOf text_of) {
  CardRow row{std::move(heading), {}, {}};
  for (int hole = 1; hole <= kWholeRound; ++hole) row.cells[hole] = text_of(hole);
  return row;
}

// Returns a row of the numbers of the holes and their sums. `number_of` is called for the holes 1
// to 18.
template <class NumberOf>
CardRow SummedCardRow(std::string heading, NumberOf number_of) {
  ByHole<std::int32_t> numbers;
  for (int hole = 1; hole < kFirstNine; ++hole) {
    numbers[hole] = number_of(hole);
    numbers[NineOf(hole)] += numbers[hole];
    numbers[kWholeRound] += numbers[hole];
  }
  return CardRowOf(std::move(heading), [&](int hole) { return std::to_string(numbers[hole]); });
}

// Contains the score card of one round.
struct RoundCard {
  int round = 0;
  std::vector<std::string> facts;  // such as the course; each is a short text
  std::vector<CardRow> rows;       // PlayerCardRow contains the order of the rows of a player
};
enum PlayerCardRow : std::size_t { kParRow, kStrokesRow, kGrossRow, kNetRow, kPointsRow };

struct ResultEntry {
  int number = 0;                   // the record of the player's entry, or the number of the team
  std::string name;                 // the player's NameLF, or the TeamName
  std::string golfers;              // the last names of the team's golfers; empty for a player
  std::string flight;               // in the round
  std::string sex;                  // "M" or "F"; empty for a team
  std::string handicap;             // in the round
  std::string quota;                // in the round
  int holes_played = 0;             // in the round; 0 for a team, and if there are only totals
  std::optional<double> exact_net;  // of the round, before it is rounded for its text
  BySpan<ByMeasure<ShownScore>> scores;
  std::vector<RoundCard> cards;  // of the played rounds, in ascending order
};

// Returns the number of a shown score. A plus sign means that the score is below 0. Returns no
// value if the text is empty or is no finite number.
std::optional<double> NumberOfScore(const std::string& shown);

}  // namespace golf
