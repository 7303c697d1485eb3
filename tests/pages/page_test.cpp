// Reads pages of random tournaments, and compares them with what `results --json` writes. The test
// ranks the players and teams itself.

#include <algorithm>
#include <functional>
#include <optional>
#include <random>
#include <set>

#include "cli/command_line_fixture.h"
#include "outlets/install_reader.h"
#include "outlets/pages/results_page.h"
#include "pages/html_page.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf {
namespace {

using Json = nlohmann::json;
using Cells = HtmlPage::Cells;

std::string TextOf(const Json& value) {
  return value.is_string() ? value.get<std::string>() : value.is_null() ? "" : value.dump();
}

// Returns the number of a shown score. A plus sign means a score below 0.
double NumberOf(const Json& value) {
  const std::string text = TextOf(value);
  return text.starts_with('+') ? -std::stod(text.substr(1)) : std::stod(text);
}

// Contains the JSON objects of a player or a team, one for each round.
struct Competitor {
  std::vector<Json> rounds;  // the last one is the shown round
  const Json& shown() const { return rounds.back(); }
};

// Describes a measure and the keys of an object that contain it.
struct MeasureKeys {
  const char* id;
  bool lowest_first;
  const char* by_hole;   // 21 values, or 3
  const char* total;     // null: there are no totals
  const char* tiebreak;  // the start of the keys of the tiebreaks; null: there are none
  std::vector<const char*> facts;
};

struct Kind {
  const char* what;
  const char* number;
  const char* name;
  std::function<bool(const Json&)> has_score;
  std::vector<MeasureKeys> measures;
};

const Kind kPlayers = {
    "players",
    "record",
    "NameLF",
    [](const Json& round) { return round["TourScoreGrossValue"][20] >= 1; },
    {{"gross", true, "TourScoreGross", "TourTotalGross", "TourGrossTotalTiebreak", {}},
     {"net",
      true,
      "TourScoreNet",
      "TourTotalNet",
      "TourNetTotalTiebreak",
      {"TourHandicap", "TourScoreGross"}},
     {"points", false, "TourPointsNet", "TourTotalNetPoints", nullptr, {"TourHandicap"}},
     {"quota", false, "TourPointsQuotaResults", "TourTotalQuotaResults", nullptr, {"TourQuota"}}}};

const Kind kTeams = {
    "teams",
    "TeamNumber",
    "TeamName",
    [](const Json& round) { return round["ScoreGross"][20] >= 1; },
    {{"gross", true, "ScoreGross", "TotalGross", "GrossTotalTiebreak", {}},
     {"net", true, "ScoreNet", "TotalNet", "NetTotalTiebreak", {"Handicap", "ScoreGross"}},
     {"points", false, "PointsNet", nullptr, nullptr, {"Handicap"}},
     {"quota", false, "QuotaResults", nullptr, nullptr, {"Quota"}}}};

struct Placed {
  const Competitor* competitor;
  double value = 0;
  std::string key;
  std::string place;
};

// Ranks the competitors that have a value, and appends the others.
std::vector<Placed> Rank(std::vector<Placed> scored, std::vector<Placed> others, bool lowest_first,
                         int position_option) {
  std::ranges::stable_sort(scored, [&](const Placed& a, const Placed& b) {
    if (a.value != b.value) return lowest_first ? a.value < b.value : a.value > b.value;
    return a.key < b.key;
  });
  int dense = 0;
  for (std::size_t i = 0; i < scored.size(); ++i) {
    const bool tie =
        i > 0 && scored[i].value == scored[i - 1].value && scored[i].key == scored[i - 1].key;
    if (tie) {
      scored[i].place = scored[i - 1].place;
    } else {
      scored[i].place = std::to_string(position_option == 1 ? ++dense : static_cast<int>(i) + 1);
    }
  }
  scored.insert(scored.end(), others.begin(), others.end());
  return scored;
}

// Calls `change` with each record of a file, and writes the file again.
template <class Layout, class Change>
void Each(TempFolder& folder, const std::string& name, Change change) {
  const std::string file = "i/qbdata/" + name;
  std::string bytes = folder.Read(file);
  for (std::size_t at = 0; at + Layout::kLength <= bytes.size(); at += Layout::kLength) {
    auto record = RecordOf<Layout>(bytes.substr(at, Layout::kLength));
    change(record);
    bytes.replace(at, Layout::kLength, record.Bytes());
  }
  folder.Write(file, bytes);
}

// Fills the tournament of the demonstration with random options, entries and golfers.
struct RandomTournament {
  explicit RandomTournament(std::uint32_t seed) : random(seed) {}

