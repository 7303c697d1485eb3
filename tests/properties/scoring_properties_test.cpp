// These tests compare calculated rounds with a second, plain calculation from the records alone.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

#include "app/application.h"
#include "scoring/stroke_control.h"
#include "support/error_of.h"
#include "support/memory_platform.h"
#include "support/scored_round.h"

namespace golf {
namespace {

class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}

  template <class T>
  T Of(std::initializer_list<T> values) {
    return values.begin()[random_() % values.size()];
  }
  std::int16_t From(int low, int high) {
    return static_cast<std::int16_t>(
        low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1)));
  }
  // Returns a number from `low` to `high`, or with a probability of 1 in `n` one of `odd`.
  std::int16_t Mostly(int low, int high, int n, std::initializer_list<int> odd) {
    return random_() % static_cast<unsigned>(n) == 0 ? static_cast<std::int16_t>(Of(odd))
                                                     : From(low, high);
  }
  // Returns a handicap in hundredths, tenths or halves. The rounding rules differ for these values.
  float Handicap() {
    const int steps = Of({100, 10, 2});
    return static_cast<float>(From(-9 * steps, 54 * steps)) / static_cast<float>(steps);
  }
  template <class Range>
  void Shuffle(Range& range) {
    std::shuffle(range.begin(), range.end(), random_);
  }

 private:
  std::mt19937 random_;
};

ScoredRound AnyRound(Dice& dice) {
  ScoredRound any;
  auto& control = any.control;
  control.Set<"RoundType">(dice.Of<std::int16_t>({9, 18, 18, 27}));
  control.Set<"IndextoHandicap">(dice.From(-1, 0));
  control.Set<"HandicapDecimalPlaces">(dice.From(-1, 0));
  control.Set<"ScoreEntryTotal">(dice.Mostly(0, 0, 4, {-1}));
  control.Set<"RCGAESC">(dice.From(-1, 0));
  control.Set<"PointQuotaOption">(dice.From(0, 4));
  control.Set<"PointQuotaFromHandicap">(dice.Mostly(0, 100, 5, {-7, 32767}));
  control.Set<"ActiveRound">(dice.From(1, 5));
  control.Set<"NumTeesMenPlay">(dice.From(-1, 6));
  control.Set<"NumTeesLadiesPlay">(dice.From(-1, 6));
  for (int d = -5; d <= 5; ++d) control.Set<"PointsGiven">({d}, dice.Mostly(-3, 9, 9, {32767}));
  for (int sex = 0; sex <= 1; ++sex) {
    control.Set<"HandicapMax">({sex}, dice.Of({36.0F, 9e6F, 9e6F, 18.45F, 9.125F, -3.0F}));
  }
  any.golfer.Set<"Sex">(static_cast<std::uint8_t>(dice.From(0, 2)));
  for (int round = 1; round <= kRounds; ++round) {
    for (int group = 1; group <= 5; ++group) {
      for (int sex = 0; sex <= 1; ++sex) {
        control.Set<"TeeNumberPlayed">({sex, group, round}, dice.From(1, kTeeSlots));
        control.Set<"TeeHandicapPercent">({sex, group, round},
                                          dice.Of({100.0F, 90.0F, 85.0F, 33.3F, 0.0F, -50.0F}));
        control.Set<"TeeHandicapAdjustment">({sex, group, round},
                                             dice.Of({0.0F, 1.0F, -2.5F, 2.345F, -0.777F}));
      }
    }
    any.entry.Set<"TourGroupTee">({round}, dice.From(0, 6));
    any.entry.Set<"TourIndex">({round}, dice.Handicap());
    // A very large handicap shows the precision of each step.
    any.entry.Set<"TourGrossHandicap">({round}, dice.Handicap() * dice.Of({1.0F, 1.0F, 29999.0F}));
    any.entry.Set<"TourQuota">({round}, dice.Handicap());
    any.entry.Set<"TourScoreGrossTotal">({round}, dice.Mostly(60, 120, 5, {0, -1, 32767}));
    any.entry.Set<"TourScoreAdjusted">({round}, dice.Mostly(60, 120, 5, {0, -1, 32767}));
    for (int hole = 1; hole <= kHoles; ++hole) {
      any.entry.Set<"TourScoreGross">({hole, round}, dice.Mostly(1, 12, 9, {0, -3, 99, 32767}));
    }
  }
  for (int tee = 1; tee <= kTeeSlots; ++tee) {
    for (int sex = 0; sex <= 1; ++sex) {
      any.course.Set<"slope">({tee, sex}, dice.Mostly(55, 155, 9, {0, 113, -20, 32767}));
    }
    std::array<std::int16_t, kHoles> ranks{};
    std::iota(ranks.begin(), ranks.end(), std::int16_t{1});
    const bool shared_ranks = dice.From(1, 3) == 1;  // 0 is no rank, and 19 is not valid
    for (std::int16_t& rank : ranks) rank = shared_ranks ? dice.From(0, 19) : rank;
    dice.Shuffle(ranks);
    for (int hole = 1; hole <= kHoles; ++hole) {
      any.course.Set<"HoleHandicap">({tee, hole}, ranks[static_cast<std::size_t>(hole) - 1]);
      any.course.Set<"HolePar">({tee, hole}, dice.Mostly(3, 6, 9, {0, 90, -4, 32767}));
    }
  }
  return any;
}

