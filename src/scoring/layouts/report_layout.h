#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_table.h"

namespace golf {

// A custom report of team results: which golfers of a team count on each of five rounds' holes, and
// how many of their balls. Names of fields are those that the layout's files and screen have.

inline constexpr int kLayoutHoles = 90;
inline constexpr int kLayoutPlaces = 2;  // selections that one hole can take
inline constexpr int kMostLayoutPlayers = 8;

// One selection of a hole, by codes.
struct PlaceCodes {
  std::string ConsiderPlayers = "0";
  std::string GrossScoresToUse = "NONE";
  std::string NetScoresToUse = "NONE";
};

struct ReportFont {
  static constexpr int kBold = 1;
  static constexpr int kItalic = 2;

  std::string name = "Arial";
  std::string size = "10";  // points, as it is written
  int style = 0;            // kBold and kItalic; other bits are kept
};

// A new layout is one in which no ball counts.
struct ReportLayout {
  std::string ReportDescription;
  int HoleNumberUsed = 1;
  int PlayersPerTeam = 4;
  std::string BallSelectionOption = "D";  // "D" different balls for gross and net, "S" the same
  std::string BallSelection = "G";        // "G" gross first, "N" net first, "B" best combination
  std::array<std::array<PlaceCodes, kLayoutPlaces>, kLayoutHoles> places;
  std::array<ReportFont, 3> fonts;  // header, column headers, body
  int DisplayHGridLines = 0;
  int DisplayVGridLines = 0;
  std::array<std::string, 5> HeaderText;  // three, and two that nobody shows
  std::string ReportNumber;
  std::array<int, 3> Header{};        // number, page and date shown
  std::array<std::string, 17> kept;   // for later use
  std::array<std::string, 2> behind;  // what a later version wrote behind the lines

  // Holes 1 to 90, places 0 and 1; error 9 for any other.
  const PlaceCodes& At(int hole, int place) const;
  PlaceCodes& At(int hole, int place);
};

// A choice of a list: what is shown, and its code.
struct LayoutChoice {
  std::string text;
  std::string code;
};
// The lists for teams of so many players, 1 to 8.
std::vector<LayoutChoice> PlayerChoices(int players);
std::vector<LayoutChoice> BallChoices(int players);
const std::vector<int>& HoleNumberChoices();
// The place of a code in a list; 0, the first choice, if no choice has it.
std::size_t ChoiceOf(const std::vector<LayoutChoice>& choices, std::string_view code);

// Brings what no list offers to the first choice of its list, as the screen does; how many codes
// of holes that were.
int LimitToChoices(ReportLayout& layout);
// What the operator is told of so many.
std::string UnknownCodesText(int codes);

// The holes behind the first HoleNumberUsed ones repeat them.
void CopyForward(ReportLayout& layout);

inline constexpr std::string_view kLayoutExtension = ".TR";

// A layout that was read, or why there is none.
struct ReadLayout {
  std::optional<ReportLayout> layout;
  std::string problem;  // a sentence for the operator; empty with a layout
};

// The layout in two files: `path`, which ends in the extension, and behind it "1" and "2". Both
// raise the errors of FileTable.
ReadLayout ReadReportLayout(FileTable& files, const std::string& path);
void WriteReportLayout(FileTable& files, const std::string& path, const ReportLayout& layout);
// Whether a text can stand in these files: they have no way to write a quote or the end of a line.
bool FitsReportLayout(std::string_view text);

// The names of the layouts in a folder.
std::vector<std::string> ListReportLayouts(FileTable& files, const std::string& folder);

}  // namespace golf
