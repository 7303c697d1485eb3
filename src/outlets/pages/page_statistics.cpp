#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "outlets/pages/charts.h"
#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

// Returns the number of scores that each column of a distribution covers. The columns of a larger
// range cover more scores, since the picture has space for few columns.
double ColumnWidth(double lowest, double highest) {
  constexpr double kMostNarrowColumns = 14;  // columns of one score have short labels
  const double most_columns = highest < 100 ? 8 : 6;
  if (highest - lowest < kMostNarrowColumns) return 1;
  for (double power = 1;; power *= 10) {
    for (const double step : {2, 5, 10}) {
      if ((highest - lowest) / (step * power) < most_columns) return step * power;
    }
  }
}

// Returns the columns of a distribution, without their heights. The scores of a column begin at its
// label.
std::vector<ChartBar> EmptyColumns(double lowest, double highest, double width) {
  std::vector<ChartBar> columns;
  const double first = std::floor(lowest / width) * width;
  const double count = std::floor((highest - first) / width) + 1;
  for (int i = 0; i < count; ++i) {
    const double start = first + i * width;
    std::string label = FormatNumber(start, "0");
    if (width > 1) label += "\x96" + FormatNumber(start + width - 1, "0");
    columns.push_back({std::move(label), 0, ""});
  }
  return columns;
}

// Draws the number of entries with each score.
void WriteDistribution(const ResultsPage& page, const PageTable& table, HtmlWriter& html) {
  std::vector<double> scores;
  for (const ResultEntry& entry : page.entries) {
    const auto& value = entry.scores[table.span][table.measure].ranked.value;
    if (value) scores.push_back(*value);
  }
  if (scores.empty()) return;
  const auto [lowest, highest] = std::minmax_element(scores.begin(), scores.end());
  const double width = ColumnWidth(*lowest, *highest);
  std::vector<ChartBar> bars = EmptyColumns(*lowest, *highest, width);
  for (const double score : scores) {
    const double column = std::floor(score / width) - std::floor(*lowest / width);
    bars[std::min(static_cast<std::size_t>(column), bars.size() - 1)].value += 1;
  }
  std::string description;
  for (ChartBar& bar : bars) {
    if (bar.value == 0) continue;
    bar.shown = FormatNumber(bar.value, "0");
    description += (description.empty() ? "" : ", ") + bar.label + ": " + bar.shown;
  }
  const std::string title =
      table.title + ": number of " + (page.of_teams ? "teams" : "players") + " by score";
  html.Open("figure");
  html.Element("figcaption", title);
  html.Raw(ColumnChart({title, description + "."}, bars));
  html.Close("figure");
  html.EndLine();
}

// Draws the average of each hole against par, the hardest hole first.
void WriteHolesAgainstPar(const FieldStatistics& statistics, HtmlWriter& html) {
  std::vector<FieldStatistics::Hole> holes = statistics.holes;
  std::stable_sort(holes.begin(), holes.end(),
                   [](const auto& a, const auto& b) { return a.against_par > b.against_par; });
  std::vector<ChartBar> bars;
  std::string description;
  for (const auto& [hole, against_par] : holes) {
    const std::string shown = FormatNumber(against_par, "+0.00;-0.00;0.00");
    bars.push_back({"Hole " + std::to_string(hole), against_par, shown});
    description += (description.empty() ? "" : ", ") + bars.back().label + ": " + shown;
  }
  html.Open("figure");
  html.Element("figcaption", "Average gross score of each hole against par, hardest hole first");
  html.Raw(BarChart({"Holes against par", description + "."}, bars));
  html.Close("figure");
  html.EndLine();
}

void WriteHoleTable(const FieldStatistics& statistics, HtmlWriter& html) {
  html.Open(
      "div class=\"wide\" role=\"region\" aria-label=\"Statistics of the holes\" "
      "tabindex=\"0\"");
  html.Open("table id=\"holes\"");
  html.Element("caption", "Holes: scores of all players in this round");
  html.OpenTableBody(statistics.headings);
  for (const auto& cells : statistics.rows) {
    html.Open("tr");
    html.Element("th scope=\"row\"", cells.front());
    for (std::size_t i = 1; i < cells.size(); ++i) html.Element("td", cells[i]);
    html.Close("tr");
    html.EndLine();
  }
  html.Close("tbody");
  html.Close("table");
  html.Close("div");
  html.EndLine();
}

}  // namespace

void WriteStatistics(const ResultsPage& page, HtmlWriter& html) {
  html.Open("section id=\"statistics\"");
  html.Element("h2", "Statistics");
  html.Open("div class=\"tables\"");
  html.EndLine();
  for (const PageTable& table : page.tables) {
    if (RanksLowestFirst(table.measure)) WriteDistribution(page, table, html);
  }
  const bool has_holes = page.statistics && !page.statistics->rows.empty();
  if (has_holes) WriteHolesAgainstPar(*page.statistics, html);
  html.Close("div");
  if (has_holes) WriteHoleTable(*page.statistics, html);
  html.Close("section");
  html.EndLine();
}

}  // namespace golf
