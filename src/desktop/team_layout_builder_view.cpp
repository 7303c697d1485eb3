#include "desktop/accessible.h"
#include "desktop/cell_choices.h"
#include "desktop/grid_widget.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/results/team_layout_builder.h"

namespace golf {
namespace {

constexpr int kRowsSeen = 11;
constexpr int kGridCharacters = 120;

class BuilderFiller {
 public:
  BuilderFiller(ScreenPanel& panel, XReportsCustomTeamResults& screen)
      : panel_(panel), binding_(panel.binding()), screen_(screen) {}

  wxSizer* Content() {
    wxNotebook* book = MakeTab(binding_, &panel_, screen_.TabMain);
    FillPage(book->GetPage(0), Scores(book->GetPage(0)));
    FillPage(book->GetPage(1), HeadersAndFonts(book->GetPage(1)));
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(book, wxSizerFlags(1).Expand());
    AddToFoot(panel_, ButtonRow({.affirmative = NewButton(panel_.foot(), screen_.SaveButton),
                                 .cancel = NewButton(panel_.foot(), screen_.CancelButton),
                                 .aside = {NewButton(panel_.foot(), screen_.Help)}}));
    return content;
  }

 private:
  wxSizerFlags Below() const { return wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel_)); }
  wxButton* NewButton(wxWindow* parent, Button& control) {
    return MakeButton(binding_, parent, control);
  }

