#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_table.h"

namespace golf {

// A custom report of team results. Its layout says which golfers of a team count on each hole of
// five rounds, and how many of their balls. The fields have the names of the layout's files and
// screen.

inline constexpr int kLayoutHoles = 90;
inline constexpr int kLayoutPlaces = 2;  // selections for one hole
inline constexpr int kMostLayoutPlayers = 8;

// One selection for a hole, as codes.
struct PlaceCodes {
  std::string ConsiderPlayers = "0";
  std::string GrossScoresToUse = "NONE";
  std::string NetScoresToUse = "NONE";
};

struct ReportFont {
  static constexpr int kBold = 1;
  static constexpr int kItalic = 2;

  std::string name = "Arial";
  std::string size = "10";  // in points, as written in the file
  int style = 0;            // kBold and kItalic; other bits are kept
};

// A layout. No ball counts in a new one.
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
  std::array<std::string, 5> HeaderText;  // three that are shown, two that are not
  std::string ReportNumber;
  std::array<int, 3> Header{};        // whether number, page and date are shown
  std::array<std::string, 17> kept;   // unused lines, kept as they are
  std::array<std::string, 2> behind;  // text behind the known lines of each file, kept as it is

  // Holes are 1 to 90, places 0 and 1. Any other raises error 9.
  const PlaceCodes& At(int hole, int place) const;
  PlaceCodes& At(int hole, int place);
};

// A choice of a list: its text and its code.
struct LayoutChoice {
  std::string text;
  std::string code;
};
// Return the lists for teams of `players` players, 1 to 8.
std::vector<LayoutChoice> PlayerChoices(int players);
std::vector<LayoutChoice> BallChoices(int players);
const std::vector<int>& HoleNumberChoices();
// Returns the index of a code in a list, or 0, the first choice, if no choice has the code.
std::size_t ChoiceOf(const std::vector<LayoutChoice>& choices, std::string_view code);

// Replaces each value that its list does not offer by the first choice, as the screen does. Returns
// the number of hole codes replaced.
int LimitToChoices(ReportLayout& layout);
// Returns the message to the operator about `codes` replaced codes.
std::string UnknownCodesText(int codes);

// Copies the selections of the first HoleNumberUsed holes to the following ones, repeatedly up to
// hole 90.
void CopyForward(ReportLayout& layout);

inline constexpr std::string_view kLayoutExtension = ".TR";

// A layout that was read, or the reason for which there is none.
struct ReadLayout {
  std::optional<ReportLayout> layout;
  std::string problem;  // a sentence for the operator; empty with a layout
};

// Read and write a layout. Its two files are named `path`, which ends in the extension, plus "1"
// and "2". Both functions raise the errors of FileTable.
ReadLayout ReadReportLayout(FileTable& files, const std::string& path);
void WriteReportLayout(FileTable& files, const std::string& path, const ReportLayout& layout);
// Returns true if the files can hold the text. They cannot hold a quote or a line end.
bool FitsReportLayout(std::string_view text);

// Returns the names of the layouts in a folder, without extension.
std::vector<std::string> ListReportLayouts(FileTable& files, const std::string& folder);

}  // namespace golf
