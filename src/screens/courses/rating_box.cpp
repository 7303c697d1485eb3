#include "screens/courses/rating_box.h"

#include <algorithm>
#include <utility>

#include "core/number_text.h"

namespace golf {
namespace {

constexpr std::size_t kRatingSelected = 5;
constexpr char kBackspace = 8;

bool IsDigitKey(char key) { return (key >= '0' && key <= '9') || key == kBackspace; }

}  // namespace

void ShowFault(Screen& screen, ScreenHost& host, Control& control, const TeeFault& fault) {
  control.SetNote(fault.text);
  host.Ask(Box{.title = fault.title, .text = fault.text});
  if (control.IsShown()) screen.MoveFocus(&control);
}

RatingBox::RatingBox(std::string name, Screen& screen, const ScreenContext& context)
    : TextBox(std::move(name)), screen_(screen), context_(context) {
  key_filter = [this](char key) {
    const bool first_point = key == '.' && text().find('.') == std::string::npos;
    return IsDigitKey(key) || first_point ? key : '\0';
  };
  on_enter = [this] { SelectFirst(kRatingSelected); };
  on_leave = [this] { RatingValue(); };
}

float RatingBox::RatingValue() {
  SetRatingValue(EnteredNumber());
  return value_;
}

double RatingBox::EnteredNumber() const {
  std::string entered = text();
  if (context_.state.decimal_comma) std::replace(entered.begin(), entered.end(), ',', '.');
  return LeadingNumber(entered);
}

double RatingBox::EnteredRating() const {
  return LeadingNumber(RatingText(EnteredNumber(), format_));
}

void RatingBox::SetRatingValue(double value) {
  SetText(RatingText(value, format_));
  value_ = CheckedSingle(LeadingNumber(text()));
}

void RatingBox::SetDecimalPlaces(int places) {
  if (places == 1 || places == 2) format_ = places == 1 ? "0.0" : "0.00";
}

bool RatingBox::RatingValid(int holes, int group) {
  const auto fault = RatingFault(RatingValue(), holes, group);
  if (fault) ShowFault(screen_, context_.host, *this, *fault);
  return !fault;
}

SlopeBox::SlopeBox(std::string name, Screen& screen, const ScreenContext& context)
    : TextBox(std::move(name)), screen_(screen), context_(context) {
  key_filter = [](char key) { return IsDigitKey(key) ? key : '\0'; };
  on_enter = [this] { SelectFirst(text().size()); };
  on_leave = [this] { SlopeValue(); };
}

int SlopeBox::EnteredSlope() const { return SlopeShown(LeadingNumber(text())); }

std::int16_t SlopeBox::SlopeValue() {
  SetSlopeValue(LeadingNumber(text()));
  return value_;
}

void SlopeBox::SetSlopeValue(double value) {
  value_ = CheckedInt16(SlopeShown(value));
  SetText(std::to_string(value_));
}

bool SlopeBox::SlopeValid() {
  const auto fault = SlopeFault(SlopeValue());
  if (fault) ShowFault(screen_, context_.host, *this, *fault);
  return !fault;
}

}  // namespace golf
