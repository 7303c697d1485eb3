#include <wx/gbsizer.h>

#include "core/text.h"
#include "desktop/accessible.h"
#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/courses/course_tee.h"

namespace golf {
namespace {

constexpr std::size_t kNine = 9;

// These are in characters.
constexpr int kHoleCharacters = 4;
constexpr int kCardLabelCharacters = 10;
constexpr int kTotalCharacters = 4;
constexpr int kNameCharacters = 8;
constexpr int kNumberCharacters = 5;
constexpr int kNoteCharacters = 72;

constexpr int kNoteLines = 3;

enum CardRow { kLengthRow = 1, kParRow, kHandicapRow };

wxString HoleText(const CourseTee& screen, std::size_t hole) {
  const bool is_first = hole % kNine == 0;  // whose number is chosen in a list
  const ComboBox& list = hole == 0 ? screen.FrontHoleNumber : screen.BackHoleNumber;
  return "Hole " + WxText(is_first ? list.text() : screen.HoleNumber[hole].caption());
}

// Says what a row of the card contains: yards or meters, par or handicap.
wxString WhatText(const CourseTee& screen, int row) {
  if (row == kLengthRow) return WxText(LowerCase(screen.YardOrMeter.caption()));
  return row == kParRow ? "par" : "handicap";
}

class TeeFiller {
 public:
  TeeFiller(ScreenPanel& panel, CourseTee& screen)
      : panel_(panel), binding_(panel.binding()), screen_(screen) {}

  wxSizer* Content() {
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(Heading(), wxSizerFlags().Expand());
    content->Add(Entries(), Below());
    content->Add(Card(screen_.FrontNineFrame, screen_.FrontHoleNumber, 0, "Out", screen_.FYardOut,
                      screen_.FParOut),
                 Below());
    content->Add(Card(screen_.BackNineFrame, screen_.BackHoleNumber, kNine, "In", screen_.FYardIn,
                      screen_.FParIn),
                 Below());
    content->Add(Totals(), Below());
    content->Add(MakeNote(
                     binding_, &panel_, "Odd",
                     [this_screen = &screen_] { return this_screen->OddEntries(); },
                     LineWidth(panel_, kNoteCharacters), kNoteLines),
                 Below());
    AddToFoot(panel_, Buttons());
    return content;
  }

 private:
  wxSizerFlags Below() const { return wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_)); }

  wxSizer* Heading() {
    wxStaticText* course = MakeLabel(binding_, &panel_, screen_.FCourse);
    MakeBold(*course);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(course, wxSizerFlags().CentreVertical());
    row->Add(MakeLabel(binding_, &panel_, screen_.FHoles),
             wxSizerFlags().CentreVertical().Border(wxLEFT, 2 * GroupGap(panel_)));
    row->Add(MakeText(&panel_, " holes"), wxSizerFlags().CentreVertical());
    row->Add(MakeCheckBox(binding_, &panel_, screen_.ActiveTee),
             wxSizerFlags().CentreVertical().Border(wxLEFT, 2 * GroupGap(panel_)));
    return row;
  }

  // Lays out the name, the ratings and the slopes.
  wxPanel* Entries() {
    wxPanel* frame = MakeFrame(binding_, &panel_, screen_.TeeFrame);
    auto* rows = new wxFlexGridSizer(6, CloseGap(panel_), GroupGap(panel_));
    const auto middle = wxSizerFlags().CentreVertical();
    const auto add = [&](wxControl* widget, int characters) {
      SetColumns(*widget, characters);
      rows->Add(widget, middle);
    };
    MakeAccessibleGroup(*frame, "Tee");
    rows->Add(MakeText(frame, "Tee"), middle);
    add(Named("Tee", MakeTextCombo(binding_, frame, screen_.FTeeName)), kNameCharacters);
    rows->Add(MakeText(frame, "Abbreviation"), middle);
    add(Named("Abbreviation", MakeTextBox(binding_, frame, screen_.FTeeNameAbv)),
        kNumberCharacters);
    rows->Add(MakeText(frame, "Unit"), middle);
    add(Named("Unit", MakeChoice(binding_, frame, screen_.YardsOrMeters)), kNameCharacters);
    const auto add_number = [&](const wxString& what, TextBox& number) {
      wxTextCtrl* entry = MakeTextBox(binding_, frame, number);
      add(NameBy(binding_, entry,
                 [=, tee = &screen_.FTeeName] { return what + ", " + WxText(tee->text()); }),
          kNumberCharacters);
    };
    const auto add_group = [&](const wxString& group, RatingBox& rating, SlopeBox& slope) {
      rows->Add(MakeText(frame, group + " rating"), middle);
      add_number(group + " rating", rating);
      rows->Add(MakeText(frame, "Slope"), middle);
      add_number(group + " slope", slope);
      rows->AddSpacer(0);
      rows->AddSpacer(0);
    };
    add_group("Men's", screen_.FMensRating, screen_.FMensSlope);
    add_group("Ladies'", screen_.FLadiesRating, screen_.FLadiesSlope);
    frame->SetSizer(rows);
    return frame;
  }

