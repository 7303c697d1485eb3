#pragma once

#include <array>

#include "forms/screen_host.h"

namespace golf {

// Is the part of the menu that tells a newcomer what the six transfers do. It is visible from the
// first start until the operator closes it. A host that remembers nothing never shows it by itself.
class FirstSteps {
 public:
  explicit FirstSteps(const ScreenContext& context);

  // Shows the steps unless the operator has closed them.
  void ShowUntilClosed();
  // Shows the steps, also at the next start.
  void Show();

  Frame StepsFrame{"StepsFrame"};
  Label StepsLabel{"StepsLabel", "First steps"};
  std::array<Label, 6> StepLabel{Label("StepLabel"), Label("StepLabel"), Label("StepLabel"),
                                 Label("StepLabel"), Label("StepLabel"), Label("StepLabel")};
  Label UndoLabel{"UndoLabel",
                  "\"Preview...\" shows what a transfer would change. The menu History undoes it."};
  Button CloseStepsButton{"CloseStepsButton", "C&lose the first steps"};

 private:
  void Close();

  UserProfile* user_;  // may be null
};

}  // namespace golf
