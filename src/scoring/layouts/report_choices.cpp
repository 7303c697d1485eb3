// This file makes the lists of choices for the codes of a layout.

#include <algorithm>
#include <utility>

#include "core/numbered_error.h"
#include "scoring/layouts/report_layout.h"

namespace golf {
namespace {

constexpr std::string_view kCountDigits = "123456789ABC";

std::string Ordinal(int n) {
  constexpr const char* kEndings[] = {"st", "nd", "rd"};
  return std::to_string(n) + (n <= 3 ? kEndings[n - 1] : "th");
}

// Adds each combination of `size` numbers from 1 to `players`, in ascending order.
void AddCombinations(int players, int size, std::vector<LayoutChoice>& choices) {
  std::vector<int> numbers;
  for (int n = 1; n <= size; ++n) numbers.push_back(n);
  while (true) {
    LayoutChoice choice{"Players", ""};
    for (const int n : numbers) {
      choice.text += (choice.code.empty() ? " " : ", ") + std::to_string(n);
      choice.code += std::to_string(n);
    }
    choices.push_back(std::move(choice));
    int at = size - 1;
    while (at >= 0 && numbers[static_cast<std::size_t>(at)] == players - size + 1 + at) --at;
    if (at < 0) return;
    int next = numbers[static_cast<std::size_t>(at)];
    for (; at < size; ++at) numbers[static_cast<std::size_t>(at)] = ++next;
  }
}

// Adds the choices for the sums of 2 up to `players` balls, the best or the worst ones. The
// code of the sum of 3 balls is `letter` followed by "123".
void AddTotals(int players, char letter, const std::string& words, const std::string& side,
               std::vector<LayoutChoice>& choices) {
  for (int n = 2; n <= players; ++n) {
    const std::string count = std::to_string(n);
    choices.push_back(
        {count + words + (n == players ? "(Total All balls)" : "(Total " + count + side),
         letter + std::string(kCountDigits.substr(0, static_cast<std::size_t>(n)))});
  }
}

bool Limit(const std::vector<LayoutChoice>& choices, std::string& code) {
  const LayoutChoice& choice = choices[ChoiceOf(choices, code)];
  if (choice.code == code) return false;
  code = choice.code;
  return true;
}

}  // namespace

const PlaceCodes& ReportLayout::At(int hole, int place) const {
  if (hole < 1 || hole > kLayoutHoles || place < 0 || place >= kLayoutPlaces) {
    throw NumberedError(ErrorNumber::kSubscript, "A report layout has no such hole.");
  }
  return places[static_cast<std::size_t>(hole) - 1][static_cast<std::size_t>(place)];
}

PlaceCodes& ReportLayout::At(int hole, int place) {
  return const_cast<PlaceCodes&>(std::as_const(*this).At(hole, place));
}

std::vector<LayoutChoice> PlayerChoices(int players) {
  std::vector<LayoutChoice> choices = {{"NO Players", "0"}, {"ALL Players", "12345678"}};
  for (int n = 1; n <= players; ++n) {
    const std::string number = std::to_string(n);
    choices.push_back({"Player " + number + " only", number});
  }
  for (int size = 2; size < players; ++size) AddCombinations(players, size, choices);
  return choices;
}

std::vector<LayoutChoice> BallChoices(int players) {
  std::vector<LayoutChoice> choices = {{"Use NO score", "NONE"}, {"1 best ball (Low ball)", "L1"}};
  AddTotals(players, 'L', " best ball ", " low balls)", choices);
  for (int n = 1; n <= players; ++n) {
    const std::string which = n == players ? "High ball only)" : Ordinal(n) + " ball only)";
    choices.push_back({Ordinal(n) + " best ball (" + which, "X" + std::to_string(n)});
  }
  choices.push_back({"1 worst ball (High ball)", "H1"});
  AddTotals(players, 'H', " worst balls ", " high balls)", choices);
  return choices;
}

const std::vector<int>& HoleNumberChoices() {
  static const std::vector<int> kChoices = [] {
    std::vector<int> choices = {1, 3, 9, 18, 27, 36, 45, 54, 63, 72, 81, 90};
    for (int n = 1; n <= kLayoutHoles; ++n) choices.push_back(n);
    return choices;
  }();
  return kChoices;
}

std::size_t ChoiceOf(const std::vector<LayoutChoice>& choices, std::string_view code) {
  const auto choice = std::find_if(choices.begin(), choices.end(),
                                   [&](const LayoutChoice& known) { return known.code == code; });
  return choice == choices.end() ? 0 : static_cast<std::size_t>(choice - choices.begin());
}

int LimitToChoices(ReportLayout& layout) {
  const bool known_players =
      layout.PlayersPerTeam >= 1 && layout.PlayersPerTeam <= kMostLayoutPlayers;
  if (!known_players) layout.PlayersPerTeam = 1;
  const bool known_holes = layout.HoleNumberUsed >= 1 && layout.HoleNumberUsed <= kLayoutHoles;
  if (!known_holes) layout.HoleNumberUsed = HoleNumberChoices().front();
  if (layout.BallSelectionOption != "S") layout.BallSelectionOption = "D";
  const std::string& style = layout.BallSelection;
  layout.BallSelection = style == "N" || style == "n"   ? "N"
                         : style == "B" || style == "b" ? "B"
                                                        : "G";
  const auto players = PlayerChoices(layout.PlayersPerTeam);
  const auto balls = BallChoices(layout.PlayersPerTeam);
  int replaced = 0;
  for (auto& hole : layout.places) {
    for (PlaceCodes& place : hole) {
      replaced += Limit(players, place.ConsiderPlayers);
      replaced += Limit(balls, place.GrossScoresToUse);
      replaced += Limit(balls, place.NetScoresToUse);
    }
  }
  return replaced;
}

void CopyForward(ReportLayout& layout) {
  for (std::size_t to = static_cast<std::size_t>(layout.HoleNumberUsed); to < layout.places.size();
       ++to) {
    layout.places[to] = layout.places[to - static_cast<std::size_t>(layout.HoleNumberUsed)];
  }
}

std::string UnknownCodesText(int codes) {
  return std::to_string(codes) + (codes == 1 ? " code" : " codes") +
         " of this report cannot be read.  The first choice of its list stands in its place.";
}

}  // namespace golf
