#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "outlets/pages/field_statistics.h"
#include "outlets/results/entry_columns.h"
#include "outlets/results/result_entry.h"
#include "scoring/layouts/report_layout.h"

namespace golf {

// Describes a table of standings. The page shows it for each group of entries. Its first columns
// are the place and the name, followed by `columns`.
struct PageTable {
  Span span = Span::kRound;
  Measure measure = Measure::kNet;
  std::string title;
  std::vector<EntryColumn> columns;
};

// Contains what a page of results shows. It refers to players or to teams. Texts are in code page
// 1252.
struct ResultsPage {
  std::string title;
  std::vector<std::string> header;  // the lines above the contents; the first one is the heading
  std::string footer;
  std::vector<std::string> notes;
  bool of_teams = false;
  std::vector<ResultEntry> entries;
  std::vector<PageTable> tables;
  int position_option = 1;  // that of the tournament
  int round = 1;            // the shown round
  int holes = 18;           // of a round: 9 or 18
  std::optional<FieldStatistics> statistics;
  std::optional<ReportLayout> layout;  // defines fonts and lines
  bool has_page_numbers = true;        // in print
  bool refreshes = false;              // a browser loads the page again after some seconds
};

// Describes what a page contains. Each extent leaves out more than the one before it.
enum class PageExtent { kEverything, kCardsOfShownRound, kNoCards, kNoGroups };
// Returns what is left out, such as "the score cards". Returns an empty text for kEverything.
std::string_view LeftOutOf(PageExtent extent);

// A page has at most this many bytes.
inline constexpr std::size_t kMostPageBytes = 20'000'000;

struct WrittenPage {
  std::string html;  // UTF-8; empty if the page is too large in any extent
  PageExtent extent = PageExtent::kEverything;
};

// Returns the page as HTML 5. It needs no other file and contains no script. Leaves out cards of
// earlier rounds, then all cards, and then the flights and sexes, if the page would have more than
// `most_bytes` bytes.
WrittenPage WriteResultsPage(const ResultsPage& page, std::size_t most_bytes = kMostPageBytes);

// Returns a sentence for a page that is too large in any extent.
std::string TooLargeRefusal(const WrittenPage& written);

}  // namespace golf
