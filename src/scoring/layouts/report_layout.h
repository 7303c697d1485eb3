#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/file_table.h"

namespace golf {

// A report layout describes a custom report of team results. It defines which golfers of a team
// count on each hole of five rounds, and how many of their balls count. The fields have the same
// names as in the files and on the screen of the layout.

inline constexpr int kLayoutHoles = 90;
inline constexpr int kLayoutPlaces = 2;  // the number of selections for one hole
inline constexpr int kMostLayoutPlayers = 8;

// Contains one selection for a hole, as codes.
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

// Contains a layout. No ball counts in a new layout.
struct ReportLayout {
  std::string ReportDescription;
  int HoleNumberUsed = 1;
  int PlayersPerTeam = 4;
  std::string BallSelectionOption = "D";  // "D": different balls for gross and net, "S": the same
  std::string BallSelection = "G";        // "G": gross first, "N": net first, "B": best combination
  std::array<std::array<PlaceCodes, kLayoutPlaces>, kLayoutHoles> places;
  std::array<ReportFont, 3> fonts;  // of header, column headers, body
  int DisplayHGridLines = 0;
  int DisplayVGridLines = 0;
  std::array<std::string, 5> HeaderText;  // three are shown, two are not
  std::string ReportNumber;
  std::array<int, 3> Header{};        // 1 to show number, page and date
  std::array<std::string, 17> kept;   // unused lines, which are kept unchanged
  std::array<std::string, 2> behind;  // text after the known lines of each file, kept unchanged

  // Return a selection. Holes are 1 to 90, and places are 0 and 1. Any other value raises error 9.
  const PlaceCodes& At(int hole, int place) const;
  PlaceCodes& At(int hole, int place);
};

// Contains a choice of a list, with its text and its code.
struct LayoutChoice {
  std::string text;
  std::string code;
};
// Return the lists of choices for teams of `players` players, 1 to 8.
std::vector<LayoutChoice> PlayerChoices(int players);
std::vector<LayoutChoice> BallChoices(int players);
const std::vector<int>& HoleNumberChoices();
// Returns the index of a code in a list. Returns 0, the index of the first choice, if no choice has
// the code.
std::size_t ChoiceOf(const std::vector<LayoutChoice>& choices, std::string_view code);

// Replaces each value that is not in its list by the first choice, as the screen does. Returns the
// number of replaced hole codes.
int LimitToChoices(ReportLayout& layout);
// Returns the message to the operator about `codes` replaced codes.
std::string UnknownCodesText(int codes);

// Copies the selections of the first HoleNumberUsed holes to the following holes, repeatedly up to
// hole 90.
void CopyForward(ReportLayout& layout);

inline constexpr std::string_view kLayoutExtension = ".TR";
inline constexpr std::size_t kLayoutNameWidth = 40;  // the most characters of a name

// Contains the result of reading a layout. It contains the layout, or the reason why it could not
// be read.
struct ReadLayout {
  std::optional<ReportLayout> layout;
  std::string problem;  // a sentence for the operator; empty if there is a layout
};

// Read and write a layout. The names of its two files are `path` plus "1" and `path` plus "2".
// `path` includes the extension. These functions raise the errors of FileTable.
ReadLayout ReadReportLayout(FileTable& files, const std::string& path);
inline ReadLayout ReadReportLayout(FileTable& files, const std::string& folder,
                                   const std::string& name) {
  return ReadReportLayout(files, folder + name + std::string(kLayoutExtension));
}
void WriteReportLayout(FileTable& files, const std::string& path, const ReportLayout& layout);
// Returns true if the files can contain the text. They cannot contain a quote or a line end.
bool FitsReportLayout(std::string_view text);

// Returns true if the layout belongs to Quenby itself and must not be changed.
bool IsPermanentLayout(std::string_view name);

// These work on the two files of the layout `name`. They raise the errors of ChangeGate, and
// CopyReportLayout error 53 if a file is missing.
bool ReportLayoutExists(FileTable& files, const std::string& folder, const std::string& name);
void CopyReportLayout(FileTable& files, const std::string& folder, const std::string& name,
                      const std::string& copy);
void DeleteReportLayout(FileTable& files, const std::string& folder, const std::string& name);

// Returns the names of the layouts in a folder, without extension.
std::vector<std::string> ListReportLayouts(FileTable& files, const std::string& folder);

}  // namespace golf
