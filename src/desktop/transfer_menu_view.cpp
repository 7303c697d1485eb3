#include <wx/display.h>

#include <utility>

#include "desktop/accessible.h"
#include "desktop/folder_drop.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/menu/transfer_menu.h"

namespace golf {
namespace {

constexpr int kNoticeCharacters = 90;
constexpr int kStepCharacters = 40;

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
    const auto below = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_));
    FolderChoice& folder = screen_.folder;
    SecondCopy& copy = screen_.copy;
    for (wxPanel* notice : {Notice(folder.NoticeFrame, folder.NoticeLabel, folder.ReasonLabel,
                                   folder.ChooseFolderButton, folder.DemonstrationButton),
                            Notice(copy.PlacesFrame, copy.PlacesLabel, copy.PlacesText,
                                   copy.UseFolderButton, copy.UseCopiesButton)}) {
      content->Add(notice, wxSizerFlags().Expand().Border(wxBOTTOM, GroupGap(panel_)));
    }
    auto* middle = new wxBoxSizer(wxHORIZONTAL);
    middle->Add(FilledTab(), wxSizerFlags(1).Expand());
    middle->Add(Steps(), wxSizerFlags().Expand().Border(wxLEFT, GroupGap(panel_)));
    panel_.folding_rows().push_back(middle);
    content->Add(middle, wxSizerFlags(1).Expand());
    content->Add(Folder(), below);
    AddToFoot(panel_, ButtonRow({.cancel = NewButton(panel_.foot(), screen_.ExitButton),
                                 .aside = {NewButton(panel_.foot(), screen_.PriorTransfer)}}));
    return content;
  }

 private:
  // Lays out a notice above the buttons of the transfers.
  wxPanel* Notice(Frame& frame, Label& heading, Label& text, Button& first, Button& second) {
    wxPanel* notice = MakeFrame(panel_.binding(), &panel_, frame);
    const auto below = wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel_));
    wxStaticText* title = MakeLabel(panel_.binding(), notice, heading);
    MakeBold(*title);
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->Add(NewButton(notice, first));
    buttons->Add(NewButton(notice, second), wxSizerFlags().Border(wxLEFT, CloseGap(panel_)));
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(title);
    column->Add(
        MakeWrappedLabel(panel_.binding(), notice, text, LineWidth(panel_, kNoticeCharacters)),
        below);
    column->Add(buttons, below);
    notice->SetSizer(column);
    return notice;
  }

  wxPanel* Steps() {
    FirstSteps& steps = screen_.steps;
    wxPanel* frame = MakeFrame(panel_.binding(), &panel_, steps.StepsFrame);
    MakeAccessibleGroup(*frame, NameOf(steps.StepsLabel));
    wxStaticText* heading = MakeLabel(panel_.binding(), frame, steps.StepsLabel);
    MakeBold(*heading);
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(heading);
    const auto add = [&](Label& line) {
      column->Add(
          MakeWrappedLabel(panel_.binding(), frame, line, LineWidth(panel_, kStepCharacters)),
          wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel_)));
    };
    for (Label& step : steps.StepLabel) add(step);
    add(steps.UndoLabel);
    column->AddStretchSpacer();
    column->Add(NewButton(frame, steps.CloseStepsButton),
                wxSizerFlags().Border(wxTOP, CloseGap(panel_)));
    frame->SetSizer(column);
    panel_.binding().ShowAlso([&steps, &window = panel_.window(), last = false]() mutable {
      const bool closed = std::exchange(last, steps.StepsFrame.visible()) && !last;
      if (closed) window.CallAfter([&window] { window.SetClientSize(window.GetMinClientSize()); });
    });
    return frame;
  }

  // Lays out the folder of the install and the buttons that open another one.
  wxSizer* Folder() {
    FolderChoice& folder = screen_.folder;
    const auto middle = wxSizerFlags().CentreVertical();
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(MakeLabel(panel_.binding(), &panel_, folder.FolderLabel), middle);
    row->Add(MakePathLabel(panel_.binding(), &panel_, folder.FolderText, PathWidth(panel_)),
             wxSizerFlags(1).CentreVertical().Border(wxLEFT, CloseGap(panel_)));
    for (Button* button : {&folder.ChangeButton, &folder.RecentButton, &folder.ShortcutButton}) {
      row->Add(NewButton(&panel_, *button), wxSizerFlags(middle).Border(wxLEFT, CloseGap(panel_)));
    }
    return row;
  }

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
  AcceptFolders(panel, [&](const std::string& path) {
    if (panel.binding().host().Top() != &screen) return;  // another window is in front
    Button& button = screen.folder.ChangeButton;
    panel.binding().OperateSoon(button, [&screen, path] { screen.folder.Open(path); });
  });
  FinishWindow(panel, MenuFiller(panel, screen).Content());
  panel.window().Move(wxDisplay(&panel.window()).GetClientArea().GetTopLeft());
}

}  // namespace golf
