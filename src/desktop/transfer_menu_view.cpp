#include <wx/display.h>

#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/transfer_menu.h"

namespace golf {
namespace {

// Describes the tooltip of a button.
struct ButtonHelp {
  Button TransferMenu::*button;
  const char* text;
};

constexpr ButtonHelp kHelp[] = {
    {&TransferMenu::KVCoursestoQBButton,
     "Copies the whole Kelvane course library into Quenby's course library."},
    {&TransferMenu::KVtoQBButton, "Copies golfers of a Kelvane roster into a Quenby roster."},
    {&TransferMenu::KVtoZDButton, "Copies golfers of a Kelvane roster into a Zandel league."},
    {&TransferMenu::QBtoKVButton,
     "Posts the scores of a Quenby tournament to the golfers of a Kelvane roster."},
    {&TransferMenu::ZDtoQBButton, "Copies golfers of a Zandel league into a Quenby roster."},
    {&TransferMenu::ZDtoKVButton,
     "Posts the scores of a Zandel league to the golfers of a Kelvane roster."},
    {&TransferMenu::PriorTransfer, "Starts the transfer program for earlier versions."},
    {&TransferMenu::ExitButton, "Leaves, and goes back to the program that you came from."},
};

void SetHelp(const TransferMenu& screen, const Button& control, wxButton& widget) {
  for (const ButtonHelp& help : kHelp) {
    if (&(screen.*help.button) == &control) widget.SetToolTip(help.text);
  }
}

class MenuFiller {
 public:
  MenuFiller(ScreenPanel& panel, TransferMenu& screen) : panel_(panel), screen_(screen) {}

  wxSizer* Content() {
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(FilledTab(), wxSizerFlags(1).Expand());
    AddToFoot(panel_, ButtonRow({.cancel = NewButton(panel_.foot(), screen_.ExitButton),
                                 .aside = {NewButton(panel_.foot(), screen_.PriorTransfer)}}));
    return content;
  }

 private:
  wxNotebook* FilledTab() {
    wxNotebook* tab = MakeTab(panel_.binding(), &panel_, screen_.SSTab1);
    page_ = tab->GetPage(0);
    auto* columns = new wxFlexGridSizer(3, 0, CloseGap(panel_));
    for (const std::size_t column : {0u, 1u, 2u}) columns->AddGrowableCol(column);
    const auto add = [&](Label& heading, std::initializer_list<Button*> buttons) {
      columns->Add(HeadedColumn(heading, buttons), wxSizerFlags().Expand());
    };
    add(screen_.Label1[0],
        {&screen_.KVCoursestoQBButton, &screen_.KVtoQBButton, &screen_.KVtoZDButton});
    add(screen_.Label1[1], {&screen_.QBtoKVButton});
    add(screen_.Label1[2], {&screen_.ZDtoQBButton, &screen_.ZDtoKVButton});
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(columns, wxSizerFlags().Expand().Border(wxALL, EdgeGap(panel_)));
    margin->AddStretchSpacer();
    margin->Add(Legend(), wxSizerFlags().Border(wxALL & ~wxTOP, EdgeGap(panel_)));
    page_->SetSizer(margin);
    return tab;
  }

  wxSizer* HeadedColumn(Label& heading, std::initializer_list<Button*> buttons) {
    wxStaticText* text = MakeLabel(panel_.binding(), page_, heading);
    MakeBold(*text);
    wxSizer* column = Column({text});
    for (Button* button : buttons) {
      // Buttons of different columns have the same caption.
      const wxString caption = wxControl::RemoveMnemonics(WxText(button->caption())).Trim();
      column->Add(Named(caption + ", " + NameOf(heading), NewButton(page_, *button)),
                  wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel_)));
    }
    return column;
  }

  wxWindow* Legend() {
    return MakeText(page_,
                    "KV: Kelvane (handicaps)   QB: Quenby (tournaments)   ZD: Zandel (leagues)");
  }

  wxButton* NewButton(wxWindow* parent, Button& control) {
    wxButton* button = MakeButton(panel_.binding(), parent, control);
    SetHelp(screen_, control, *button);
    return button;
  }

  ScreenPanel& panel_;
  TransferMenu& screen_;
  wxWindow* page_ = nullptr;
};

}  // namespace

void FillTransferMenu(ScreenPanel& panel, TransferMenu& screen) {
  FinishWindow(panel, MenuFiller(panel, screen).Content());
  panel.window().Move(wxDisplay(&panel.window()).GetClientArea().GetTopLeft());
}

}  // namespace golf
