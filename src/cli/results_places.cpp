#include "cli/results_places.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/number_text.h"
#include "scoring/tournament_class.h"

namespace golf {
namespace {

using Kind = StandingsGroup::Kind;

constexpr std::string_view kKindKeys[] = {"all", "flight", "sex"};
constexpr std::string_view kKindWords[] = {"", " in flight", " by sex"};

// Returns the name with a capital letter, after a word if it is not empty.
std::string Heading(const std::string& word, const std::string& name) {
  std::string heading = word.empty() ? name : word + " " + name;
  heading.front() = static_cast<char>(heading.front() - 'a' + 'A');
  return heading;
}

}  // namespace

ResultPlaces::ResultPlaces(std::vector<ResultEntry> entries, std::vector<PlacedMeasure> measures,
                           const ResultsRun& run)
    : entries_(std::move(entries)),
      measures_(std::move(measures)),
      places_(PlacesOf(entries_, run.state.Tournament().PositionOption())),
      is_for_people_(run.form == ResultsForm::kTable),
      tiebreak_(run.request.tiebreak) {
  for (std::size_t i = 0; i < entries_.size(); ++i) index_.emplace(entries_[i].number, i);
}

Json ResultPlaces::PlacesOfSpan(std::size_t entry, Span span) const {
  Json places = Json::object();
  for (const Kind kind : kGroupKinds) {
    if (kind == Kind::kSex && entries_[entry].sex.empty()) continue;
    Json& of_kind = places[std::string(kKindKeys[static_cast<std::size_t>(kind)])];
    for (const PlacedMeasure& measure : measures_) {
      if (span == Span::kAllRounds && !measure.has_totals) continue;
      const std::optional<int>& place = places_[entry][kind][span][measure.measure];
      of_kind[measure.name] = place ? Json(*place) : Json(nullptr);
    }
  }
  return places;
}

Json ResultPlaces::KeysOf(int number) const {
  const auto found = index_.find(number);
  if (found == index_.end()) return Json::object();
  return {{"Places", PlacesOfSpan(found->second, Span::kRound)},
          {"TotalPlaces", PlacesOfSpan(found->second, Span::kAllRounds)}};
}

// Returns true if the table has a column for flights or sexes. A table for people has it only if
// the entries have several of them.
bool ResultPlaces::HasColumn(Kind kind) const {
  const auto member = kind == Kind::kFlight ? &ResultEntry::flight : &ResultEntry::sex;
  std::set<std::string> keys;
  for (const ResultEntry& entry : entries_) keys.insert(entry.*member);
  return is_for_people_ ? keys.size() > 1 : kind == Kind::kFlight || !keys.contains("");
}

void ResultPlaces::AddScoreColumns(std::vector<Column>& columns) const {
  const auto add = [&](std::string heading, auto text) {
    columns.push_back(
        {std::move(heading), [this, text](std::size_t entry) { return text(entries_[entry]); }});
  };
  if (HasColumn(Kind::kFlight))
    add("Flight", [](const ResultEntry& entry) { return entry.flight; });
  if (HasColumn(Kind::kSex)) add("Sex", [](const ResultEntry& entry) { return entry.sex; });
  const auto add_scores = [&](Span span, const PlacedMeasure& of) {
    const Measure measure = of.measure;
    add(span == Span::kRound ? Heading("", of.name) : Heading("total", of.name),
        [=](const ResultEntry& entry) { return entry.scores[span][measure].total; });
  };
  for (const PlacedMeasure& measure : measures_) {
    if (measure.measure == Measure::kQuota) add_scores(Span::kRound, measure);
  }
  for (const PlacedMeasure& measure : measures_) {
    if (measure.has_totals && !is_for_people_) add_scores(Span::kAllRounds, measure);
    if (tiebreak_ == Tiebreak::kNone || !RanksLowestFirst(measure.measure)) continue;
    add(Heading("", measure.name + " tiebreak"), [of = measure.measure](const ResultEntry& entry) {
      return entry.scores[Span::kRound][of].ranked.tiebreak;
    });
  }
}

void ResultPlaces::AddPlaceColumns(Span span, Kind kind, std::vector<Column>& columns) const {
  for (const PlacedMeasure& of : measures_) {
    if (span == Span::kAllRounds && !of.has_totals) continue;
    const std::string words(kKindWords[static_cast<std::size_t>(kind)]);
    columns.push_back({Heading(span == Span::kAllRounds ? "total" : "", of.name + " place" + words),
                       [this, span, kind, measure = of.measure](std::size_t entry) {
                         return TextOrEmpty(places_[entry][kind][span][measure]);
                       }});
  }
}

std::vector<ResultPlaces::Column> ResultPlaces::Columns() const {
  std::vector<Column> columns;
  AddScoreColumns(columns);
  for (const Span span : kSpans) {
    if (is_for_people_ && span == Span::kAllRounds) continue;
    for (const Kind kind : kGroupKinds) {
      const bool is_shown = kind == Kind::kAll || (!is_for_people_ && HasColumn(kind));
      if (is_shown) AddPlaceColumns(span, kind, columns);
    }
  }
  return columns;
}

void ResultPlaces::AddTo(StandingsTable& table) const {
  const std::vector<Column> columns = Columns();
  for (const Column& column : columns) table.headings.push_back(column.heading);
  for (StandingsRow& row : table.rows) {
    const auto found = index_.find(row.number);
    for (const Column& column : columns) {
      row.cells.push_back(found == index_.end() ? "" : column.text(found->second));
    }
  }
}

}  // namespace golf