  int Below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

  void Write(TempFolder& folder) {
    Each<TournamentLayout>(folder, "X0001.Q9C", [&](Record<TournamentLayout>& control) {
      control.Set<"PositionOption">(static_cast<std::int16_t>(position_option = 1 + Below(2)));
      control.Set<"HandicapDecimalPlaces">(static_cast<std::int16_t>(-Below(2)));
      control.Set<"ScoreEntryTotal">(static_cast<std::int16_t>(-(has_totals_only = Below(5) == 0)));
      control.Set<"RoundType">(static_cast<std::int16_t>(holes = Below(4) == 0 ? 9 : 18));
      control.Set<"NumFlights">(4);
      control.Set<"NumTeamFlights">(4);
    });
    Each<TournamentPlayerLayout>(folder, "X0001.Q9G", [&](Record<TournamentPlayerLayout>& entry) {
      for (int round = 1; round <= 2; ++round) {
        entry.Set<"TourFlight">({round}, std::string(1, static_cast<char>('A' + Below(3))));
        const int team = round > 1 && !changes_teams ? entry.Get<"TourTeamOn">(1) : Below(4);
        entry.Set<"TourTeamOn">({round}, static_cast<std::int16_t>(team));
        entry.Set<"TourScoreGrossTotal">({round}, static_cast<std::int16_t>(Below(3) * 40));
        const bool is_played = Below(4) > 0;
        for (int hole = 1; hole <= 18; ++hole) {
          const int score = Below(60) == 0 ? 99 : Below(20) == 0 ? 0 : 4 + Below(2);
          entry.Set<"TourScoreGross">({hole, round},
                                      static_cast<std::int16_t>(is_played ? score : 0));
        }
      }
    });
    Each<PlayerLayout>(folder, "QBGOLFER.Q9D", [&](Record<PlayerLayout>& golfer) {
      constexpr std::uint8_t kSexes[] = {0, 1, 9};  // 9 counts as 0
      golfer.Set<"Sex">(kSexes[Below(3)]);
    });
    Each<TeamLayout>(folder, "X0001.Q9T", [&](Record<TeamLayout>& team) {
      team.Set<"Flight">({2}, std::string(1, static_cast<char>('A' + Below(2))));
    });
  }

  std::mt19937 random;
  bool changes_teams = false;  // the golfers of a team are different in each round
  int position_option = 1;
  int holes = 18;
  bool has_totals_only = false;
  bool is_somebody_on_course = false;  // of the players or teams of a page
};

class PageTest : public CommandLineTest {
 protected:
  // Writes a page and returns it.
  HtmlPage Page(const std::string& words) {
    const Ended ended = In("results " + words + " --html p.html");
    EXPECT_EQ(ended.code, 0) << ended.problems;
    return HtmlPage(folder.Read("p.html"));
  }

