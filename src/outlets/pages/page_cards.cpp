#include <algorithm>

#include "outlets/pages/charts.h"
#include "outlets/pages/page_sections.h"

namespace golf {
namespace {

bool IsShown(const RoundCard& card, const ResultsPage& page, PageExtent extent) {
  return extent == PageExtent::kEverything ||
         (extent == PageExtent::kCardsOfShownRound && card.round == page.round);
}

class CardWriter {
 public:
  CardWriter(const ResultsPage& page, PageExtent extent, HtmlWriter& html)
      : page_(page), extent_(extent), html_(html) {}

  void Write(const ResultEntry& entry) {
    html_.Open("details");
    html_.Open("summary");
    html_.Element("h3", NameOf(entry, page_.of_teams));
    html_.Close("summary");
    html_.Open("div id=\"" + CardId(entry, page_.of_teams) + "\"");
    html_.EndLine();
    for (const RoundCard& card : entry.cards) {
      if (IsShown(card, page_, extent_)) WriteRound(card);
    }
    WriteRounds(entry);
    html_.Close("div");
    html_.Close("details");
    html_.EndLine();
  }

 private:
  void WriteRound(const RoundCard& card) {
    html_.Element("h4", "Round " + std::to_string(card.round));
    if (!card.facts.empty()) {
      std::string facts;
      for (const std::string& fact : card.facts) {
        if (!fact.empty()) facts += (facts.empty() ? "" : " \xB7 ") + fact;
      }
      html_.Element("p", facts);
    }
    html_.Open("div class=\"nines\"");
    if (page_.holes == 18) {
      WriteNine(card, 1, {{kFirstNine, "Out"}});
      WriteNine(card, 10, {{kSecondNine, "In"}, {kWholeRound, "Total"}});
    } else {
      WriteNine(card, 1, {{kWholeRound, "Total"}});
    }
    html_.Close("div");
    html_.EndLine();
  }

  struct Sum {
    int entry;
    const char* heading;
  };

  // Writes nine holes, followed by sums.
  void WriteNine(const RoundCard& card, int first, const std::vector<Sum>& sums) {
    html_.Open("table class=\"card\" aria-label=\"Holes " + std::to_string(first) + " to " +
               std::to_string(first + 8) + "\"");
    html_.Open("tr");
    html_.Element("th", "Hole");
    for (int hole = first; hole < first + 9; ++hole) {
      html_.Element("th", std::to_string(hole));
    }
    for (const Sum& sum : sums) html_.Element("th class=\"sum\"", sum.heading);
    html_.Close("tr");
    for (const CardRow& row : card.rows) {
      html_.Open("tr");
      html_.Element("th", row.heading);
      for (int hole = first; hole < first + 9; ++hole) {
        html_.Element(row.counts[static_cast<std::size_t>(hole)] ? "td class=\"counts\"" : "td",
                      row.cells[hole]);
      }
      for (const Sum& sum : sums) html_.Element("td", row.cells[sum.entry]);
      html_.Close("tr");
    }
    html_.Close("table");
  }

  // Draws the scores of the rounds if there are several.
  void WriteRounds(const ResultEntry& entry) {
    std::vector<std::string> labels;
    std::vector<ChartLine> lines;
    std::string description;
    for (const auto& [measure, name] :
         {std::pair(Measure::kGross, page_.layout ? "Scores" : "Gross"),
          std::pair(Measure::kNet, "Net")}) {
      const std::vector<std::string>& rounds = entry.scores[Span::kAllRounds][measure].parts;
      if (rounds.size() < 2) continue;
      ChartLine line{name, {}, rounds};
      description += (description.empty() ? "" : " ") + std::string(name) + ":";
      for (std::size_t i = 0; i < rounds.size(); ++i) {
        line.values.push_back(NumberOfScore(rounds[i]));
        description += (i > 0 ? ", " : " ") + (rounds[i].empty() ? "no score" : rounds[i]);
        if (lines.empty()) labels.push_back("Round " + std::to_string(i + 1));
      }
      description += ".";
      lines.push_back(std::move(line));
    }
    if (lines.empty()) return;
    html_.Raw(LineChart({"Scores of the rounds: " + NameOf(entry, page_.of_teams), description},
                        labels, lines));
  }

  const ResultsPage& page_;
  PageExtent extent_;
  HtmlWriter& html_;
};

}  // namespace

bool HasCard(const ResultEntry& entry, const ResultsPage& page, PageExtent extent) {
  return std::ranges::any_of(entry.cards,
                             [&](const RoundCard& card) { return IsShown(card, page, extent); });
}

std::string CardId(const ResultEntry& entry, bool of_teams) {
  return (of_teams ? "team-" : "player-") + std::to_string(entry.number);
}

void WriteCards(const ResultsPage& page, PageExtent extent, HtmlWriter& html) {
  html.Open("section id=\"cards\"");
  html.Element("h2", "Score cards");
  CardWriter writer(page, extent, html);
  for (const ResultEntry& entry : page.entries) {
    if (HasCard(entry, page, extent)) writer.Write(entry);
  }
  html.Close("section");
  html.EndLine();
}

}  // namespace golf
