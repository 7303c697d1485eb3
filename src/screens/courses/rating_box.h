#pragma once

#include <optional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "stores/course/tee_rules.h"

namespace golf {

// Is a text box for a course rating from 0 to 99.9, with one or two decimals. The stored value is
// always the one shown. The text is selected when the box gets the focus.
class RatingBox : public TextBox {
 public:
  // `screen` must outlive the box.
  RatingBox(std::string name, Screen& screen, const ScreenContext& context);

  // Reads the text, limits the number to 0 to 99.9 and rounds it. Shows the result and returns it.
  float RatingValue();
  void SetRatingValue(double value);
  // Returns what RatingValue would return, but does not change the text.
  double EnteredRating() const;

  // Sets the number of decimals to 1 or 2. Any other number changes nothing.
  void SetDecimalPlaces(int places);

  // True if the rating is valid for 18 or 9 `holes` and for the `group`: 0 for men, 1 for ladies.
  // Otherwise shows the fault and moves the focus to the box.
  bool RatingValid(int holes, int group);

 private:
  double EnteredNumber() const;

  Screen& screen_;
  ScreenContext context_;
  std::string format_ = "0.0";
  float value_ = 0;
};

// Is a text box for a slope, a whole number up to 155. The text is selected when the box gets the
// focus.
class SlopeBox : public TextBox {
 public:
  SlopeBox(std::string name, Screen& screen, const ScreenContext& context);

  // Reads the text, rounds and limits the number, shows it and returns it.
  std::int16_t SlopeValue();
  void SetSlopeValue(double value);
  // Returns what SlopeValue would return, but does not change the text.
  int EnteredSlope() const;

  // True if the slope is from 55 to 155. Otherwise shows the fault and moves the focus to the box.
  bool SlopeValid();

 private:
  Screen& screen_;
  ScreenContext context_;
  std::int16_t value_ = 0;
};

// Shows a fault in a message box and beside the control. Moves the focus to the control if it is
// visible.
void ShowFault(Screen& screen, ScreenHost& host, Control& control, const TeeFault& fault);

}  // namespace golf