  // Returns the competitors with their objects of the rounds 1 to `last`.
  std::vector<Competitor> Competitors(const Kind& kind, int last, const std::string& options = "") {
    std::vector<Competitor> all;
    for (int round = 1; round <= last; ++round) {
      const std::string words =
          std::string(kind.what) + " --tournament 1 --round " + std::to_string(round) + options;
      std::size_t i = 0;
      for (Json& object : JsonLines(In("--json results " + words).out)) {
        if (round == 1) all.emplace_back();
        all[i++].rounds.push_back(std::move(object));
      }
    }
    return all;
  }
};

// Returns the number of holes of a player who has not finished the round, or an empty text.
std::string HolesOnCourse(const Json& round, int holes) {
  const Json scores = round.value("TourScoreGrossValue", Json::array());
  int played = 0;
  for (std::size_t i = 0; i < scores.size() && static_cast<int>(i) < holes; ++i) {
    played += scores[i] > 0 ? 1 : 0;
  }
  return played > 0 && played < holes ? std::to_string(played) : "";
}

// Returns the cells that a table of a page should have, without the headings.
std::vector<Cells> ExpectedRows(const Kind& kind, const MeasureKeys& measure, bool of_all_rounds,
                                const std::vector<const Competitor*>& group,
                                const std::string& tiebreak, const RandomTournament& tournament) {
  std::vector<Placed> scored;
  std::vector<Placed> others;
  for (const Competitor* competitor : group) {
    const Json& shown = competitor->shown();
    const bool is_complete = std::ranges::all_of(
        of_all_rounds ? competitor->rounds : std::vector<Json>{shown}, kind.has_score);
    const Json& value = of_all_rounds ? shown[measure.total] : shown[measure.by_hole].back();
    if (!is_complete) {
      others.push_back({competitor, 0, "", ""});
      continue;
    }
    const bool has_key = measure.tiebreak != nullptr && !tiebreak.empty();
    scored.push_back({competitor, NumberOf(value),
                      has_key ? TextOf(shown[measure.tiebreak + tiebreak]) : "", ""});
  }
  std::vector<Cells> rows;
  for (const Placed& placed : Rank(std::move(scored), std::move(others), measure.lowest_first,
                                   tournament.position_option)) {
    const Json& shown = placed.competitor->shown();
    Cells& cells = rows.emplace_back(Cells{placed.place, TextOf(shown[kind.name])});
    const bool has_score = kind.has_score(shown);
    if (of_all_rounds) {
      bool has_any = false;
      for (const Json& round : placed.competitor->rounds) {
        const bool is_played = kind.has_score(round);
        has_any |= is_played;
        cells.push_back(is_played ? TextOf(round[measure.by_hole].back()) : "");
      }
      cells.push_back(has_any ? TextOf(shown[measure.total]) : "");
      continue;
    }
    if (tournament.is_somebody_on_course) cells.push_back(HolesOnCourse(shown, tournament.holes));
    for (const char* const fact : measure.facts) {
      const Json& value = shown[fact];
      if (value.is_array()) {
        cells.push_back(has_score ? TextOf(value.back()) : "");
      } else {
        cells.push_back(TextOf(value));
      }
    }
    const Json& values = shown[measure.by_hole];
    const bool has_nines = std::string_view(measure.id) != "net" && !tournament.has_totals_only &&
                           tournament.holes == 18;
    for (std::size_t part = has_nines ? 3 : 1; part > 0; --part) {
      cells.push_back(has_score ? TextOf(values[values.size() - part]) : "");
    }
  }
  return rows;
}

// A name cell of a team ends with the names of its golfers, which the table of places also has.
void ExpectRows(const HtmlPage& page, const std::string& id, const std::vector<Cells>& expected) {
  const GumboNode* table = page.Find(id);
  ASSERT_NE(table, nullptr) << id;
  std::vector<Cells> rows = page.Rows(table);
  ASSERT_FALSE(rows.empty());
  rows.erase(rows.begin());
  ASSERT_EQ(rows.size(), expected.size()) << id;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ASSERT_GT(rows[i].size(), 1u);
    if (rows[i][1].starts_with(expected[i][1])) rows[i][1] = expected[i][1];
    // Numbers may be written with more decimals than in JSON.
    for (std::size_t c = 2; c < rows[i].size() && c < expected[i].size(); ++c) {
      if (rows[i][c] != expected[i][c] && !rows[i][c].empty() && !expected[i][c].empty() &&
          NumberOf(rows[i][c]) == NumberOf(expected[i][c])) {
        rows[i][c] = expected[i][c];
      }
    }
    EXPECT_EQ(rows[i], expected[i]) << id << ", row " << i + 1;
  }
}

