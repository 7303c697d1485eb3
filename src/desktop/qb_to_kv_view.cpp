#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "screens/transfers/qb_to_kv.h"

namespace golf {
namespace {

// These are in characters.
constexpr int kTournamentCharacters = 44;
constexpr int kRoundCharacters = 12;
constexpr int kCourseCharacters = 24;
constexpr int kTeeCharacters = 8;
constexpr int kPartnerCharacters = 14;
constexpr int kTransferCharacters = 22;  // for the longest caption
constexpr int kLogCharacters = 60;
constexpr int kNoteCharacters = 36;

constexpr int kListLines = 6;
constexpr int kLogLines = 7;

// Lays out a list below its heading. Both keep their space while the list is hidden.
wxSizer* HeadedList(ScreenPanel& panel, const wxString& heading, ListBox& control, int characters,
                    Shown shown) {
  wxStaticText* title = MakeHeading(&panel, heading);
  panel.binding().ShowAlso([title, &control] { title->Show(control.IsShown()); });
  wxListBox* list = Named(heading, MakeListBox(panel.binding(), &panel, control, shown));
  SetRoom(panel, *list, characters, kListLines);
  auto* column = new wxBoxSizer(wxVERTICAL);
  column->Add(title, wxSizerFlags().ReserveSpaceEvenIfHidden());
  column->Add(list,
              wxSizerFlags(1).Expand().ReserveSpaceEvenIfHidden().Border(wxTOP, CloseGap(panel)));
  return column;
}

// Lays out the tournaments and the rounds.
wxSizer* Source(ScreenPanel& panel, QBtoKV& screen) {
  auto* lists = new wxBoxSizer(wxHORIZONTAL);
  lists->Add(HeadedList(panel, "Tournament", screen.TournamentList, kTournamentCharacters,
                        QBtoKV::TournamentHeading),
             wxSizerFlags(3).Expand());
  lists->Add(HeadedList(panel, "Round", screen.RoundList, kRoundCharacters, nullptr),
             wxSizerFlags(1).Expand().Border(wxLEFT, CloseGap(panel)));
  return lists;
}

// Lays out the source of the scores beside their destination.
wxSizer* Ends(ScreenPanel& panel, QBtoKV& screen) {
  auto* ends = new wxFlexGridSizer(2, 0, GroupGap(panel));
  ends->AddGrowableCol(0, 3);
  ends->AddGrowableCol(1, 2);
  ends->Add(Source(panel, screen), wxSizerFlags().Expand());
  ends->Add(
      Column({MakeHeading(&panel, "Handicap roster"),
              Named("Handicap roster", MakeTextBox(panel.binding(), &panel, screen.HandicapRoster)),
              MakeButton(panel.binding(), &panel, screen.DestButton),
              MakeNote(
                  panel.binding(), &panel, "HandicapRosterNote",
                  [&screen] { return screen.HandicapRoster.note(); },
                  TextWidth(panel, kNoteCharacters))}),
      wxSizerFlags().Expand());
  return ends;
}

wxControl* WithRoom(ScreenPanel& panel, wxControl* choice, int characters) {
  SetColumns(*choice, characters);
  SetRoom(panel, *choice);
  return choice;
}

// Lays out Quenby's course and the corresponding course of Kelvane.
wxSizer* Courses(ScreenPanel& panel, QBtoKV& screen) {
  Binding& binding = panel.binding();
  wxStaticText* partner = MakeLabel(binding, &panel, screen.Label1[1]);
  MakeBold(*partner);
  auto* rows = new wxFlexGridSizer(2, CloseGap(panel), GroupGap(panel));
  rows->AddGrowableCol(0, 1);
  rows->AddGrowableCol(1, 1);
  const auto wide = wxSizerFlags().Expand().CentreVertical();
  rows->Add(MakeHeading(&panel, "Course of the round in Quenby"));
  rows->Add(partner);
  rows->Add(MakeLabel(binding, &panel, screen.QBCourse), wide);
  wxControl* courses =
      NameAfter(binding, screen.Label1[1],
                MakeLongChoice(binding, &panel, screen.CourseCombo, QBtoKV::CourseHeading));
  rows->Add(WithRoom(panel, courses, kCourseCharacters), wide);
  return rows;
}

// Lays out the tees of one sex and the corresponding tees of Kelvane, each in a row. Hidden rows
// leave no gap.
wxSizer* Tees(ScreenPanel& panel, QBtoKV::Labels& sexes, QBtoKV::Labels& tees,
              QBtoKV::Combos& partners) {
  Binding& binding = panel.binding();
  auto* rows = new wxFlexGridSizer(3, CloseGap(panel), CloseGap(panel));
  rows->AddGrowableCol(2);
  const auto middle = wxSizerFlags().CentreVertical();
  for (std::size_t i = 0; i < QBtoKV::kTees; ++i) {
    wxStaticText* tee = MakeLabel(binding, &panel, tees[i]);
    SetColumns(*tee, kTeeCharacters);
    rows->Add(MakeLabel(binding, &panel, sexes[i]), middle);
    rows->Add(tee, middle);
    wxChoice* partner = MakeChoice(binding, &panel, partners[i], QBtoKV::TeeHeading);
    NameBy(binding, partner, [this_sex = &sexes[i], this_tee = &tees[i]] {
      return "Corresponding tee, " + NameOf(*this_sex) + " " + NameOf(*this_tee);
    });
    rows->Add(WithRoom(panel, partner, kPartnerCharacters),
              wxSizerFlags().Expand().CentreVertical());
  }
  return rows;
}

wxSizer* Partners(ScreenPanel& panel, QBtoKV& screen) {
  const auto wide = wxSizerFlags().Expand();
  auto* partners = new wxBoxSizer(wxVERTICAL);
  partners->Add(Courses(panel, screen), wide);
  auto* tees = new wxGridSizer(2, 0, GroupGap(panel));
  tees->Add(Tees(panel, screen.QBMTeeLabel, screen.QBMTee, screen.MTeeCombo), wide);
  tees->Add(Tees(panel, screen.QBLTeeLabel, screen.QBLTee, screen.LTeeCombo), wide);
  partners->Add(tees, wxSizerFlags(wide).Border(wxTOP, GroupGap(panel)));
  return partners;
}

}  // namespace

void FillQBtoKV(ScreenPanel& panel, QBtoKV& screen) {
  Binding& binding = panel.binding();
  const auto group = wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel));
  auto* content = new wxBoxSizer(wxVERTICAL);
  content->Add(MakeLabel(binding, &panel, screen.Label1[0]), wxSizerFlags().Expand());
  content->Add(Ends(panel, screen), group);
  content->Add(Partners(panel, screen), group);
  auto* checks = new wxBoxSizer(wxHORIZONTAL);
  checks->Add(MakeCheckBox(binding, &panel, screen.TCheck));
  checks->Add(MakeCheckBox(binding, &panel, screen.TCheck2),
              wxSizerFlags().Border(wxLEFT, GroupGap(panel)));
  content->Add(checks, group);
  panel.folding_rows().push_back(checks);
  wxStaticText* heading = MakeHeading(&panel, "Messages");
  wxTextCtrl* log =
      Named("Messages", MakeLog(panel, &panel, screen.Message, kLogCharacters, kLogLines));
  AddLog(*content, panel, *heading, *log, screen.Working, nullptr);
  wxButton* transfer = MakeButton(binding, panel.foot(), screen.TransferButton);
  SetColumns(*transfer, kTransferCharacters);
  AddToFoot(panel, ButtonRow({.affirmative = transfer,
                              .variant = MakeButton(binding, panel.foot(), screen.PreviewButton),
                              .cancel = MakeButton(binding, panel.foot(), screen.ExitButton)}));
  FinishWindow(panel, content);
}

}  // namespace golf