std::string Text(double value, int decimals, char minus = '-') {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, value + 0.00001);
  if (*text == '-') *text = minus;
  return text;
}

int Even(double value) { return static_cast<int>(std::nearbyint(value)); }

int Capped(int flag, float handicap, int par, int score) {
  int maximum = score;
  if (flag == 19 || flag == 28) {
    const float limits[] = {1, flag == 19 ? 10.0F : 19.0F, flag == 19 ? 19.0F : 33.0F};
    maximum = par + 1;
    for (const float limit : limits) maximum += handicap >= limit ? 1 : 0;
  } else if (flag != 0) {
    const int row = static_cast<int>(std::floor(handicap / (flag == 18 ? 10 : 5)));
    maximum = row >= 1 ? std::min(6 + row, flag > 18 ? 11 : 10) : flag == 219 ? 6 : par + 2;
  }
  return score == 0 ? 0 : std::min(score, maximum);
}

// Calculates a round in a plain way. Elements 19 to 21 of a table are the sums.
struct PlainRound {
  PlainRound(const ScoredRound& all, int round);

  std::string HandicapText() const { return Text(handicap, decimals); }
  void GiveStrokes(const ByHole<int>& rank, int given);

  int holes, decimals;
  bool totals_only;
  float gross_handicap, handicap, decimal_net;
  int adjusted = 0;
  ByHole<int> score, par, strokes, gross, net, gross_points, net_points;
};

PlainRound::PlainRound(const ScoredRound& all, int round)
    : holes(all.control.Get<"RoundType">() == 9 ? 9 : 18),
      decimals(all.control.Get<"HandicapDecimalPlaces">() == 0 ? 0 : 2),
      totals_only(all.control.Get<"ScoreEntryTotal">() != 0) {
  const int sex = all.golfer.Get<"Sex">() == 1 ? 1 : 0;
  const int groups = std::clamp<int>(
      sex == 1 ? all.control.Get<"NumTeesLadiesPlay">() : all.control.Get<"NumTeesMenPlay">(), 0,
      5);
  int group = all.entry.Get<"TourGroupTee">(round);
  if (group < 1 || group > groups) group = 1;
  const int tee = all.control.Get<"TeeNumberPlayed">(sex, group, round);

  gross_handicap = all.entry.Get<"TourGrossHandicap">(round);
  if (all.control.Get<"IndextoHandicap">() != 0) {
    const double index = all.entry.Get<"TourIndex">(round);
    gross_handicap =
        static_cast<float>(Even(all.course.Get<"slope">(tee, sex) * index / 113 + 0.00001));
  }
  const float share = all.control.Get<"TeeHandicapPercent">(sex, group, round) / 100;
  handicap = share * gross_handicap;
  handicap += all.control.Get<"TeeHandicapAdjustment">(sex, group, round);
  const double most = std::round(all.control.Get<"HandicapMax">(sex) * 100.0) / 100;
  if (handicap > most) handicap = static_cast<float>(most);

  ByHole<int> rank;
  const int flag = holes + (all.control.Get<"RCGAESC">() != 0 ? 10 : 0);
  for (int hole = 1; hole <= 18; ++hole) {
    score[hole] = all.entry.Get<"TourScoreGross">(hole, round);
    par[hole] = all.course.Get<"HolePar">(tee, hole);
    rank[hole] = all.course.Get<"HoleHandicap">(tee, hole);
    if (totals_only) continue;
    gross[hole > 9 ? 20 : 19] += score[hole];
    gross[21] += score[hole];
    adjusted += Capped(flag, std::stof(Text(gross_handicap, 0)), par[hole], score[hole]);
  }
  if (totals_only) {
    gross[21] = all.entry.Get<"TourScoreGrossTotal">(round);
    adjusted = all.entry.Get<"TourScoreAdjusted">(round);
    if (gross[21] >= 1) net[21] = Even(gross[21] - std::stod(HandicapText()));
  }
  decimal_net = gross[21] < 1 ? 0.0F : static_cast<float>(gross[21]) - handicap;

  GiveStrokes(rank, Even(std::stod(HandicapText())));
  for (int hole = 1; hole <= holes; ++hole) {
    if (totals_only || score[hole] < 1) continue;
    const auto points_at = [&](int played) {
      return all.control.Get<"PointsGiven">(std::clamp(played - par[hole], -5, 5));
    };
    net[hole] = score[hole] - strokes[hole];
    gross_points[hole] = points_at(score[hole]);
    net_points[hole] = points_at(net[hole]);
    for (auto* by_hole : {&net, &gross_points, &net_points}) {
      (*by_hole)[hole > 9 ? 20 : 19] += (*by_hole)[hole];
      (*by_hole)[21] += (*by_hole)[hole];
    }
  }
}

