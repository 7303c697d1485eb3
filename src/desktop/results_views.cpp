#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/list_widget.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/results/results_screen.h"
#include "screens/results/team_results_screen.h"

namespace golf {
namespace {

constexpr int kStandingsSeen = 8;  // rows
constexpr int kCardSeen = 9;
constexpr int kPlayerCardSeen = 5;
constexpr int kStatisticsSeen = 2;
constexpr int kCharacters = 140;
constexpr int kListCharacters = 26;
constexpr int kFindCharacters = 16;

// Lays out choices in a row. Each follows its label.
class ChoiceRow {
 public:
  explicit ChoiceRow(ScreenPanel& panel)
      : panel_(panel), binding_(panel.binding()), row_(new wxBoxSizer(wxHORIZONTAL)) {}

  void Add(Label& label, ComboBox& list, int characters = 0) {
    AddWidget(MakeFieldLabel(binding_, &panel_, label), CloseGap(panel_));
    wxChoice* choice = NameAfter(binding_, label, MakeChoice(binding_, &panel_, list));
    if (characters > 0) SetColumns(*choice, characters);
    AddWidget(choice, GroupGap(panel_));
  }
  // Adds a list whose label is not a control.
  void Add(const wxString& label, ComboBox& list) {
    auto* text = MakeText(&panel_, label);
    binding_.ShowAlso([text, &list] { text->Show(list.IsShown()); });
    AddWidget(text, CloseGap(panel_));
    AddWidget(Named(label, MakeChoice(binding_, &panel_, list)), GroupGap(panel_));
  }
  void Add(Label& label, TextBox& text, int characters) {
    AddWidget(MakeFieldLabel(binding_, &panel_, label), CloseGap(panel_));
    wxTextCtrl* entry = NameAfter(binding_, label, MakeTextBox(binding_, &panel_, text));
    SetColumns(*entry, characters);
    AddWidget(entry, GroupGap(panel_));
  }
  void Add(Button& button) { AddWidget(MakeButton(binding_, &panel_, button), 0); }
  // Returns the row, which becomes a column on a narrow display.
  wxSizer* Folding() {
    panel_.folding_rows().push_back(row_);
    return row_;
  }

 private:
  void AddWidget(wxWindow* widget, int gap_after) {
    row_->Add(widget, wxSizerFlags().CentreVertical().Border(wxRIGHT, gap_after));
  }

