#include <wx/gbsizer.h>

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
constexpr int kTotalCharacters = 7;
constexpr int kNameCharacters = 8;
constexpr int kNumberCharacters = 5;
constexpr int kNoteCharacters = 72;

constexpr int kNoteLines = 3;

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

  wxStaticText* Text(wxWindow* parent, const wxString& text) {
    return new wxStaticText(parent, wxID_ANY, text);
  }

  wxSizer* Heading() {
    wxStaticText* course = MakeLabel(binding_, &panel_, screen_.FCourse);
    MakeBold(*course);
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(course, wxSizerFlags().CentreVertical());
    row->Add(MakeLabel(binding_, &panel_, screen_.FHoles),
             wxSizerFlags().CentreVertical().Border(wxLEFT, 2 * GroupGap(panel_)));
    row->Add(Text(&panel_, " holes"), wxSizerFlags().CentreVertical());
    row->Add(MakeCheckBox(binding_, &panel_, screen_.ActiveTee),
             wxSizerFlags().CentreVertical().Border(wxLEFT, 2 * GroupGap(panel_)));
    return row;
  }

  // Lays out the name, the ratings and the slopes.
  wxPanel* Entries() {
    wxPanel* frame = MakeFrame(binding_, &panel_, screen_.TeeFrame);
    auto* rows = new wxFlexGridSizer(5, CloseGap(panel_), GroupGap(panel_));
    const auto middle = wxSizerFlags().CentreVertical();
    const auto add = [&](wxControl* widget, int characters) {
      SetColumns(*widget, characters);
      rows->Add(widget, middle);
    };
    rows->Add(Text(frame, "Tee"), middle);
    add(MakeTextCombo(binding_, frame, screen_.FTeeName), kNameCharacters);
    rows->Add(Text(frame, "Abbreviation"), middle);
    add(MakeTextBox(binding_, frame, screen_.FTeeNameAbv), kNumberCharacters);
    add(MakeChoice(binding_, frame, screen_.YardsOrMeters), kNameCharacters);
    const auto add_group = [&](const char* group, RatingBox& rating, SlopeBox& slope) {
      rows->Add(Text(frame, wxString(group) + " rating"), middle);
      add(MakeTextBox(binding_, frame, rating), kNumberCharacters);
      rows->Add(Text(frame, "Slope"), middle);
      add(MakeTextBox(binding_, frame, slope), kNumberCharacters);
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
    for (HoleControls<TextBox>* boxes : {&screen_.FYardage, &screen_.FPar, &screen_.FHandicap}) {
      for (std::size_t i = 0; i < kNine; ++i) {
        TextBox& box = (*boxes)[first + i];
        wxTextCtrl* entry = MakeTextBox(binding_, frame, box, wxTE_CENTRE);
        SetColumns(*entry, kHoleCharacters);
        put(entry, row, i + 1, wxALIGN_CENTRE_HORIZONTAL);
      }
      ++row;
    }
    put_sum(MakeLabel(binding_, frame, yard_sum), 1);
    put_sum(MakeLabel(binding_, frame, par_sum), 2);
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
      SetColumns(*sum, kTotalCharacters);
      row->Add(Text(frame, name), wxSizerFlags().Border(wxRIGHT, CloseGap(panel_)));
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
