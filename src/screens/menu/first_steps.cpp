#include "screens/menu/first_steps.h"

#include <iterator>

namespace golf {
namespace {

constexpr const char* kSetting = "FirstSteps";
constexpr const char* kClosed = "closed";

// Describes the transfers in the order in which a club needs them during a season.
constexpr const char* kSteps[] = {
    "1. COURSES to QB copies Kelvane's courses to Quenby. Begin with it.",
    "2. GOLFERS to QB copies a roster of Kelvane to Quenby, before a tournament.",
    "3. SCORES to KV posts the scores of a tournament to Kelvane, after each round.",
    "4. GOLFERS to ZD copies a roster of Kelvane to a league of Zandel.",
    "5. GOLFERS to QB (League) copies the golfers of a league to Quenby.",
    "6. SCORES to KV (League) posts the scores of a league to Kelvane.",
};

}  // namespace

FirstSteps::FirstSteps(const ScreenContext& context) : user_(context.host.User()) {
  static_assert(std::size(kSteps) == std::tuple_size_v<decltype(StepLabel)>);
  for (std::size_t i = 0; i < StepLabel.size(); ++i) {
    StepLabel[i].SetCaption(kSteps[i]);
    StepLabel[i].SetParent(StepsFrame);
  }
  for (Control* control :
       std::initializer_list<Control*>{&StepsLabel, &UndoLabel, &CloseStepsButton}) {
    control->SetParent(StepsFrame);
  }
  StepsFrame.SetVisible(false);
  CloseStepsButton.on_click = [this] { Close(); };
}

void FirstSteps::ShowUntilClosed() {
  StepsFrame.SetVisible(user_ != nullptr && user_->Setting(kSetting) != kClosed);
}

void FirstSteps::Show() {
  if (user_ != nullptr) user_->KeepSetting(kSetting, "");
  StepsFrame.SetVisible(true);
}

void FirstSteps::Close() {
  if (user_ != nullptr) user_->KeepSetting(kSetting, kClosed);
  StepsFrame.SetVisible(false);
}

}  // namespace golf
