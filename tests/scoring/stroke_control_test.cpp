#include "scoring/stroke_control.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/error_of.h"

namespace golf {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();

ESCClass Loaded(int scheme, float handicap, int par, int score) {
  ESCClass control;
  control.Setflag(scheme);
  control.SetHandicap(handicap);
  for (int hole = 1; hole <= 18; ++hole) {
    control.SetHolePar(hole, par);
    control.SetHoleScore(hole, score);
  }
  return control;
}

TEST(StrokeControl, MaximumOfAHole) {
  const struct {
    int scheme;
    float handicap;
    int par;
    int score;
    int adjusted;
  } kCases[] = {
      {0, 5, 4, 99, 99},     {18, 9.9F, 4, 9, 6},        {18, 10, 4, 9, 7},
      {18, 19.9F, 3, 9, 7},  {18, 20, 3, 9, 8},          {18, 30, 3, 12, 9},
      {18, 39.9F, 3, 12, 9}, {18, 40, 3, 12, 10},        {9, -3, 5, 9, 7},
      {9, 5, 5, 9, 7},       {9, 10, 3, 9, 8},           {9, 15, 3, 10, 9},
      {9, 20, 4, 120, 10},   {19, 0.9F, 4, 9, 5},        {19, 1, 4, 9, 6},
      {19, 10, 4, 9, 7},     {19, 19, 4, 9, 8},          {28, 0.5F, 5, 8, 6},
      {28, 18.9F, 5, 12, 7}, {28, 19, 5, 12, 8},         {28, 33, 5, 12, 9},
      {219, 4.9F, 3, 9, 6},  {219, 25, 3, 12, 11},       {319, 4.9F, 3, 9, 5},
      {319, 5, 3, 9, 7},     {319, 24.9F, 3, 12, 10},    {18, 9, 4, 5, 5},
      {18, 9, -9, 0, 0},     {18, kInfinity, 4, 12, 10}, {28, -kInfinity, 4, 12, 5},
  };
  for (const auto& c : kCases) {
    ESCClass control = Loaded(c.scheme, c.handicap, c.par, c.score);
    EXPECT_EQ(control.CalculateESC(), 18 * c.adjusted) << c.scheme << " " << c.handicap;
    EXPECT_EQ(control.HoleAdjScore(18), c.adjusted) << c.scheme << " " << c.handicap;
    EXPECT_EQ(control.Gross(1) + control.Gross(2), control.Gross(3));
    EXPECT_EQ(control.Gross(3), 18 * c.score);
  }
}

TEST(StrokeControl, RunningAllowanceIsUsedUp) {
  const struct {
    float handicap;
    int first_holes;  // of 18 that are three over, so many keep `over`, the others one less
    int over;
  } kCases[] = {{0, 18, 1}, {-4, 18, 1},   {0.5F, 18, 2}, {5, 5, 2},
                {9, 9, 2},  {9.5F, 18, 3}, {12.5F, 4, 3}, {18, 9, 3}};
  for (const auto& c : kCases) {
    ESCClass control = Loaded(119, c.handicap, 4, 7);
    EXPECT_EQ(control.CalculateESC(), 18 * (4 + c.over - 1) + c.first_holes) << c.handicap;
    EXPECT_EQ(control.HoleAdjScore(1), 4 + c.over);
  }
  ESCClass control = Loaded(119, 30, 4, 7);  // three over is within an allowance of four
  EXPECT_EQ(control.CalculateESC(), 18 * 7);
}

TEST(StrokeControl, MaximaByParAreHeldAndUnknownSchemesChangeNothing) {
  ESCClass control = Loaded(100, 0, 2, 9);
  for (int i = 1; i <= 4; ++i) control.SetCustomMax(i, i + 4);
  control.SetHolePar(2, 3);
  control.SetHolePar(10, 6);
  control.SetHoleScore(18, 0);
  EXPECT_EQ(control.CalculateESC(), 0 + 8 * 5 + 8 * 8);
  EXPECT_EQ(control.HoleAdjScore(1), 0);
  control.Setflag(7);
  control.SetHandicap(40);
  EXPECT_EQ(control.CalculateESC(), 104);
  EXPECT_EQ(ErrorOf([&] { control.SetHolePar(19, 4); }), 9);
  EXPECT_EQ(ErrorOf([&] { control.AdjGross(0); }), 9);
}

}  // namespace
}  // namespace golf
