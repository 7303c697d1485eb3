#include "outlets/pages/charts.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "outlets/pages/html_writer.h"

namespace golf {
namespace {

// All lengths are in units of the picture. A picture is as wide as the page of a phone.
constexpr double kWidth = 340;
constexpr double kLabelHeight = 16;
constexpr double kPlotHeight = 120;

std::string Shown(double length) {
  const double rounded = std::round(length * 10) / 10;
  return FormatNumber(rounded == 0 ? 0.0 : rounded, "0.0");
}

// Writes an SVG element with a title and a description.
class Drawing {
 public:
  Drawing(const ChartText& text, double height) {
    html_.Open("svg role=\"img\" viewBox=\"0 0 " + Shown(kWidth) + " " + Shown(height) + "\"");
    html_.Element("title", text.title);
    html_.Element("desc", text.description);
  }

  void Bar(double x, double y, double width, double height) {
    html_.Raw("<rect x=\"" + Shown(x) + "\" y=\"" + Shown(y) + "\" width=\"" + Shown(width) +
              "\" height=\"" + Shown(height) + "\"/>");
  }
  void Line(double x1, double y1, double x2, double y2, std::string_view style) {
    html_.Raw("<path class=\"" + std::string(style) + "\" d=\"M" + Shown(x1) + " " + Shown(y1) +
              "L" + Shown(x2) + " " + Shown(y2) + "\"/>");
  }
  void Dot(double x, double y) {
    html_.Raw("<circle cx=\"" + Shown(x) + "\" cy=\"" + Shown(y) + "\" r=\"4\"/>");
  }
  // `anchor` is "start", "middle" or "end".
  void Text(double x, double y, std::string_view anchor, std::string_view text) {
    html_.Element("text x=\"" + Shown(x) + "\" y=\"" + Shown(y) + "\" text-anchor=\"" +
                      std::string(anchor) + "\"",
                  text);
  }

  std::string Take() {
    html_.Close("svg");
    html_.EndLine();
    return html_.Take();
  }

 private:
  HtmlWriter html_;
};

double Highest(const std::vector<ChartBar>& bars) {
  double highest = 0;
  for (const ChartBar& bar : bars) highest = std::max(highest, bar.value);
  return highest;
}

// Draws a line with its dots or squares, and writes its values beside them. A value is above its
// dot if it is not lower than the value of the other line.
void DrawLine(Drawing& drawing, const ChartLine& line, const ChartLine& other, bool is_first,
              double step, double lowest, double range) {
  constexpr double kTop = 2 * kLabelHeight;
  std::optional<std::pair<double, double>> last;
  for (std::size_t i = 0; i < line.values.size(); ++i) {
    if (!line.values[i]) continue;
    const double x = (static_cast<double>(i) + 0.5) * step;
    const double y = kTop + kPlotHeight * (1 - (*line.values[i] - lowest) / range);
    if (last) drawing.Line(last->first, last->second, x, y, is_first ? "solid" : "dashed");
    if (is_first) {
      drawing.Dot(x, y);
    } else {
      drawing.Bar(x - 4, y - 4, 8, 8);
    }
    const double of_other = other.values[i].value_or(*line.values[i]);
    const bool is_above = *line.values[i] > of_other || (*line.values[i] == of_other && is_first);
    drawing.Text(x + 8, is_above ? y - 4 : y + 14, "start", line.shown[i]);
    last = {x, y};
  }
}

}  // namespace

std::string ColumnChart(const ChartText& text, const std::vector<ChartBar>& bars) {
  constexpr double kBottom = kLabelHeight + kPlotHeight;
  Drawing drawing(text, kBottom + kLabelHeight + 2);
  const double step = kWidth / static_cast<double>(std::max<std::size_t>(bars.size(), 1));
  const double highest = std::max(Highest(bars), 1.0);
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const double middle = (static_cast<double>(i) + 0.5) * step;
    const double height = kPlotHeight * bars[i].value / highest;
    if (bars[i].value > 0) {
      drawing.Bar(middle - step * 0.4, kBottom - height, step * 0.8, height);
      drawing.Text(middle, kBottom - height - 3, "middle", bars[i].shown);
    }
    drawing.Text(middle, kBottom + kLabelHeight - 3, "middle", bars[i].label);
  }
  drawing.Line(0, kBottom, kWidth, kBottom, "solid");
  return drawing.Take();
}

std::string BarChart(const ChartText& text, const std::vector<ChartBar>& bars) {
  constexpr double kLabelWidth = 60;
  constexpr double kValueWidth = 48;
  constexpr double kRow = 20;
  Drawing drawing(text, kRow * static_cast<double>(bars.size()));
  double lowest = 0;
  for (const ChartBar& bar : bars) lowest = std::min(lowest, bar.value);
  const double range = std::max(Highest(bars) - lowest, 0.01);
  // Values are written to the right of the bars, and those of negative bars to the left of them.
  const double left = kLabelWidth + (lowest < 0 ? kValueWidth : 0);
  const double scale = (kWidth - kValueWidth - left) / range;
  const double zero = left - lowest * scale;
  for (std::size_t i = 0; i < bars.size(); ++i) {
    const double y = kRow * static_cast<double>(i);
    const double length = std::abs(bars[i].value) * scale;
    const bool is_negative = bars[i].value < 0;
    drawing.Text(0, y + 14, "start", bars[i].label);
    drawing.Bar(is_negative ? zero - length : zero, y + 3, length, kRow - 6);
    drawing.Text(is_negative ? zero - length - 4 : zero + length + 4, y + 14,
                 is_negative ? "end" : "start", bars[i].shown);
  }
  drawing.Line(zero, 0, zero, kRow * static_cast<double>(bars.size()), "solid");
  return drawing.Take();
}

std::string LineChart(const ChartText& text, const std::vector<std::string>& labels,
                      const std::vector<ChartLine>& lines) {
  constexpr double kBottom = 3 * kLabelHeight + kPlotHeight;
  Drawing drawing(text, kBottom + kLabelHeight + 2);
  std::vector<double> values;
  for (const ChartLine& line : lines) {
    for (const auto& value : line.values) {
      if (value) values.push_back(*value);
    }
  }
  if (values.empty()) return drawing.Take();
  const auto [lowest, highest] = std::minmax_element(values.begin(), values.end());
  const double range = std::max(*highest - *lowest, 1.0);
  const double step = kWidth / static_cast<double>(labels.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    DrawLine(drawing, lines[i], lines[lines.size() - 1 - i], i == 0, step, *lowest, range);
    // The legend is a sample of the line, followed by its name.
    const double x = static_cast<double>(i) * kWidth / 2;
    drawing.Line(x, 8, x + 24, 8, i == 0 ? "solid" : "dashed");
    drawing.Text(x + 30, 13, "start", lines[i].name);
  }
  drawing.Line(0, kBottom, kWidth, kBottom, "solid");
  for (std::size_t i = 0; i < labels.size(); ++i) {
    drawing.Text((static_cast<double>(i) + 0.5) * step, kBottom + kLabelHeight - 2, "middle",
                 labels[i]);
  }
  return drawing.Take();
}

}  // namespace golf