  void FillPage(wxWindow* page, wxSizer* content) {
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, EdgeGap(panel_)));
    page->SetSizer(margin);
  }

  wxSizer* Scores(wxWindow* page) {
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(Names(page), wxSizerFlags().Expand());
    auto* top = new wxBoxSizer(wxHORIZONTAL);
    top->Add(Numbers(page), wxSizerFlags(1).Border(wxRIGHT, 2 * GroupGap(panel_)));
    top->Add(Selection(page));
    panel_.folding_rows().push_back(top);
    content->Add(top, wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_)));
    content->Add(MakeLabel(binding_, page, screen_.CopyLabel),
                 wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_)));
    wxGrid* grid = MakeGrid(binding_, page, screen_.grid1, kRowsSeen);
    SetAccessibleName(*grid, "Scores to use on each hole");
    SetRoom(panel_, *grid, kGridCharacters, kRowsSeen);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(grid, wxSizerFlags(1).Expand().Border(wxRIGHT, GroupGap(panel_)));
    row->Add(MakeCellChoices(binding_, page, screen_.grid1));
    content->Add(row, wxSizerFlags(1).Expand().Border(wxTOP, CloseGap(panel_)));
    auto* buttons = new wxBoxSizer(wxHORIZONTAL);
    for (Button* button : {&screen_.SampleDataGenerate, &screen_.CalculateButton}) {
      buttons->Add(NewButton(page, *button), wxSizerFlags().Border(wxRIGHT, CloseGap(panel_)));
    }
    content->Add(buttons, Below());
    return content;
  }

  wxSizer* Names(wxWindow* page) {
    auto* rows = new wxFlexGridSizer(2, CloseGap(panel_), GroupGap(panel_));
    rows->AddGrowableCol(1);
    const auto add = [&](Label& label, TextBox& box) {
      rows->Add(MakeLabel(binding_, page, label), wxSizerFlags().CentreVertical());
      rows->Add(NameAfter(binding_, label, MakeTextBox(binding_, page, box)),
                wxSizerFlags().Expand());
    };
    add(screen_.NameLabel, screen_.ReportName);
    add(screen_.DescriptionLabel, screen_.ReportDescription);
    return rows;
  }

  wxSizer* Numbers(wxWindow* page) {
    auto* rows = new wxFlexGridSizer(2, CloseGap(panel_), GroupGap(panel_));
    const auto add = [&](Label& label, ComboBox& list) {
      rows->Add(MakeLabel(binding_, page, label), wxSizerFlags().CentreVertical());
      rows->Add(NameAfter(binding_, label, MakeChoice(binding_, page, list)),
                wxSizerFlags().Expand());
    };
    add(screen_.HoleNumberLabel, screen_.HoleNumberUsedList);
    add(screen_.PlayersLabel, screen_.PlayerPerTeamList);
    return rows;
  }

  // Creates a frame with its caption above its contents. Returns the sizer for the contents in
  // `column`.
  wxPanel* NewFrame(wxWindow* page, Frame& control, wxSizer*& column) {
    wxPanel* frame = MakeFrame(binding_, page, control);
    column = new wxBoxSizer(wxVERTICAL);
    column->Add(MakeHeading(frame, WxText(control.caption())), wxSizerFlags().Expand());
    frame->SetSizer(column);
    return frame;
  }

  wxPanel* Selection(wxWindow* page) {
    wxSizer* column = nullptr;
    wxPanel* frame = NewFrame(page, screen_.SelectionFrame, column);
    column->Add(MakeOption(binding_, frame, screen_.BallSelectionOpt[0], wxRB_GROUP), Below());
    column->Add(MakeOption(binding_, frame, screen_.BallSelectionOpt[1]), Below());
    column->Add(MakeText(frame, "Order of the selection"), Below());
    column->Add(
        Named("Order of the selection", MakeChoice(binding_, frame, screen_.BallSelectionStyle)),
        Below());
    return frame;
  }

  wxSizer* HeadersAndFonts(wxWindow* page) {
    auto* content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(Headers(page), wxSizerFlags(1).Border(wxRIGHT, 2 * GroupGap(panel_)));
    content->Add(Fonts(page), wxSizerFlags(1));
    panel_.folding_rows().push_back(content);
    return content;
  }

  wxPanel* Headers(wxWindow* page) {
    wxSizer* column = nullptr;
    wxPanel* frame = NewFrame(page, screen_.HeaderFrame, column);
    for (std::size_t i = 0; i < screen_.HeaderText.size(); ++i) {
      const wxString name = "Line " + std::to_string(i + 1);
      column->Add(MakeText(frame, name), Below());
      column->Add(Named(name, MakeTextCombo(binding_, frame, screen_.HeaderText[i])), Below());
    }
    column->Add(MakeLabel(binding_, frame, screen_.NumberLabel),
                wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_)));
    column->Add(NameAfter(binding_, screen_.NumberLabel,
                          MakeTextBox(binding_, frame, screen_.ReportNumber)),
                Below());
    for (CheckBox& header : screen_.Header) {
      column->Add(MakeCheckBox(binding_, frame, header), Below());
    }
    return frame;
  }

  wxPanel* Fonts(wxWindow* page) {
    wxSizer* column = nullptr;
    wxPanel* frame = NewFrame(page, screen_.FontFrame, column);
    auto* rows = new wxFlexGridSizer(2, CloseGap(panel_), GroupGap(panel_));
    rows->AddGrowableCol(1);
    for (std::size_t i = 0; i < screen_.FontButton.size(); ++i) {
      rows->Add(NewButton(frame, screen_.FontButton[i]), wxSizerFlags().Expand());
      rows->Add(MakeLabel(binding_, frame, screen_.FontLabel[i]),
                wxSizerFlags().Expand().CentreVertical());
    }
    column->Add(rows, Below());
    column->Add(MakeCheckBox(binding_, frame, screen_.DisplayHGridLines),
                wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_)));
    column->Add(MakeCheckBox(binding_, frame, screen_.DisplayVGridLines), Below());
    return frame;
  }

  ScreenPanel& panel_;
  Binding& binding_;
  XReportsCustomTeamResults& screen_;
};

}  // namespace

void FillTeamLayoutBuilder(ScreenPanel& panel, XReportsCustomTeamResults& screen) {
  FinishWindow(panel, BuilderFiller(panel, screen).Content());
}

}  // namespace golf
