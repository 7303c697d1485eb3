#pragma once

#include <optional>
#include <string>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "stores/course/tee_rules.h"

namespace golf {

// A box for a course rating from 0 to 99.9, with one or two decimals. It stores the value that it
// shows. When the operator enters the box, its text is selected.
class RatingBox : public TextBox {
 public:
  // `screen` must outlive the box.
  RatingBox(std::string name, Screen& screen, const ScreenContext& context);

  // Reads the text, limits and rounds the number, and shows and returns it.
  float RatingValue();
  void SetRatingValue(double value);

  // Sets the number of decimals to 1 or 2. Any other number changes nothing.
  void SetDecimalPlaces(int places);

  // Checks the rating for 18 or 9 `holes` and for the `group` 0 men or 1 ladies. If it is not
  // valid, shows the fault and moves the focus to the box.
  bool RatingValid(int holes, int group);

 private:
  Screen& screen_;
  ScreenContext context_;
  std::string format_ = "0.0";
  float value_ = 0;
};

// A box for a slope: a whole number up to 155. When the operator enters the box, its text is
// selected.
class SlopeBox : public TextBox {
 public:
  SlopeBox(std::string name, Screen& screen, const ScreenContext& context);

  // Reads the text, rounds and limits the number, and shows and returns it.
  std::int16_t SlopeValue();
  void SetSlopeValue(double value);

  // Checks that the slope is from 55 to 155. If it is not, shows the fault and moves the focus to
  // the box.
  bool SlopeValid();

 private:
  Screen& screen_;
  ScreenContext context_;
  std::int16_t value_ = 0;
};

// Shows a fault of an entry in a box and beside the control, and moves the focus to the control if
// it is visible.
void ShowFault(Screen& screen, ScreenHost& host, Control& control, const TeeFault& fault);

}  // namespace golf
