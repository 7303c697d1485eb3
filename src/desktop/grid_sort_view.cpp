#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/results/grid_sort_screen.h"

namespace golf {
namespace {

constexpr int kListCharacters = 24;

wxChoice* MakeColumnList(ScreenPanel& panel, ComboBox& control) {
  wxChoice* choice = MakeChoice(panel.binding(), &panel, control, GridSort::HeadingOf);
  SetColumns(*choice, kListCharacters);
  return choice;
}

// Lays out a row for each key: its name, its list of columns, and its two sort orders.
wxSizer* Keys(ScreenPanel& panel, GridSort& screen) {
  auto* rows = new wxFlexGridSizer(4, CloseGap(panel), GroupGap(panel));
  rows->AddGrowableCol(1);
  const auto middle = wxSizerFlags().CentreVertical();
  rows->AddSpacer(0);
  rows->AddSpacer(0);
  wxStaticText* style = MakeLabel(panel.binding(), &panel, screen.SortLabel[3]);
  MakeBold(*style);
  rows->Add(style, middle);
  rows->AddSpacer(0);
  for (std::size_t i = 0; i < screen.SortList.size(); ++i) {
    rows->Add(MakeLabel(panel.binding(), &panel, screen.SortLabel[i]), middle);
    // The labels and the options of the keys repeat each other.
    const wxString key = ", key " + std::to_string(i + 1);
    rows->Add(Named(NameOf(screen.SortLabel[i]) + key, MakeColumnList(panel, screen.SortList[i])),
              wxSizerFlags().Expand().CentreVertical());
    long option_style = wxRB_GROUP;
    for (OptionButton& order : *screen.options[i]) {
      rows->Add(Named(WxText(order.caption()) + key,
                      MakeOption(panel.binding(), &panel, order, option_style)),
                middle);
      option_style = 0;
    }
  }
  return rows;
}

}  // namespace

void FillGridSort(ScreenPanel& panel, GridSort& screen) {
  const auto button = [&](Button& control) {
    return MakeButton(panel.binding(), panel.foot(), control);
  };
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(Keys(panel, screen), wxSizerFlags().Expand());
  AddToFoot(panel, ButtonRow({.affirmative = button(screen.SortOK),
                              .cancel = button(screen.SortCancel),
                              .aside = {button(screen.Help)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