TEST_F(PageTest, StandingsAreThoseOfTheJsonObjects) {
  const std::pair<const char*, const char*> kTiebreaks[] = {{"none", ""},
                                                            {"usga", "USGA"},
                                                            {"handicap", "HandicapHole"},
                                                            {"18-to-1", "18to1"},
                                                            {"1-to-18", "1to18"}};
  for (std::uint32_t seed = 1; seed <= 5; ++seed) {
    SCOPED_TRACE(seed);
    MakeDemo();
    RandomTournament tournament(seed);
    tournament.Write(folder);
    const auto& [option, key] = kTiebreaks[seed % 5];
    for (const Kind* kind : {&kPlayers, &kTeams}) {
      const HtmlPage page =
          Page(std::string(kind->what) + " --tournament 1 --round 2 --tiebreak " + option);
      const std::vector<Competitor> all = Competitors(*kind, 2);
      std::map<std::string, std::vector<const Competitor*>> groups;
      tournament.is_somebody_on_course = false;
      for (const Competitor& competitor : all) {
        const Json& shown = competitor.shown();
        tournament.is_somebody_on_course |= !HolesOnCourse(shown, tournament.holes).empty();
        const bool is_player = kind == &kPlayers;
        groups["all"].push_back(&competitor);
        groups["flight-" + TextOf(shown[is_player ? "TourFlight" : "Flight"])].push_back(
            &competitor);
        if (is_player) groups[shown["sex"] == "M" ? "men" : "ladies"].push_back(&competitor);
      }
      for (const auto& [id, group] : groups) {
        if (id != "all" && group.size() == all.size()) continue;
        for (const MeasureKeys& measure : kind->measures) {
          if (tournament.has_totals_only && !measure.lowest_first) continue;
          ExpectRows(page, id + "-round-" + measure.id,
                     ExpectedRows(*kind, measure, false, group, key, tournament));
          if (measure.total == nullptr) continue;
          ExpectRows(page, id + "-total-" + measure.id,
                     ExpectedRows(*kind, measure, true, group, key, tournament));
        }
      }
      EXPECT_EQ(page.parse_errors(), 0u);
    }
  }
}

Cells CsvCells(const std::string& line) {
  Cells cells(1);
  bool is_quoted = false;
  for (const char c : line) {
    if (c == '"') {
      is_quoted = !is_quoted;
    } else if (c == ',' && !is_quoted) {
      cells.emplace_back();
    } else {
      cells.back() += c;
    }
  }
  return cells;
}

// The table, CSV and JSON have the places of the page.
TEST_F(PageTest, PlacesOfTheOtherFormsAreThoseOfThePage) {
  RandomTournament tournament(8);
  tournament.Write(folder);
  const std::string words = "players --tournament 1 --round 2 --tiebreak handicap";
  const HtmlPage page = Page(words);
  std::map<std::string, std::string> places;  // by name
  const auto read = [&](const std::string& id) {
    for (const Cells& row : page.Rows(page.Find(id))) places[id + row[1]] = row[0];
  };
  for (const char* const id : {"all-round-net", "all-total-gross", "men-round-quota",
                               "ladies-round-quota", "flight-A-round-points"}) {
    read(id);
  }
  std::istringstream csv(In("results " + words + " --csv").out);
  std::string line;
  std::getline(csv, line);
  EXPECT_TRUE(
      line.starts_with("Name,Handicap,Out,In,Total,Net,Points,Place,Flight,Sex,Quota,"
                       "Total gross,Gross tiebreak,"))
      << line;
  const Cells headings = CsvCells(line);
  std::map<std::string, Cells> lines;  // by name
  while (std::getline(csv, line)) lines[CsvCells(line)[0]] = CsvCells(line);
  const auto cell = [&](const std::string& name, const std::string& heading) {
    const auto column = std::ranges::find(headings, heading) - headings.begin();
    return lines[name].at(static_cast<std::size_t>(column));
  };
  int compared = 0;
  for (const Json& object : JsonLines(In("--json results " + words).out)) {
    const std::string name = object["NameLF"];
    const auto expect = [&](const std::string& id, const Json& place, const std::string& heading) {
      const auto shown = places.find(id + name);
      if (shown == places.end()) return;
      EXPECT_EQ(TextOf(place), shown->second) << id << name;
      EXPECT_EQ(cell(name, heading), shown->second) << id << name;
      ++compared;
    };
    expect("all-round-net", object["Places"]["all"]["net"], "Net place");
    expect("all-total-gross", object["TotalPlaces"]["all"]["gross"], "Total gross place");
    expect("men-round-quota", object["Places"]["sex"]["quota"], "Quota place by sex");
    expect("ladies-round-quota", object["Places"]["sex"]["quota"], "Quota place by sex");
    expect("flight-A-round-points", object["Places"]["flight"]["points"], "Points place in flight");
  }
  EXPECT_GT(compared, 36);
}

