#include <wx/gbsizer.h>

#include "desktop/layout_helpers.h"
#include "desktop/views.h"
#include "desktop/widgets.h"
#include "desktop/wx_text.h"
#include "screens/courses/course_tee.h"

namespace golf {
namespace {

constexpr std::size_t kNine = 9;

// These are in device-independent pixels.
constexpr int kHoleWidth = 52;
constexpr int kCardLabelWidth = 72;
constexpr int kTotalWidth = 60;
constexpr int kNameWidth = 120;
constexpr int kNumberWidth = 64;
constexpr int kNoteWidth = 300;

constexpr int kCardNoteLines = 5;

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
    content->Add(Buttons(), Below());
    return content;
  }

 private:
  wxSizerFlags Below() const { return wxSizerFlags().Expand().Border(wxTOP, GroupGap(panel_)); }
  wxSize Wide(int width) const { return panel_.FromDIP(wxSize(width, -1)); }

  wxStaticText* Text(wxWindow* parent, const wxString& text) {
    return new wxStaticText(parent, wxID_ANY, text);
  }

  wxSizer* Heading() {
    wxStaticText* course = MakeLabel(binding_, &panel_, screen_.FCourse);
    MakeBold(*course);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(course, wxSizerFlags(1).CentreVertical());
    row->Add(MakeLabel(binding_, &panel_, screen_.FHoles), wxSizerFlags().CentreVertical());
    row->Add(Text(&panel_, " holes"), wxSizerFlags().CentreVertical());
    row->Add(MakeCheckBox(binding_, &panel_, screen_.ActiveTee),
             wxSizerFlags().CentreVertical().Border(wxLEFT, 2 * GroupGap(panel_)));
    return row;
  }

  // Lays out the name, the ratings and the slopes, each row with a text for a fault at its end.
  wxPanel* Entries() {
    wxPanel* frame = MakeFrame(binding_, &panel_, screen_.TeeFrame);
    auto* rows = new wxFlexGridSizer(6, CloseGap(panel_), GroupGap(panel_));
    rows->AddGrowableCol(5);
    const auto middle = wxSizerFlags().CentreVertical();
    const auto add = [&](wxWindow* widget, int width) {
      widget->SetMinSize(Wide(width));
      rows->Add(widget, middle);
    };
    const auto add_note = [&](std::vector<const Control*> controls) {
      rows->Add(MakeNote(binding_, frame, std::move(controls), panel_.FromDIP(kNoteWidth), 2),
                middle);
    };
    rows->Add(Text(frame, "Tee"), middle);
    add(MakeTextCombo(binding_, frame, screen_.FTeeName), kNameWidth);
    rows->Add(Text(frame, "Abbreviation"), middle);
    add(MakeTextBox(binding_, frame, screen_.FTeeNameAbv), kNumberWidth);
    add(MakeChoice(binding_, frame, screen_.YardsOrMeters), kNameWidth);
    add_note({&screen_.FTeeName, &screen_.FTeeNameAbv});
    const auto add_group = [&](const char* group, RatingBox& rating, SlopeBox& slope) {
      rows->Add(Text(frame, wxString(group) + " rating"), middle);
      add(MakeTextBox(binding_, frame, rating), kNumberWidth);
      rows->Add(Text(frame, "Slope"), middle);
      add(MakeTextBox(binding_, frame, slope), kNumberWidth);
      rows->AddSpacer(0);
      add_note({&rating, &slope});
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
    auto* card = new wxGridBagSizer(CloseGap(panel_) / 2, CloseGap(panel_) / 2);
    const auto put = [&](wxWindow* widget, int row, std::size_t column, int flags = 0) {
      card->Add(widget, {row, static_cast<int>(column)}, {1, 1}, wxALIGN_CENTRE_VERTICAL | flags);
    };
    const auto put_label = [&](wxStaticText* label, int row) {
      label->SetMinSize(Wide(kCardLabelWidth));
      put(label, row, 0);
    };
    const auto put_sum = [&](wxStaticText* sum, int row) {
      MakeBold(*sum);
      sum->SetMinSize(Wide(kTotalWidth));
      card->Add(sum, {row, static_cast<int>(kNine) + 1}, {1, 1}, wxALIGN_CENTRE_VERTICAL | wxLEFT,
                CloseGap(panel_));
    };
    put_label(Text(frame, "Hole"), 0);
    put(MakeChoice(binding_, frame, first_number), 0, 1);
    for (std::size_t i = 1; i < kNine; ++i) {
      wxStaticText* hole = MakeLabel(binding_, frame, screen_.HoleNumber[first + i]);
      MakeBold(*hole);
      put(hole, 0, i + 1, wxALIGN_CENTRE_HORIZONTAL);
    }
    put_sum(Text(frame, sum_name), 0);
    put_label(first == 0 ? MakeLabel(binding_, frame, screen_.YardOrMeter) : UnitAgain(frame), 1);
    put_label(Text(frame, "Par"), 2);
    put_label(Text(frame, "Handicap"), 3);
    int row = 1;
    std::vector<const Control*> noted;
    for (HoleControls<TextBox>* boxes : {&screen_.FYardage, &screen_.FPar, &screen_.FHandicap}) {
      for (std::size_t i = 0; i < kNine; ++i) {
        TextBox& box = (*boxes)[first + i];
        wxTextCtrl* entry = MakeTextBox(binding_, frame, box, wxTE_CENTRE);
        entry->SetMinSize(Wide(kHoleWidth));
        put(entry, row, i + 1, wxALIGN_CENTRE_HORIZONTAL);
        noted.push_back(&box);
      }
      ++row;
    }
    put_sum(MakeLabel(binding_, frame, yard_sum), 1);
    put_sum(MakeLabel(binding_, frame, par_sum), 2);
    wxStaticText* note =
        MakeNote(binding_, frame, std::move(noted), panel_.FromDIP(kNoteWidth), kCardNoteLines);
    card->Add(note, {0, static_cast<int>(kNine) + 2}, {row, 1});
    frame->SetSizer(card);
    return frame;
  }

  // Returns a text that shows the unit also beside the second nine.
  wxStaticText* UnitAgain(wxWindow* frame) {
    wxStaticText* unit = Text(frame, "");
    binding_.ShowAlso([unit, this_unit = &screen_.YardOrMeter] {
      unit->SetLabelText(WxText(this_unit->caption()));
    });
    return unit;
  }

  wxPanel* Totals() {
    wxPanel* frame = MakeFrame(binding_, &panel_, screen_.TotalFrame);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto add = [&](const char* name, Label& total) {
      wxStaticText* sum = MakeLabel(binding_, frame, total);
      MakeBold(*sum);
      sum->SetMinSize(Wide(kTotalWidth));
      row->Add(Text(frame, name), wxSizerFlags().Border(wxRIGHT, CloseGap(panel_)));
      row->Add(sum, wxSizerFlags().Border(wxRIGHT, GroupGap(panel_)));
    };
    add("Total length", screen_.FYardTotal);
    add("Total par", screen_.FParTotal);
    frame->SetSizer(row);
    return frame;
  }

  wxSizer* Buttons() {
    return ButtonRow({.affirmative = MakeButton(binding_, &panel_, screen_.OKButton),
                      .cancel = MakeButton(binding_, &panel_, screen_.CancelButton),
                      .aside = MakeButton(binding_, &panel_, screen_.Help)});
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
