#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/history/interrupted_run.h"

namespace golf {
namespace {

constexpr int kCharacters = 70;  // of a line of the texts

}  // namespace

void FillInterruptedRun(ScreenPanel& panel, InterruptedRun& screen) {
  Binding& binding = panel.binding();
  const int width = LineWidth(panel, kCharacters);
  wxStaticText* text = MakeWrappedLabel(binding, &panel, screen.TextLabel, width);
  MakeBold(*text);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(text, wxSizerFlags().Expand());
  content->Add(MakeWrappedLabel(binding, &panel, screen.ChoiceLabel, width),
               wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  AddToFoot(panel, ButtonRow({.cancel = button(screen.LaterButton),
                              .aside = {button(screen.FinishButton), button(screen.PutBackButton),
                                        button(screen.LeaveAsIsButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
