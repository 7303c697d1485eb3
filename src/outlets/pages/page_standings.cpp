#include <algorithm>

#include "core/number_text.h"
#include "core/text.h"
#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

using Kind = StandingsGroup::Kind;

// A table with more rows may be divided between pages in print.
constexpr std::size_t kMostRowsOfShort = 24;

constexpr std::string_view kMeasureIds[] = {"gross", "net", "points", "quota"};

// Returns the text after the name of a team: its golfers, or its number if they are its name.
std::string SmallText(const ResultEntry& entry, const ResultsPage& page) {
  if (!page.of_teams || entry.golfers != entry.name) return entry.golfers;
  return "Team " + std::to_string(entry.number);
}

// Returns the cell with the name of each entry. The cells are made only once, since each of them is
// part of many tables.
std::vector<std::string> NameCells(const ResultsPage& page, PageExtent extent) {
  std::vector<std::string> cells;
  for (const ResultEntry& entry : page.entries) {
    HtmlWriter html;
    html.Open("th scope=\"row\"");
    const bool has_card = HasCard(entry, page, extent);
    if (has_card) html.Open("a href=\"#" + CardId(entry, page.of_teams) + "\"");
    html.Text(NameOf(entry, page.of_teams));
    if (has_card) html.Close("a");
    const std::string small = SmallText(entry, page);
    if (!small.empty()) {
      html.Text(" ");
      html.Element("small", small);
    }
    html.Close("th");
    cells.push_back(html.Take());
  }
  return cells;
}

class StandingsWriter {
 public:
  StandingsWriter(const ResultsPage& page, PageExtent extent, HtmlWriter& html)
      : page_(page), html_(html), names_(NameCells(page, extent)) {}

  void WriteGroup(const StandingsGroup& group) {
    const std::string id = GroupId(group);
    const std::string_view kind = group.kind == Kind::kSex ? "sex" : "group";
    html_.Open("section class=\"" + std::string(kind) + "\" id=\"" + id + "\"");
    html_.Element("h2", GroupTitle(group, page_.of_teams));
    html_.Open("div class=\"tables\"");
    html_.EndLine();
    for (const PageTable& table : page_.tables) WriteTable(group, id, table);
    html_.Close("div");
    html_.Close("section");
    html_.EndLine();
  }

 private:
  void WriteTable(const StandingsGroup& group, const std::string& id, const PageTable& table) {
    const std::string_view measure = kMeasureIds[static_cast<std::size_t>(table.measure)];
    const std::string_view span = table.span == Span::kRound ? "round" : "total";
    html_.Open("div class=\"wide\"");
    const bool has_many_rounds = table.span == Span::kAllRounds && table.columns.size() > 3;
    const std::string_view rounds = has_many_rounds ? " rounds" : "";
    const std::string_view is_short = group.members.size() <= kMostRowsOfShort ? " short" : "";
    html_.Open("table class=\"standings" + std::string(rounds) + std::string(is_short) +
               "\" id=\"" + id + "-" + std::string(span) + "-" + std::string(measure) + "\"");
    html_.Element("caption", table.title);
    std::vector<std::string> headings = {"Place", page_.of_teams ? "Team" : "Player"};
    for (const EntryColumn& column : table.columns) headings.push_back(column.heading);
    html_.OpenTableBody(headings);
    for (const RankedPlace& ranked :
         RankGroup(page_.entries, group, table.span, table.measure, page_.position_option)) {
      WriteRow(ranked, table);
    }
    html_.Close("tbody");
    html_.Close("table");
    html_.Close("div");
    html_.EndLine();
  }

  void WriteRow(const RankedPlace& ranked, const PageTable& table) {
    html_.Open("tr");
    html_.Element("td", TextOrEmpty(ranked.place));
    html_.Raw(names_[ranked.index]);
    for (const EntryColumn& column : table.columns) {
      html_.Element("td", column.text(page_.entries[ranked.index]));
    }
    html_.Close("tr");
    html_.EndLine();
  }

  const ResultsPage& page_;
  HtmlWriter& html_;
  std::vector<std::string> names_;
};

}  // namespace

std::string NameOf(const ResultEntry& entry, bool of_teams) {
  std::string name = WithoutPadding(entry.name);
  if (!name.empty()) return name;
  return (of_teams ? "Team " : "Entry ") + std::to_string(entry.number);
}

std::string GroupId(const StandingsGroup& group) {
  switch (group.kind) {
    case Kind::kAll:
      return "all";
    case Kind::kFlight:
      return "flight-" + group.key;
    case Kind::kSex:
      break;
  }
  return group.key == "M" ? "men" : "ladies";
}

std::string GroupTitle(const StandingsGroup& group, bool of_teams) {
  switch (group.kind) {
    case Kind::kAll:
      return of_teams ? "All teams" : "All players";
    case Kind::kFlight:
      return "Flight " + group.key;
    case Kind::kSex:
      break;
  }
  return group.key == "M" ? "Men" : "Ladies";
}

std::vector<StandingsGroup> ShownGroups(const ResultsPage& page, PageExtent extent) {
  std::vector<StandingsGroup> groups = GroupsOf(page.entries);
  std::erase_if(groups, [&](const StandingsGroup& group) {
    return group.kind != Kind::kAll &&
           (extent == PageExtent::kNoGroups || group.members.size() == page.entries.size());
  });
  return groups;
}

void WriteStandings(const ResultsPage& page, const std::vector<StandingsGroup>& groups,
                    PageExtent extent, HtmlWriter& html) {
  StandingsWriter writer(page, extent, html);
  for (const StandingsGroup& group : groups) writer.WriteGroup(group);
}

}  // namespace golf
