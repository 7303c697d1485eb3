#pragma once

#include <optional>
#include <string>
#include <vector>

namespace golf {

// These functions draw pictures as SVG elements. A picture uses the colour of the text around it,
// so it can be printed in black and white. It has a title and a description for readers who cannot
// see it. Titles, descriptions and labels are in code page 1252.
struct ChartText {
  std::string title;
  std::string description;
};

struct ChartBar {
  std::string label;
  double value = 0;
  std::string shown;  // the value as text
};

// Draws a column for each bar. Values are 0 or more.
std::string ColumnChart(const ChartText& text, const std::vector<ChartBar>& bars);

// Draws a horizontal bar for each value. Bars of negative values extend to the left.
std::string BarChart(const ChartText& text, const std::vector<ChartBar>& bars);

struct ChartLine {
  std::string name;
  std::vector<std::optional<double>> values;  // one for each label
  std::vector<std::string> shown;             // the values as text
};

// Draws up to two lines over the labels. The first one is solid with dots, and the second one is
// dashed with squares.
std::string LineChart(const ChartText& text, const std::vector<std::string>& labels,
                      const std::vector<ChartLine>& lines);

}  // namespace golf