// Compares a card with the arrays by hole of an object. `keys` contains a key for each row after
// the holes, or null for a row that has no array.
void ExpectCard(const HtmlPage& page, const GumboNode* nines, const Json& round,
                const std::vector<const char*>& keys) {
  const auto tables = page.All("table", nines);
  ASSERT_EQ(tables.size(), 2u);
  for (std::size_t nine = 0; nine < 2; ++nine) {
    const std::vector<Cells> rows = page.Rows(tables[nine]);
    ASSERT_GT(rows.size(), keys.size());
    for (std::size_t i = 0; i < keys.size(); ++i) {
      if (keys[i] == nullptr) continue;
      const Json& values = round[keys[i]];
      for (std::size_t hole = 0; hole < 9; ++hole) {
        EXPECT_EQ(rows[i + 1][hole + 1], TextOf(values[nine * 9 + hole])) << keys[i] << hole;
      }
      if (values.size() < 21) continue;
      const std::string& sum = rows[i + 1][10];
      EXPECT_EQ(NumberOf(sum), NumberOf(values[18 + nine])) << keys[i];
      if (nine == 0) continue;
      EXPECT_EQ(NumberOf(rows[i + 1][11]), NumberOf(values[20])) << keys[i];
    }
  }
}

TEST_F(PageTest, CardsAreThoseOfTheJsonObjects) {
  RandomTournament tournament(8);
  tournament.changes_teams = true;
  tournament.Write(folder);
  ASSERT_TRUE(tournament.holes == 18 && !tournament.has_totals_only);
  const struct {
    const Kind& kind;
    const char* id;
    std::vector<const char*> keys;
  } kCards[] = {
      {kPlayers,
       "player-",
       {"TourHolePar", "TourHoleStrokes", "TourScoreGross", "TourScoreNet", "TourPointsNet"}},
      {kTeams, "team-", {nullptr, nullptr, "ScoreGross", "ScoreNet", "PointsNet"}}};
  for (const auto& [kind, start, keys] : kCards) {
    const HtmlPage page = Page(std::string(kind.what) + " --tournament 1 --round 2");
    int compared = 0;
    for (const Competitor& competitor : Competitors(kind, 2)) {
      const std::string id = start + competitor.shown()[kind.number].dump();
      const std::size_t played =
          static_cast<std::size_t>(std::ranges::count_if(competitor.rounds, kind.has_score));
      const GumboNode* card = page.Find(id);
      ASSERT_EQ(card == nullptr, played == 0) << id;
      if (card == nullptr) continue;
      std::vector<const GumboNode*> nines;
      for (const GumboNode* each : page.All("div", card)) {
        if (HtmlPage::Attribute(each, "class") == "nines") nines.push_back(each);
      }
      ASSERT_EQ(nines.size(), played);
      for (const Json& round : competitor.rounds) {
        if (!kind.has_score(round)) continue;
        ExpectCard(page, nines.front(), round, keys);
        nines.erase(nines.begin());
        ++compared;
      }
    }
    EXPECT_GT(compared, 2);
  }
}

