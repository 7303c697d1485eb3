#include "outlets/pages/results_page.h"

#include <string_view>

#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

constexpr std::string_view kSecondsToRefresh = "20";

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

bool HasCards(const ResultsPage& page, PageCards cards) {
  for (const ResultEntry& entry : page.entries) {
    if (HasCard(entry, page, cards)) return true;
  }
  return false;
}

std::string_view NoteOf(PageCards cards) {
  switch (cards) {
    case PageCards::kAllRounds:
      break;
    case PageCards::kShownRound:
      return "The score cards of earlier rounds are left out, since the page would be too large.";
    case PageCards::kNone:
      return "The score cards are left out, since the page would be too large.";
  }
  return {};
}

std::string PageHtml(const ResultsPage& page, PageCards cards) {
  const std::vector<StandingsGroup> groups = ShownGroups(page);
  const bool has_cards = HasCards(page, cards);
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
  WriteStandings(page, groups, cards, html);
  WriteStatistics(page, html);
  if (has_cards) WriteCards(page, cards, html);
  html.Close("main");
  html.Open("footer");
  for (const std::string& note : page.notes) html.Element("p", note);
  if (!NoteOf(cards).empty()) html.Element("p", NoteOf(cards));
  if (!page.footer.empty()) html.Element("p", page.footer);
  html.Close("footer");
  html.Raw("\n</body>\n</html>\n");
  return html.Take();
}

}  // namespace

WrittenPage WriteResultsPage(const ResultsPage& page, std::size_t most_bytes) {
  for (const PageCards cards : {PageCards::kAllRounds, PageCards::kShownRound, PageCards::kNone}) {
    std::string html = PageHtml(page, cards);
    if (html.size() <= most_bytes) return {std::move(html), cards};
  }
  return {{}, PageCards::kNone};
}

std::string TooLargeRefusal() {
  return "The page would be larger than " + std::to_string(kMostPageBytes) +
         " bytes, even without score cards.";
}

}  // namespace golf
