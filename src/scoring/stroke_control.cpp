#include "scoring/stroke_control.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <span>

#include "core/number_text.h"

namespace golf {
namespace {

constexpr int kHolesOfRound = 18;
constexpr std::int32_t kNoCap = 0;
constexpr std::int32_t kCustomMaxima = 100;
constexpr std::int32_t kRunningAllowance = 119;

// Defines the maximum score of a hole for a handicap below `below`. The first row that fits
// applies. The last row of a table applies to all other handicaps, including NaN.
struct CapRow {
  float below;
  std::int32_t strokes;
  bool over_par;  // true if `strokes` is added to the par of the hole
};

constexpr float kAny = std::numeric_limits<float>::infinity();
constexpr bool kOverPar = true;
constexpr bool kFixed = false;

constexpr CapRow kTableOfNine[] = {
    {5, 2, kOverPar}, {10, 7, kFixed}, {15, 8, kFixed}, {20, 9, kFixed}, {kAny, 10, kFixed}};
constexpr CapRow kTableOfEighteen[] = {
    {10, 2, kOverPar}, {20, 7, kFixed}, {30, 8, kFixed}, {40, 9, kFixed}, {kAny, 10, kFixed}};
constexpr CapRow kParPlusOfNine[] = {
    {1, 1, kOverPar}, {10, 2, kOverPar}, {19, 3, kOverPar}, {kAny, 4, kOverPar}};
constexpr CapRow kParPlusOfEighteen[] = {
    {1, 1, kOverPar}, {19, 2, kOverPar}, {33, 3, kOverPar}, {kAny, 4, kOverPar}};
constexpr CapRow kFloorOfSix[] = {{5, 6, kFixed},  {10, 7, kFixed},  {15, 8, kFixed},
                                  {20, 9, kFixed}, {25, 10, kFixed}, {kAny, 11, kFixed}};
constexpr CapRow kFloorOverPar[] = {{5, 2, kOverPar}, {10, 7, kFixed},  {15, 8, kFixed},
                                    {20, 9, kFixed},  {25, 10, kFixed}, {kAny, 11, kFixed}};

struct Scheme {
  std::int32_t code;
  std::span<const CapRow> rows;
};

constexpr Scheme kSchemes[] = {{9, kTableOfNine},    {18, kTableOfEighteen},
                               {19, kParPlusOfNine}, {28, kParPlusOfEighteen},
                               {219, kFloorOfSix},   {319, kFloorOverPar}};

// Contains the strokes over par that a capped hole keeps. The first `holes` capped holes keep
// `over_par`. Every later one keeps one stroke less. All capped holes keep `over_par` if `holes` is
// 0.
struct Allowance {
  std::int32_t over_par;
  std::int32_t holes;
};

Allowance AllowanceFor(float handicap) {
  if (handicap <= 0) return {1, 0};
  if (handicap <= 9) return {2, RoundToInt32(handicap)};
  if (handicap <= 18) return {3, RoundToInt32(handicap - 9)};
  if (handicap <= 27) return {4, RoundToInt32(handicap - 18)};
  return {4, 9};
}

}  // namespace

std::int32_t ESCClass::CalculateESC() {
  if (scheme_ == kNoCap) adjusted_ = scores_;
  if (scheme_ == kCustomMaxima) CapByPar();
  if (scheme_ == kRunningAllowance) CapByAllowance();
  CapByTable();
  gross_.Fill(0);
  adjusted_gross_.Fill(0);
  for (int hole = 1; hole <= kHolesOfRound; ++hole) {
    const int nine = hole > 9 ? 2 : 1;
    gross_[nine] += scores_[hole];
    adjusted_gross_[nine] += adjusted_[hole];
  }
  gross_[3] = gross_[1] + gross_[2];
  adjusted_gross_[3] = adjusted_gross_[1] + adjusted_gross_[2];
  return adjusted_gross_[3];
}

void ESCClass::Cap(int hole, std::int32_t maximum) {
  adjusted_[hole] = scores_[hole] == 0 ? 0 : std::min(scores_[hole], maximum);
}

void ESCClass::CapByTable() {
  const auto scheme = std::find_if(std::begin(kSchemes), std::end(kSchemes),
                                   [this](const Scheme& known) { return known.code == scheme_; });
  if (scheme == std::end(kSchemes)) return;
  const auto last = std::prev(scheme->rows.end());
  const auto row = std::find_if(scheme->rows.begin(), last,
                                [this](const CapRow& each) { return handicap_ < each.below; });
  for (int hole = 1; hole <= kHolesOfRound; ++hole) {
    Cap(hole, row->over_par ? pars_[hole] + row->strokes : row->strokes);
  }
}

// Caps the scores by the custom maxima. A hole with a par outside 3 to 6 has the maximum of the
// previous hole.
void ESCClass::CapByPar() {
  std::int32_t maximum = 0;
  for (int hole = 1; hole <= kHolesOfRound; ++hole) {
    const std::int32_t par = pars_[hole];
    if (par >= 3 && par <= 6) maximum = custom_maxima_[par - 2];
    Cap(hole, maximum);
  }
}

void ESCClass::CapByAllowance() {
  Allowance left = AllowanceFor(handicap_);
  for (int hole = 1; hole <= kHolesOfRound; ++hole) {
    adjusted_[hole] = scores_[hole];
    const bool capped = scores_[hole] != 0 && scores_[hole] - pars_[hole] >= left.over_par;
    if (!capped) continue;
    adjusted_[hole] = pars_[hole] + left.over_par;
    if (--left.holes == 0) --left.over_par;
  }
}

}  // namespace golf
