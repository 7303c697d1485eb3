#include "outlets/pages/results_page.h"

#include <string_view>
#include <utility>

#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

constexpr std::string_view kSecondsToRefresh = "30";

void WriteHead(const ResultsPage& page, HtmlWriter& html) {
  html.Raw(
      "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n");
  if (page.refreshes) {
    html.Open("meta http-equiv=\"refresh\" content=\"" + std::string(kSecondsToRefresh) + "\"");
    html.EndLine();
  }
  html.Element("title", page.title);
  html.Raw("\n<style>\n" + PageStyle(page) + "</style>\n</head>\n");
}

void WriteLink(std::string_view id, std::string_view title, HtmlWriter& html) {
  html.Open("li");
  html.Open("a href=\"#" + std::string(id) + "\"");
  html.Text(title);
  html.Close("a");
  html.Close("li");
}

void WriteContents(const std::vector<StandingsGroup>& groups, const ResultsPage& page,
                   bool has_cards, HtmlWriter& html) {
  html.Open("nav aria-label=\"Contents\"");
  html.Open("ul");
  for (const StandingsGroup& group : groups) {
    WriteLink(GroupId(group), GroupTitle(group, page.of_teams), html);
  }
  WriteLink("statistics", "Statistics", html);
  if (has_cards) WriteLink("cards", "Score cards", html);
  html.Close("ul");
  html.Close("nav");
  html.EndLine();
}

bool HasCards(const ResultsPage& page, PageExtent extent) {
  for (const ResultEntry& entry : page.entries) {
    if (HasCard(entry, page, extent)) return true;
  }
  return false;
}

std::string PageHtml(const ResultsPage& page, PageExtent extent) {
  const std::vector<StandingsGroup> groups = ShownGroups(page, extent);
  const bool has_cards = HasCards(page, extent);
  HtmlWriter html;
  WriteHead(page, html);
  html.Open("body");
  html.Open("header");
  for (const std::string& line : page.header) {
    html.Element(&line == &page.header.front() ? "h1" : "p", line);
  }
  html.Close("header");
  html.EndLine();
  WriteContents(groups, page, has_cards, html);
  html.Open("main");
  html.EndLine();
  WriteStandings(page, groups, extent, html);
  WriteStatistics(page, html);
  if (has_cards) WriteCards(page, extent, html);
  html.Close("main");
  html.Open("footer");
  for (const std::string& note : page.notes) html.Element("p", note);
  if (extent != PageExtent::kEverything) {
    html.Element("p", "The page would be too large with " + std::string(LeftOutOf(extent)) + ".");
  }
  if (page.refreshes) {
    html.Element("p",
                 "The page is loaded again every " + std::string(kSecondsToRefresh) + " seconds.");
  }
  if (!page.footer.empty()) html.Element("p", page.footer);
  html.Close("footer");
  html.Raw("\n</body>\n</html>\n");
  return html.Take();
}

}  // namespace

std::string_view LeftOutOf(PageExtent extent) {
  switch (extent) {
    case PageExtent::kEverything:
      break;
    case PageExtent::kCardsOfShownRound:
      return "the score cards of earlier rounds";
    case PageExtent::kNoCards:
      return "score cards";
    case PageExtent::kNoGroups:
      return "score cards, flights and sexes";
  }
  return {};
}

WrittenPage WriteResultsPage(const ResultsPage& page, std::size_t most_bytes) {
  for (const PageExtent extent : {PageExtent::kEverything, PageExtent::kCardsOfShownRound,
                                  PageExtent::kNoCards, PageExtent::kNoGroups}) {
    std::string html = PageHtml(page, extent);
    if (html.size() <= most_bytes) return {std::move(html), extent};
  }
  return {{}, PageExtent::kNoGroups};
}

std::string TooLargeRefusal(const WrittenPage& written) {
  return "The page would have more than " + std::to_string(kMostPageBytes) +
         " bytes, even without " + std::string(LeftOutOf(written.extent)) + ".";
}

}  // namespace golf
