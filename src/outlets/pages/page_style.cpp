#include <algorithm>
#include <cmath>
#include <string>

#include "core/number_text.h"
#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

constexpr std::string_view kStyle = R"(:root{color-scheme:light dark}
body{font-family:system-ui,sans-serif;line-height:1.4;max-width:78rem;margin:0 auto;padding:0 1rem 2rem}
header p{margin:.2rem 0}
h1{font-size:1.7rem;margin:1rem 0 .3rem}
h2{font-size:1.35rem;margin:2rem 0 .5rem;border-bottom:2px solid}
h3,h4{font-size:1rem;margin:.8rem 0 .2rem}
summary h3{display:inline;font-weight:normal}
nav ul{display:flex;flex-wrap:wrap;gap:.3rem 1.2rem;list-style:none;margin:1rem 0;padding:0}
a{color:inherit}
small{display:block;opacity:.8}
table{border-collapse:collapse;width:100%;font-variant-numeric:tabular-nums}
caption,figcaption{font-weight:bold;text-align:left;padding:.4rem 0}
th,td{padding:.2rem .3rem;text-align:right;vertical-align:top}
th[scope=row]{text-align:left;font-weight:normal;overflow-wrap:anywhere}
thead th{border-bottom:1px solid;vertical-align:bottom;font-size:.85rem}
.standings th:nth-child(2){text-align:left;width:99%}
#holes th:first-child{text-align:left}
.standings thead th{white-space:nowrap}
.standings td:last-child{font-weight:bold}
.tables,.nines{display:grid;gap:1rem 2.5rem;align-items:start}
.tables{grid-template-columns:repeat(auto-fit,minmax(min(100%,27rem),1fr))}
.nines{grid-template-columns:repeat(auto-fit,minmax(min(100%,20rem),1fr))}
.card{font-size:.75rem;table-layout:fixed}
.card th,.card td{padding:.1rem .05rem}
.card th:first-child{text-align:left;overflow-wrap:break-word;width:3.3rem}
.card tr:first-child th{border-bottom:1px solid}
.sum{width:2.8rem}
.counts{font-weight:bold;text-decoration:underline}
.wide{overflow-x:auto}
details{border-bottom:1px solid #8888;padding:.3rem 0}
summary{cursor:pointer}
details p{margin:0 0 .3rem}
figure{margin:0}
svg{width:100%;max-width:30rem;height:auto;font-size:11px;fill:currentColor}
.solid,.dashed{stroke:currentColor;fill:none;stroke-width:1.5}
.dashed{stroke-dasharray:5 4}
footer{margin-top:2rem;font-size:.85rem}
@media screen and (max-width:30rem){
.rounds th:nth-child(n+3):not(:last-child),.rounds td:nth-child(n+3):not(:last-child){display:none}
}
@media print{
:root{color-scheme:light}
body{max-width:none;padding:0;font-size:10pt}
nav{display:none}
a{text-decoration:none}
h2,h3,h4,caption,summary{break-after:avoid}
.group+.group,.sex,#statistics,#cards{break-before:page}
.sex+.sex{break-before:auto}
.tables{display:block;columns:2;column-gap:8mm}
.tables>*{margin-bottom:1rem}
thead{display:table-header-group}
tr,figure,.nines,svg,.short{break-inside:avoid}
details svg{max-width:70mm;break-before:avoid}
.wide{overflow:visible}
#holes{font-size:8pt;break-inside:avoid}
details::details-content{content-visibility:visible;display:block;height:auto;opacity:1}
summary{list-style:none}
summary h3{font-weight:bold}
}
)";

// Returns the declarations of a font of a layout. Limits its size to 6 to 72 points.
std::string FontStyle(const ReportFont& font) {
  constexpr double kSmallest = 6;
  constexpr double kLargest = 72;
  constexpr double kUsual = 10;
  const double size = LeadingNumber(font.size);
  const double points =
      std::isfinite(size) && size > 0 ? std::clamp(size, kSmallest, kLargest) : kUsual;
  return "font-family:" + CssString(font.name) +
         ",sans-serif;font-size:" + FormatNumber(points, "0.00") +
         "pt;font-weight:" + ((font.style & ReportFont::kBold) != 0 ? "bold" : "normal") +
         ";font-style:" + ((font.style & ReportFont::kItalic) != 0 ? "italic" : "normal");
}

// Returns the rules for the fonts and the lines of a layout.
std::string LayoutStyle(const ReportLayout& layout) {
  constexpr std::string_view kSelectors[] = {"header h1,header p", "thead th",
                                             ".standings tbody th,.standings td"};
  std::string style;
  for (std::size_t i = 0; i < layout.fonts.size(); ++i) {
    style += std::string(kSelectors[i]) + "{" + FontStyle(layout.fonts[i]) + "}\n";
  }
  style += ".card th:first-child{width:24%}\n";  // for the names of golfers
  constexpr std::string_view kCells = ".standings th,.standings td";
  const auto add_lines = [&](int shown, std::string_view side) {
    if (shown != 0) style += std::string(kCells) + "{border-" + std::string(side) + ":1px solid}\n";
  };
  add_lines(layout.DisplayHGridLines, "block");
  add_lines(layout.DisplayVGridLines, "inline");
  return style;
}

}  // namespace

std::string PageStyle(const ResultsPage& page) {
  std::string style(kStyle);
  style += page.has_page_numbers
               ? "@page{margin:15mm;@bottom-center{content:\"Page \" counter(page) \" of \" "
                 "counter(pages)}}\n"
               : "@page{margin:15mm}\n";
  return style + (page.layout ? LayoutStyle(*page.layout) : "");
}

}  // namespace golf