TEST_F(PageTest, StatisticsAreThoseOfTheScores) {
  RandomTournament tournament(8);
  tournament.Write(folder);
  const HtmlPage page = Page("players --tournament 1 --round 2");
  const std::vector<Competitor> players = Competitors(kPlayers, 2);
  std::vector<std::pair<double, int>> against_par;  // the average, by hole
  const std::vector<Cells> rows = page.Rows(page.Find("holes"));
  ASSERT_EQ(rows.size(), 22u);
  for (int hole = 1; hole <= 18; ++hole) {
    int count = 0;
    double gross = 0;
    double par = 0;
    for (const Competitor& player : players) {
      const auto at = static_cast<std::size_t>(hole) - 1;
      const int score = player.shown()["TourScoreGrossValue"][at];
      if (score < 1) continue;
      ++count;
      gross += score;
      par += player.shown()["TourHolePar"][at].get<int>();
    }
    const Cells& row = rows[static_cast<std::size_t>(hole)];
    EXPECT_EQ(row[1], std::to_string(count));
    EXPECT_NEAR(std::stod(row[2]), gross / count, 0.0051) << hole;
    against_par.emplace_back((gross - par) / count, hole);
  }
  std::ranges::stable_sort(against_par, std::greater<>(), &std::pair<double, int>::first);
  std::string described;
  int pictures = 0;
  for (const GumboNode* picture : page.All("svg")) {
    const std::string title = HtmlPage::Text(page.All("title", picture).at(0));
    const std::string text = HtmlPage::Text(page.All("desc", picture).at(0));
    EXPECT_FALSE(title.empty() || text.size() < 4) << title;
    if (title == "Holes against par") described = text;
    if (title != "Net") {
      ++pictures;
      continue;
    }
    // The distribution counts each player with a score.
    int counted = 0;
    for (std::size_t at = text.find(": "); at != std::string::npos; at = text.find(": ", at + 1)) {
      counted += std::stoi(text.substr(at + 2));
    }
    EXPECT_EQ(counted, std::ranges::count_if(players, [](const Competitor& player) {
                return kPlayers.has_score(player.shown());
              }));
  }
  EXPECT_GT(pictures, 10);
  EXPECT_TRUE(described.starts_with("Hole " + std::to_string(against_par[0].second) + ": "));
  EXPECT_NE(described.find(", Hole " + std::to_string(against_par[17].second) + ": "),
            std::string::npos);
}

// Names, texts and fonts of any bytes add no element and no rule to the page.
TEST_F(PageTest, HostileTextsStayTexts) {
  const std::string hostile = "</style><script>\"'&\x81\x01\r\n-->";
  Each<TournamentLayout>(folder, "X0001.Q9C",
                         [&](Record<TournamentLayout>& control) { control.Set<"Name">(hostile); });
  Each<PlayerLayout>(folder, "QBGOLFER.Q9D",
                     [&](Record<PlayerLayout>& golfer) { golfer.Set<"NameLast">("<b>\x90&lt;"); });
  Each<TeamLayout>(folder, "X0001.Q9T",
                   [&](Record<TeamLayout>& team) { team.Set<"TeamName">(hostile); });
  std::string fonts = folder.Read("i/qbdata/Two best nets.TR2");
  const std::size_t name = fonts.find('"') + 1;
  fonts.replace(name, fonts.find('"', name) - name, "A';}</style><b>\\");
  folder.Write("i/qbdata/Two best nets.TR2", fonts);
  for (const std::string words : {"players", "teams", "custom --layout \"Two best nets\""}) {
    const HtmlPage page = Page(words + " --tournament 1");
    EXPECT_EQ(page.parse_errors(), 0u);
    std::set<std::string> tags;
    for (const GumboNode* element : page.All("")) {
      tags.insert(HtmlPage::Tag(element));
      for (const char* const attribute : {"onload", "src", "style"}) {
        EXPECT_EQ(HtmlPage::Attribute(element, attribute), "");
      }
      const std::string link = HtmlPage::Attribute(element, "href");
      EXPECT_TRUE(link.empty() || page.Find(link.substr(1)) != nullptr) << link;
    }
    for (const char* const tag : {"script", "b", "link", "img", "iframe"}) {
      EXPECT_FALSE(tags.contains(tag)) << tag;
    }
    EXPECT_EQ(page.All("style").size(), 1u);
    const std::string style = HtmlPage::Text(page.All("style")[0]);
    EXPECT_EQ(style.find("url("), std::string::npos);
    EXPECT_EQ(style.find("@import"), std::string::npos);
  }
  const HtmlPage players = Page("players --tournament 1");
  EXPECT_EQ(HtmlPage::Text(players.All("h1").at(0)),
            "</style><script>\"'&\xEF\xBF\xBD\xEF\xBF\xBD  -->");
  EXPECT_TRUE(
      players.Rows(players.Find("all-round-net"))[1][1].starts_with("<b>\xEF\xBF\xBD&lt;, "));
}

