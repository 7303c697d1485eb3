#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>

#include "core/shared_state.h"
#include "forms/screen_host.h"
#include "screens/courses/rating_box.h"

namespace golf {

template <class AnyControl>
using HoleControls = std::array<AnyControl, kCourseHoles>;

// Edits one tee in the form of a scorecard. The caller fills the controls, sets FHoles to "18",
// "9F" or "9B", starts Timer1 and shows the screen. The screen hides with the tag "OK" or "CANCEL".
// It writes nothing to a record or file.
class CourseTee : public Screen {
 public:
  static constexpr const char* kName = "CourseTee";

  explicit CourseTee(const ScreenContext& context);

  // Shows the frames of the nines that FHoles selects. It must be called before the window is
  // created, since the size of the window depends on what is visible.
  void ShowHolesPlayed();

  // Lets the operator change nothing until the screen is unloaded. It must be called before the
  // screen is shown.
  void ShowOnly();

  // Must be called after the caller has filled the controls. Cancel does not ask if nothing has
  // changed since then.
  void NoteUnchanged() { unchanged_ = Entered(); }

  // Describes the entries of an active tee that look wrong, or returns an empty text. Every par
  // must be entered, and either all hole handicaps or none.
  std::string OddEntries() const;

  Button* LeaveButton() override { return &CancelButton; }

  Label FCourse{"FCourse"};
  Label FHoles{"FHoles"};
  CheckBox ActiveTee{"ActiveTee", "&Active tee"};
  Frame TeeFrame{"TeeFrame"};
  TextCombo FTeeName{"FTeeName",
                     {"Black", "Blue", "Gold", "Green", "Red", "Silver", "White", "Yellow"}};
  TextBox FTeeNameAbv{"FTeeNameAbv"};
  RatingBox FMensRating{"FMensRating", *this, {state(), host()}};
  SlopeBox FMensSlope{"FMensSlope", *this, {state(), host()}};
  RatingBox FLadiesRating{"FLadiesRating", *this, {state(), host()}};
  SlopeBox FLadiesSlope{"FLadiesSlope", *this, {state(), host()}};
  ComboBox YardsOrMeters{"YardsOrMeters"};
  Label YardOrMeter{"YardOrMeter"};
  Frame FrontNineFrame{"FrontNineFrame"};
  ComboBox FrontHoleNumber{"FrontHoleNumber"};
  Frame BackNineFrame{"BackNineFrame"};
  ComboBox BackHoleNumber{"BackHoleNumber"};
  HoleControls<Label> HoleNumber =
      Holes<Label>("HoleNumber");  // all but holes 1 and 10, which have a list
  HoleControls<TextBox> FYardage = Holes<TextBox>("FYardage");
  HoleControls<TextBox> FPar = Holes<TextBox>("FPar");
  HoleControls<TextBox> FHandicap = Holes<TextBox>("FHandicap");
  HoleControls<Label> FSequence = Holes<Label>("FSequence");
  Label FYardOut{"FYardOut"};
  Label FParOut{"FParOut"};
  Label FYardIn{"FYardIn"};
  Label FParIn{"FParIn"};
  Frame TotalFrame{"TotalFrame"};
  Label FYardTotal{"FYardTotal"};
  Label FParTotal{"FParTotal"};
  Timer Timer1{"Timer1"};
  Button OKButton{"OKButton", "&OK"};
  Button CancelButton{"CancelButton", "Cancel"};
  Button Help{"Help", "&Help"};

 private:
  template <class AnyControl, std::size_t... kHoles>
  static HoleControls<AnyControl> Holes(const char* name, std::index_sequence<kHoles...>) {
    return {(static_cast<void>(kHoles), AnyControl(name))...};
  }
  template <class AnyControl>
  static HoleControls<AnyControl> Holes(const char* name) {
    return Holes<AnyControl>(name, std::make_index_sequence<kCourseHoles>());
  }

  void PlaceControls();
  void ConnectEntries();
  void ConnectNine(ComboBox& first_number, std::size_t first_hole);
  void ConnectHole(HoleControls<TextBox>& boxes, std::size_t hole, double moves_on_above);

  void SetUp();
  void ShowActive();
  void ShowTotals();
  void LeaveTeeName();
  Control* NextAfter(const HoleControls<TextBox>& boxes, std::size_t hole);

  // Returns the faults of the current entries, each with its control.
  std::vector<std::pair<Control*, TeeFault>> Faults();
  void ShowNotes(const Control* left);
  std::vector<Control*> Entries();

  // Returns everything that the operator can change.
  std::string Entered() const;
  // Returns Yes if nothing has been changed.
  std::optional<BoxButton> AnswerIfUnchanged() const;

  void Accept();
  void Finish();
  bool NameAccepted();
  bool RatingsAccepted();
  bool HolesAccepted();
  void ShowStrokeSequence();
  void CopyBackNineToFront();
  void Cancel();
  int HoleNumFlag() const;  // the flag of FHoles
  std::vector<TeeFault> FaultsOfHoles() const;

  std::string unchanged_;  // what the controls contained at first
  bool is_view_ = false;   // the operator can change nothing
};

}  // namespace golf