  // Lays out a nine of the scorecard with a column for each hole. The tab key moves along the rows.
  wxPanel* Card(Frame& control, ComboBox& first_number, std::size_t first, const char* sum_name,
                Label& yard_sum, Label& par_sum) {
    wxPanel* frame = MakeFrame(binding_, &panel_, control);
    MakeAccessibleGroup(*frame, first == 0 ? "Front nine" : "Back nine");
    auto* card = new wxGridBagSizer(CloseGap(panel_) / 2, CloseGap(panel_) / 2);
    const auto put = [&](wxWindow* widget, int row, std::size_t column, int flags = 0) {
      card->Add(widget, {row, static_cast<int>(column)}, {1, 1}, wxALIGN_CENTRE_VERTICAL | flags);
    };
    const auto put_label = [&](wxStaticText* label, int row) {
      SetColumns(*label, kCardLabelCharacters);
      put(label, row, 0);
    };
    const auto put_sum = [&](wxStaticText* sum, int row) {
      MakeBold(*sum);
      SetColumns(*sum, kTotalCharacters);
      card->Add(sum, {row, static_cast<int>(kNine) + 1}, {1, 1}, wxALIGN_CENTRE_VERTICAL | wxLEFT,
                CloseGap(panel_));
    };
    put_label(MakeText(frame, "Hole"), 0);
    put(Named("First hole", MakeChoice(binding_, frame, first_number)), 0, 1);
    for (std::size_t i = 1; i < kNine; ++i) {
      wxStaticText* hole = MakeLabel(binding_, frame, screen_.HoleNumber[first + i]);
      MakeBold(*hole);
      put(hole, 0, i + 1, wxALIGN_CENTRE_HORIZONTAL);
    }
    put_sum(MakeText(frame, sum_name), 0);
    const auto put_row = [&](wxStaticText* label, HoleControls<TextBox>& boxes, int row) {
      put_label(label, row);
      for (std::size_t i = 0; i < kNine; ++i) {
        TextBox& box = boxes[first + i];
        wxTextCtrl* entry = MakeTextBox(binding_, frame, box, wxTE_CENTRE);
        NameBy(binding_, entry, [this_screen = &screen_, hole = first + i, row] {
          return HoleText(*this_screen, hole) + " " + WhatText(*this_screen, row);
        });
        SetColumns(*entry, kHoleCharacters);
        put(entry, row, i + 1, wxALIGN_CENTRE_HORIZONTAL);
      }
    };
    put_row(first == 0 ? MakeLabel(binding_, frame, screen_.YardOrMeter) : UnitAgain(frame),
            screen_.FYardage, kLengthRow);
    put_row(MakeText(frame, "Par"), screen_.FPar, kParRow);
    put_row(MakeText(frame, "Handicap"), screen_.FHandicap, kHandicapRow);
    put_sum(NameSum(MakeLabel(binding_, frame, yard_sum), sum_name, kLengthRow, yard_sum),
            kLengthRow);
    put_sum(NameSum(MakeLabel(binding_, frame, par_sum), sum_name, kParRow, par_sum), kParRow);
    frame->SetSizer(card);
    return frame;
  }

  // Names a sum, such as "Out par 36".
  wxStaticText* NameSum(wxStaticText* text, const wxString& nine, int row, const Label& sum) {
    return NameBy(binding_, text, [this_screen = &screen_, nine, row, &sum] {
      return nine + " " + WhatText(*this_screen, row) + " " + WxText(sum.caption());
    });
  }

  // Returns a text that shows the unit also beside the second nine.
  wxStaticText* UnitAgain(wxWindow* frame) {
    wxStaticText* unit = MakeText(frame, "");
    binding_.ShowAlso([unit, this_unit = &screen_.YardOrMeter] {
      unit->SetLabelText(WxText(this_unit->caption()));
    });
    return unit;
  }

  wxPanel* Totals() {
    wxPanel* frame = MakeFrame(binding_, &panel_, screen_.TotalFrame);
    MakeAccessibleGroup(*frame, "Totals");
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto add = [&](const char* name, Label& total) {
      wxStaticText* sum = MakeLabel(binding_, frame, total);
      MakeBold(*sum);
      SetColumns(*sum, kTotalCharacters);
      row->Add(MakeText(frame, name), wxSizerFlags().Border(wxRIGHT, CloseGap(panel_)));
      row->Add(sum, wxSizerFlags().Border(wxRIGHT, GroupGap(panel_)));
    };
    add("Total length", screen_.FYardTotal);
    add("Total par", screen_.FParTotal);
    frame->SetSizer(row);
    return frame;
  }

  wxBoxSizer* Buttons() {
    return ButtonRow({.affirmative = MakeButton(binding_, panel_.foot(), screen_.OKButton),
                      .cancel = MakeButton(binding_, panel_.foot(), screen_.CancelButton),
                      .aside = {MakeButton(binding_, panel_.foot(), screen_.Help)}});
  }

  ScreenPanel& panel_;
  Binding& binding_;
  CourseTee& screen_;
};

}  // namespace

void FillCourseTee(ScreenPanel& panel, CourseTee& screen) {
  FinishWindow(panel, TeeFiller(panel, screen).Content());
}

}  // namespace golf
