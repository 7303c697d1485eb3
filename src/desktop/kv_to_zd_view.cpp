#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/league_panel.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/transfers/kv_to_zd.h"

namespace golf {
namespace {

constexpr int kPercentDigits = 5;

// Lays out a choice: its heading, what was chosen, and the button that opens the list.
wxSizer* Choice(Binding& binding, wxWindow* parent, Label& heading, Label& chosen, Button& finder,
                Shown shown) {
  wxStaticText* title = MakeLabel(binding, parent, heading);
  MakeBold(*title);
  return Column(
      {title, MakeLabel(binding, parent, chosen, shown), MakeButton(binding, parent, finder)});
}

wxPanel* MakeHandicaps(Binding& binding, wxWindow* frame, KVtoZD& screen) {
  auto* parent = new wxPanel(frame);
  MakeAccessibleGroup(*parent, NameOf(screen.Label1[4]));
  const int gap = CloseGap(*parent);
  auto* types = new wxFlexGridSizer(2, gap, gap);
  const auto middle = wxSizerFlags().CentreVertical();
  const auto make_type = [&](std::size_t type, const wxString& note, long style) {
    OptionButton& option = screen.HandicapType[type];
    const wxString caption = WxText(option.caption()).Trim(false);
    return Named(caption + note, MakeOption(binding, parent, option, style));
  };
  types->Add(make_type(0, " " + NameOf(screen.Label1[7]), wxRB_GROUP), middle);
  types->Add(MakeLabel(binding, parent, screen.Label1[7]), middle);
  types->Add(make_type(1, "", 0), middle);

  auto* percent = new wxBoxSizer(wxHORIZONTAL);
  percent->Add(MakeLabel(binding, parent, screen.Label1[5]), middle);
  wxTextCtrl* box = Named(NameOf(screen.Label1[5]) + " " + NameOf(screen.Label1[6]),
                          MakeTextBox(binding, parent, screen.HandicapPrct));
  SetColumns(*box, kPercentDigits);
  percent->Add(box, wxSizerFlags().CentreVertical().Border(wxLEFT | wxRIGHT, gap));
  percent->Add(MakeLabel(binding, parent, screen.Label1[6]), middle);

  wxStaticText* title = MakeLabel(binding, parent, screen.Label1[4]);
  MakeBold(*title);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(title, wxSizerFlags().Expand());
  column->Add(types, wxSizerFlags().Border(wxTOP, gap));
  column->Add(percent, wxSizerFlags().Border(wxTOP, gap));
  parent->SetSizer(column);
  return parent;
}

wxPanel* MakeMain(ScreenPanel& panel, KVtoZD& screen) {
  Binding& binding = panel.binding();
  wxPanel* frame = MakeFrame(binding, &panel, screen.Frame1);
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeLabel(binding, frame, screen.Label1[0]), wxSizerFlags().CentreHorizontal());
  content->Add(SideBySide(panel, {Choice(binding, frame, screen.Label1[1], screen.SourcePath,
                                         screen.FindKVMButton, nullptr),
                                  Choice(binding, frame, screen.Label1[2], screen.DestLabel,
                                         screen.FindZDButton, LeaguePicker::HeadingOf)}),
               group);
  content->Add(MakeHandicaps(binding, frame, screen), group);
  AddRun(*content, panel, frame,
         {.heading = screen.Label1[3],
          .log = screen.Message,
          .working = screen.Working,
          .count = &screen.WorkingCount,
          .transfer = screen.TransferButton,
          .preview = screen.PreviewButton,
          .leave = screen.CancelButton});
  frame->SetSizer(content);
  return frame;
}

}  // namespace

void FillKVtoZD(ScreenPanel& panel, KVtoZD& screen) {
  FillWithLeagues(panel, MakeMain(panel, screen), screen.picker);
}

}  // namespace golf
