#pragma once

#include <optional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "stores/course/tee_rules.h"

namespace golf {

// Takes in a course rating, 0 to 99.9, with one decimal or two. What is stored is what is shown.
// All of its text is selected when the operator comes to it.
class RatingBox : public TextBox {
 public:
  // On this screen, which must live as long as the box.
  RatingBox(std::string name, Screen& screen, const ScreenContext& context);

  // Reads the text, brings it into its limits and shows it.
  float RatingValue();
  void SetRatingValue(double value);

  // 1 or 2; any other number changes nothing.
  void SetDecimalPlaces(int places);

  // For 18 holes or 9, and for the men or the ladies, 0 or 1. Where the rating is not valid the
  // operator is told, and the box takes the focus.
  bool RatingValid(int holes, int group);

 private:
  Screen& screen_;
  ScreenContext context_;
  std::string format_ = "0.0";
  float value_ = 0;
};

// Takes in a slope: a whole number up to 155. Is selected as a RatingBox is.
class SlopeBox : public TextBox {
 public:
  SlopeBox(std::string name, Screen& screen, const ScreenContext& context);

  // Reads the text, rounds and limits it and shows it.
  std::int16_t SlopeValue();
  void SetSlopeValue(double value);

  // From 55 to 155. Where it is not the operator is told, and the box takes the focus.
  bool SlopeValid();

 private:
  Screen& screen_;
  ScreenContext context_;
  std::int16_t value_ = 0;
};

// Tells a fault of an entry: in a box, and beside the control, which takes the focus if it is
// seen.
void ShowFault(Screen& screen, ScreenHost& host, Control& control, const TeeFault& fault);

}  // namespace golf