TEST_F(PageTest, ACustomPageHasTheLayout) {
  std::string text = folder.Read("i/qbdata/Two best nets.TR2");
  std::istringstream old(text);
  std::vector<std::string> lines;
  for (std::string line; std::getline(old, line);) lines.push_back(line);
  lines[0] = "\"Times New Roman\",22,3\r";
  lines[1] =
      "\"Cup of (tournament name)\",\"(Current Round - <Round#> on <RoundDate>)\","
      "\"(No line)\",\"\",\"\"\r";
  lines[2] = "\"No. 7\"\r";
  for (std::size_t header = 3; header < 6; ++header) lines[header] = "1\r";
  const auto write = [&] {
    text.clear();
    for (const std::string& line : lines) text += line + "\n";
    folder.Write("i/qbdata/Two best nets.TR2", text);
  };
  write();
  const std::string words = "custom --layout \"Two best nets\" --tournament 1 --round 2";
  const auto lines_of = [](const HtmlPage& page) {
    std::vector<std::string> texts;
    for (const GumboNode* line : page.All("", page.All("header").at(0))) {
      if (HtmlPage::Tag(line) != "header") texts.push_back(HtmlPage::Text(line));
    }
    return texts;
  };
  const HtmlPage page = Page(words);
  EXPECT_EQ(lines_of(page).size(), 4u);
  EXPECT_EQ(lines_of(page),
            (std::vector<std::string>{"Cup of Autumn Medal", "Current Round - 2 on 09/15/24",
                                      "No. 7", "05/13/26"}));
  const std::string style = HtmlPage::Text(page.All("style").at(0));
  EXPECT_NE(style.find("header h1,header p{font-family:\"Times New Roman\",sans-serif;"
                       "font-size:22.00pt;font-weight:bold;font-style:italic}"),
            std::string::npos);
  EXPECT_NE(style.find("counter(page)"), std::string::npos);
  for (std::size_t item = 3; item < 6; ++item) lines[item] = "0\r";
  write();
  const HtmlPage plain = Page(words);
  EXPECT_EQ(lines_of(plain).size(), 2u);
  EXPECT_EQ(HtmlPage::Text(plain.All("style").at(0)).find("counter(page)"), std::string::npos);
  // The places are those of the JSON objects.
  for (const Json& team : JsonLines(In("--json results " + words).out)) {
    EXPECT_EQ(team["Places"]["all"]["scores"], team["Positions"][1][2]);
    EXPECT_EQ(team["TotalPlaces"]["all"]["points"], team["PointsPositions"][1][3]);
    for (const Cells& row : plain.Rows(plain.Find("all-total-gross"))) {
      if (!row[1].starts_with(team["TeamName"].get<std::string>())) continue;
      EXPECT_EQ(row[0], team["Positions"][1][3].dump());
      EXPECT_EQ(row.back(), team["Scores"][1][3].dump());
    }
  }
}

