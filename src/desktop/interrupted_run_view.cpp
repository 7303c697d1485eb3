#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/history/interrupted_run.h"

namespace golf {
namespace {

constexpr int kWidth = 560;  // of the texts, in device-independent pixels

}  // namespace

void FillInterruptedRun(ScreenPanel& panel, InterruptedRun& screen) {
  Binding& binding = panel.binding();
  const int width = panel.FromDIP(kWidth);
  wxStaticText* text = MakeWrappedLabel(binding, &panel, screen.TextLabel, width);
  MakeBold(*text);
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(text, wxSizerFlags().Expand());
  content->Add(MakeWrappedLabel(binding, &panel, screen.ChoiceLabel, width),
               wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  auto* buttons = new wxBoxSizer(wxHORIZONTAL);
  for (Button* control : {&screen.FinishButton, &screen.PutBackButton, &screen.LeaveAsIsButton}) {
    buttons->Add(MakeButton(binding, &panel, *control),
                 wxSizerFlags().Border(wxRIGHT, CloseGap(panel)));
  }
  buttons->Add(ButtonRow({.cancel = MakeButton(binding, &panel, screen.LaterButton)}),
               wxSizerFlags(1));
  content->Add(buttons, wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel)));
  FinishWindow(panel, content);
}

}  // namespace golf