  ScreenPanel& panel_;
  Binding& binding_;
  wxBoxSizer* row_;
};

wxSizer* TeamChoices(ScreenPanel& panel, TeamResults& screen) {
  Binding& binding = panel.binding();
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  const auto middle = wxSizerFlags().CentreVertical().Border(wxLEFT, GroupGap(panel));
  wxStaticText* tournament = MakeLabel(binding, &panel, screen.TournamentLabel);
  MakeBold(*tournament);
  row->Add(tournament, wxSizerFlags(1).CentreVertical());
  row->Add(MakeLabel(binding, &panel, screen.teams.LayoutLabel), middle);
  wxChoice* layouts = NameAfter(binding, screen.teams.LayoutLabel,
                                MakeChoice(binding, &panel, screen.teams.LayoutList));
  SetColumns(*layouts, kListCharacters);
  row->Add(layouts, middle);
  row->Add(MakeLabel(binding, &panel, screen.RoundLabel), middle);
  row->Add(NameAfter(binding, screen.RoundLabel, MakeChoice(binding, &panel, screen.RoundList)),
           middle);
  return row;
}

wxDataViewCtrl* MakeTable(ScreenPanel& panel, Grid& control, int rows_seen) {
  wxDataViewCtrl* list =
      MakeList(panel.binding(), &panel, control, SelectedRows::kSeveral, rows_seen);
  SetRoom(panel, *list, kCharacters, rows_seen);
  return list;
}

wxSizerFlags Below(const ScreenPanel& panel) {
  return wxSizerFlags().Expand().Border(wxTOP, CloseGap(panel));
}

// Adds the standings and the card below them.
void AddTables(wxSizer& content, ScreenPanel& panel, StandingsTables& tables, int card_seen) {
  Binding& binding = panel.binding();
  content.Add(MakeHeading(&panel, "Results"), Below(panel));
  content.Add(Named("Results", MakeTable(panel, tables.grid1, kStandingsSeen)),
              wxSizerFlags(Below(panel)).Proportion(kStandingsSeen));
  content.Add(MakeLabel(binding, &panel, tables.SortedLabel), Below(panel));
  content.Add(MakeLabel(binding, &panel, tables.CardLabel), Below(panel));
  content.Add(NameBy(binding, MakeTable(panel, tables.grid2, card_seen),
                     [&tables] { return "Score card: " + NameOf(tables.CardLabel); }),
              wxSizerFlags(Below(panel)).Proportion(card_seen));
}

wxSizer* ResultsChoices(ScreenPanel& panel, Results& screen) {
  ChoiceRow row(panel);
  row.Add(screen.TournamentLabel, screen.TournamentList, kListCharacters);
  row.Add(screen.RoundLabel, screen.RoundList);
  row.Add(screen.TiebreakLabel, screen.TiebreakList);
  row.Add(screen.ReadButton);
  return row.Folding();
}

// The choices of the other pages are hidden.
wxSizer* PageChoices(ScreenPanel& panel, Results& screen) {
  PlayerStandings& players = screen.players;
  ChoiceRow row(panel);
  row.Add(players.MeasureLabel, players.MeasureList);
  row.Add("of", players.SpanList);
  row.Add(players.FlightLabel, players.FlightList);
  row.Add(players.SexLabel, players.SexList);
  row.Add(players.SearchLabel, players.SearchText, kFindCharacters);
  row.Add(screen.teams.LayoutLabel, screen.teams.LayoutList, kListCharacters);
  return row.Folding();
}

// Lays out the numbers of holes, and the other statistics beside them.
wxSizer* Statistics(ScreenPanel& panel, PlayerStandings& players) {
  auto* row = new wxBoxSizer(wxHORIZONTAL);
  auto* numbers = new wxBoxSizer(wxVERTICAL);
  wxStaticText* heading = MakeHeading(&panel, "Numbers of holes");
  panel.binding().ShowAlso([heading, &players] { heading->Show(players.grid3.IsShown()); });
  numbers->Add(heading, wxSizerFlags().Border(wxBOTTOM, CloseGap(panel)));
  wxDataViewCtrl* list =
      MakeList(panel.binding(), &panel, players.grid3, SelectedRows::kSeveral, kStatisticsSeen);
  SetRoom(panel, *Named("Numbers of holes", list));
  numbers->Add(list);
  row->Add(numbers);
  row->Add(MakeLabel(panel.binding(), &panel, players.StatisticsLabel),
           wxSizerFlags(1).CentreVertical().Border(wxLEFT, GroupGap(panel)));
  panel.folding_rows().push_back(row);
  return row;
}

}  // namespace

void FillTeamResults(ScreenPanel& panel, TeamResults& screen) {
  Binding& binding = panel.binding();
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(TeamChoices(panel, screen), wxSizerFlags().Expand());
  AddTables(*content, panel, screen.tables, kCardSeen);
  AddToFoot(panel,
            ButtonRow({.cancel = button(screen.ExitButton),
                       .aside = {button(screen.tables.SortButton), button(screen.tables.CopyButton),
                                 button(screen.tables.SaveButton)}}));
  FinishWindow(panel, content);
}

void FillResults(ScreenPanel& panel, Results& screen) {
  Binding& binding = panel.binding();
  const auto button = [&](Button& control) { return MakeButton(binding, panel.foot(), control); };
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(ResultsChoices(panel, screen), wxSizerFlags().Expand());
  content->Add(MakeWarning(panel, screen.MessageLabel, LineWidth(panel, kCharacters)),
               Below(panel));
  // The pages share the tables, which are therefore below the tabs and not in the pages.
  content->Add(MakeTab(binding, &panel, screen.TabMain), Below(panel));
  content->Add(PageChoices(panel, screen), Below(panel));
  AddTables(*content, panel, screen.tables, kPlayerCardSeen);
  content->Add(Statistics(panel, screen.players), Below(panel));
  AddToFoot(panel,
            ButtonRow({.cancel = button(screen.ExitButton),
                       .aside = {button(screen.WebPageButton), button(screen.PrintButton),
                                 button(screen.tables.SortButton), button(screen.tables.CopyButton),
                                 button(screen.tables.SaveButton)}}));
  FinishWindow(panel, content);
}

}  // namespace golf
