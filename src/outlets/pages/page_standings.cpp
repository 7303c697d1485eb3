#include <algorithm>

#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

using Kind = StandingsGroup::Kind;

// A table with more rows may be divided between pages in print.
constexpr std::size_t kMostRowsOfShort = 24;

constexpr std::string_view kMeasureIds[] = {"gross", "net", "points", "quota"};

// Contains the start of each row's second cell. It is written for many rows, so it is made once.
std::vector<std::string> NameCells(const ResultsPage& page, PageCards cards) {
  std::vector<std::string> cells;
  for (const ResultEntry& entry : page.entries) {
    HtmlWriter html;
    html.Open("th scope=\"row\"");
    const bool has_card = HasCard(entry, page, cards);
    if (has_card) html.Open("a href=\"#" + CardId(entry, page.of_teams) + "\"");
    html.Text(entry.name);
    if (has_card) html.Close("a");
    if (!entry.golfers.empty() && entry.golfers != entry.name) {
      html.Element("small", entry.golfers);
    }
    html.Close("th");
    cells.push_back(html.Take());
  }
  return cells;
}

class StandingsWriter {
 public:
  StandingsWriter(const ResultsPage& page, PageCards cards, HtmlWriter& html)
      : page_(page), html_(html), names_(NameCells(page, cards)) {}

  void WriteGroup(const StandingsGroup& group) {
    const std::string id = GroupId(group);
    html_.Open("section class=\"group\" id=\"" + id + "\"");
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
    const std::string_view is_short = group.members.size() <= kMostRowsOfShort ? " short" : "";
    html_.Open("table class=\"standings" + std::string(is_short) + "\" id=\"" + id + "-" +
               std::string(span) + "-" + std::string(measure) + "\"");
    html_.Element("caption", table.title);
    html_.Open("thead");
    html_.Open("tr");
    html_.Element("th scope=\"col\"", "Place");
    html_.Element("th scope=\"col\"", page_.of_teams ? "Team" : "Player");
    for (const EntryColumn& column : table.columns) {
      html_.Element("th scope=\"col\"", column.heading);
    }
    html_.Close("tr");
    html_.Close("thead");
    html_.Open("tbody");
    html_.EndLine();
    for (const RankedPlace& ranked :
         RankGroup(page_.entries, group, table.span, table.measure, page_.position_option)) {
      WriteRow(ranked, table);
    }
    html_.Close("tbody");
    html_.Close("table");
    html_.EndLine();
  }

  void WriteRow(const RankedPlace& ranked, const PageTable& table) {
    html_.Open("tr");
    html_.Element("td", ranked.place ? std::to_string(*ranked.place) : "");
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

std::vector<StandingsGroup> ShownGroups(const ResultsPage& page) {
  std::vector<StandingsGroup> groups = GroupsOf(page.entries);
  const auto has_all = [&](const StandingsGroup& group) {
    return group.kind != Kind::kAll && group.members.size() == page.entries.size();
  };
  std::erase_if(groups, has_all);
  return groups;
}

void WriteStandings(const ResultsPage& page, const std::vector<StandingsGroup>& groups,
                    PageCards cards, HtmlWriter& html) {
  StandingsWriter writer(page, cards, html);
  for (const StandingsGroup& group : groups) writer.WriteGroup(group);
}

}  // namespace golf