void PlainRound::GiveStrokes(const ByHole<int>& rank, int given) {
  const int step = holes == 9 ? 9 : 18;
  for (int r = 1; r <= 18; ++r) {
    for (int hole = 1; hole <= holes; ++hole) {
      if (rank[hole] == r && given > 0) strokes[hole] = std::min((--given) / step + 1, 5);
    }
  }
  for (int r = 18; r >= 1; --r) {
    for (int hole = 1; hole <= holes; ++hole) {
      if (rank[hole] == r && given < 0) strokes[hole] = -1, ++given;
    }
  }
}

// Calculates the quota. The quota of any round uses the handicap of the active round.
std::string QuotaText(const ScoredRound& all, int round) {
  const PlainRound active(all, all.control.Get<"ActiveRound">());
  const double from = all.control.Get<"PointQuotaFromHandicap">();
  const double handicap = std::stod(active.HandicapText());
  const int option = all.control.Get<"PointQuotaOption">();
  const double stored = all.entry.Get<"TourQuota">(round);
  return Text(option == 2 ? handicap : option == 3 ? stored : from - handicap, active.decimals);
}

template <class T, class U>
void Same(const char* what, int place, const T& given, const U& plain) {
  if (given == plain) return;
  RC_LOG() << what << " " << place;
  RC_ASSERT(given == plain);
}

void SameRound(PlayerClass& player, const ScoredRound& all, int round) {
  const PlainRound plain(all, round);
  const int decimals = plain.decimals;
  Same("handicap", 1, player.TourHandicap(round), Text(plain.handicap, decimals, '+'));
  Same("handicap", 2, player.TourHandicapValue(round), plain.HandicapText());
  Same("gross handicap", 0, player.TourGrossHandicapValue(true, round),
       Text(plain.gross_handicap, 2));
  Same("adjusted", 0, player.TourScoreAdjusted(round), std::to_string(plain.adjusted));
  for (int hole = 1; hole <= 21; ++hole) {
    const int gross = hole > 18 ? plain.gross[hole] : plain.totals_only ? 0 : plain.score[hole];
    const std::string net = hole == 21 && decimals > 0 ? Text(plain.decimal_net, 2, '+')
                            : gross > 0                ? std::to_string(plain.net[hole])
                                                       : "";
    Same("gross", hole, player.TourScoreGrossValue(hole, round), gross);
    Same("net", hole, player.TourScoreNet(hole, round), net);
    Same("points", hole, std::stoi(player.TourPointsGross(hole, round)), plain.gross_points[hole]);
    Same("net points", hole, std::stoi(player.TourPointsNet(hole, round)), plain.net_points[hole]);
    if (hole > plain.holes) continue;
    Same("par", hole, player.TourHolePar(hole, round), plain.par[hole]);
    Same("strokes", hole, player.TourHoleStrokes(hole, round), plain.strokes[hole]);
  }
  const std::string quota = QuotaText(all, round);
  const double q = std::stod(quota);
  const double shares[] = {q / 2 - 0.0001, q / 2 + 0.0001, q};
  Same("quota", 0, player.TourQuota(decimals > 0, round), quota);
  for (int part = 1; part <= 3; ++part) {
    const auto result = static_cast<float>(plain.gross_points[18 + part] - shares[part - 1]);
    Same("quota result", part, player.TourPointsQuotaResults(part, round), Text(result, decimals));
  }
}