TEST_F(PageTest, ATeamWithoutARoundHasNoPlaceInTheTotals) {
  Each<TournamentPlayerLayout>(folder, "X0001.Q9G", [](Record<TournamentPlayerLayout>& entry) {
    for (int hole = 1; hole <= 18 && entry.Get<"TourTeamOn">(2) == 1; ++hole) {
      entry.Set<"TourScoreGross">({hole, 2}, 0);
    }
  });
  const std::string words = "custom --layout \"Two best nets\" --tournament 1 --round 2";
  const Json team = JsonLines(In("--json results " + words).out).at(0);
  EXPECT_EQ(team["TotalPlaces"]["all"]["scores"], nullptr);
  const HtmlPage page = Page(words);
  const Cells last = page.Rows(page.Find("all-total-gross")).back();
  EXPECT_EQ(last[0], "");
  EXPECT_TRUE(last[1].starts_with("Team #1"));
  EXPECT_EQ(last.back(), team["Scores"][0][2].dump());
}

// A page that would be too large loses the cards of earlier rounds first, then all cards, and then
// the flights.
TEST(PageSizeTest, ALargePageLosesParts) {
  ResultsPage page;
  page.header = {"Cup"};
  page.round = 2;
  page.tables = {{Span::kRound, Measure::kGross, "Gross", {}}};
  for (const char* const flight : {"A", "B"}) {
    ResultEntry& entry = page.entries.emplace_back();
    entry.flight = flight;
    for (const int round : {1, 2}) {
      const CardRow row = SummedCardRow("Gross", [](int) { return 4; });
      entry.cards.push_back({round, {"Course of round " + std::to_string(round)}, {row}});
    }
  }
  std::size_t size = 1'000'000;
  for (int extent = 0; extent < 4; ++extent) {
    const WrittenPage written = WriteResultsPage(page, size);
    ASSERT_EQ(written.extent, static_cast<PageExtent>(extent));
    EXPECT_LE(written.html.size(), size);
    const auto has = [&](const char* text) { return written.html.find(text) != std::string::npos; };
    EXPECT_EQ(has("Course of round 1"), extent < 1);
    EXPECT_EQ(has("Course of round 2"), extent < 2);
    EXPECT_EQ(has("Flight A"), extent < 3);
    EXPECT_EQ(has("The page would be too large with "), extent > 0);
    size = written.html.size() - 1;
  }
  EXPECT_EQ(WriteResultsPage(page, size).html, "");
}

TEST_F(PageTest, FilesThatAreNoPagesAreNotReplaced) {
  folder.Write("page.txt", "kept");
  folder.Write("page.HTM", "old");
  folder.MakeFolder("f.html");
  const std::string words = "results players --tournament 1 --html ";
  const struct {
    const char* target;
    int code;
    const char* problem;
  } kCases[] = {{"page.txt", 1, "has no extension .html or .htm"},
                {"f.html", 1, "is a folder, a link or a device"},
                {"i/qbdata/p.html", 1, "which contains golf data"},
                {"X0001.Q9G", 1, "has the name of golf data"},
                {"none/p.html", 1, "There is no folder none."},
                {"p.html --csv", 2, "--csv"},
                {"page.HTM", 0, ""},
                {"new.html", 0, ""}};
  for (const auto& [target, code, problem] : kCases) {
    const Ended ended = In(words + target);
    EXPECT_EQ(ended.code, code) << target << ended.problems;
    EXPECT_NE(ended.problems.find(problem), std::string::npos) << ended.problems;
  }
  EXPECT_EQ(folder.Read("page.txt"), "kept");
  EXPECT_TRUE(folder.Read("page.HTM").starts_with("<!DOCTYPE html>"));
  EXPECT_EQ(In("results players --tournament 1 --watch").code, 2);
  Each<TournamentLayout>(folder, "X0001.Q9C",
                         [](Record<TournamentLayout>& control) { control.Set<"ActiveRound">(0); });
  const Ended ended = In(words + "new.html");
  EXPECT_EQ(ended.code, 1);
  EXPECT_NE(ended.problems.find("Choose a round with --round."), std::string::npos);
}

}  // namespace
}  // namespace golf