RC_GTEST_PROP(ScoringProperties, ARoundIsWhatPlainReckoningMakesIt, ()) {
  Dice dice(*rc::gen::arbitrary<unsigned>());
  Application application{std::make_unique<MemoryPlatform>()};
  application.Start(DateFromCivil({2024, 5, 13}), {});
  application.state().files.gate().CreateFolder("/qbdata");
  for (int times = 0; times < 5; ++times) {
    const ScoredRound all = AnyRound(dice);
    PlayerClass& player = all.Load(application.state());
    std::array<int, kRounds> rounds{};
    std::iota(rounds.begin(), rounds.end(), 1);
    dice.Shuffle(rounds);
    // The quota of any round calculates the active round, so the active round is compared first.
    // Strokes and pars belong to the round that was calculated last.
    const int active = all.control.Get<"ActiveRound">();
    std::swap(rounds[0], *std::find(rounds.begin(), rounds.end(), active));
    for (const int round : rounds) SameRound(player, all, round);
  }
}

RC_GTEST_PROP(ScoringProperties, StrokeControlCapsAsPlainReckoningDoes, ()) {
  Dice dice(*rc::gen::arbitrary<unsigned>());
  ESCClass control;
  ByHole<int> adjusted;  // unchanged under an unknown scheme
  RC_ASSERT(ErrorOf([&] { control.SetHolePar(19, 4); }) == 9);
  RC_ASSERT(ErrorOf([&] { control.AdjGross(0); }) == 9);
  for (int times = 0; times < 50; ++times) {
    const int flag = dice.Of({0, 9, 18, 19, 28, 100, 119, 219, 319, 7});
    const float handicap = dice.Handicap();
    const int custom = dice.From(0, 6);  // the maximum on a par 3; two more for each stroke of par
    for (int i = 1; i <= 4; ++i) control.SetCustomMax(i, custom + 2 * i - 2);
    control.Setflag(flag);
    control.SetHandicap(handicap);
    // The allowance over par is one stroke less after `holes` capped holes.
    int over = handicap <= 0 ? 1 : handicap <= 9 ? 2 : handicap <= 18 ? 3 : 4;
    int holes = handicap <= 0   ? 0
                : handicap > 27 ? 9
                                : Even(handicap - static_cast<float>(9 * over - 18));
    int custom_maximum = 0, capped[2] = {}, scores = 0;
    for (int hole = 1; hole <= 18; ++hole) {
      const int par = dice.Mostly(3, 6, 9, {0, 2, 7, 90});
      const int score = dice.Mostly(1, 12, 9, {0, 99, 32767});
      control.SetHolePar(hole, par);
      control.SetHoleScore(hole, score);
      if (par >= 3 && par <= 6) custom_maximum = custom + 2 * par - 6;
      if (flag == 100) {
        adjusted[hole] = std::min(score, custom_maximum);
      } else if (flag == 119) {
        adjusted[hole] = std::min(score, par + over);
        if (score - par >= over && --holes == 0) --over;
      } else if (flag != 7) {
        adjusted[hole] = Capped(flag, handicap, par, score);
      }
      capped[hole / 10] += adjusted[hole];
      scores += score;
    }
    Same("scheme", flag, control.CalculateESC(), capped[0] + capped[1]);
    Same("first nine", flag, control.AdjGross(1), capped[0]);
    Same("gross", flag, control.Gross(1) + control.Gross(2), scores);
    Same("gross", flag, control.Gross(3), scores);
    for (int hole = 1; hole <= 18; ++hole) {
      Same("capped", hole, control.HoleAdjScore(hole), adjusted[hole]);
    }
  }
  control.Setflag(28);
  control.SetHandicap(std::numeric_limits<float>::infinity());
  control.SetHolePar(1, 4);
  control.SetHoleScore(1, 12);
  control.CalculateESC();
  RC_ASSERT(control.HoleAdjScore(1) == 8);
}

}  // namespace
}  // namespace golf
