#pragma once

#include <map>
#include <span>
#include <string>
#include <vector>

#include "cli/json_text.h"
#include "cli/results_command.h"
#include "outlets/results/standings.h"

namespace golf {

// Describes a measure of standings. Texts are lower case, such as "net".
struct PlacedMeasure {
  Measure measure;
  std::string name;
  bool has_totals;  // there is a total of all rounds
};

// Contains the places of the players or teams that a command shows.
class ResultPlaces {
 public:
  ResultPlaces(std::vector<ResultEntry> entries, std::vector<PlacedMeasure> measures,
               const ResultsRun& run);

  const std::vector<ResultEntry>& entries() const { return entries_; }

  // Returns an object with the places of the entry with this number. The object is empty if there
  // is no such entry.
  Json KeysOf(int number) const;
  // Adds columns to the table: the flight, the sex, the scores that it does not have, the keys of
  // the tiebreak and the places. In the form kTable it adds no totals, and only the places of the
  // round among all entries.
  void AddTo(StandingsTable& table) const;

 private:
  struct Column {
    std::string heading;
    std::function<std::string(std::size_t entry)> text;
  };
  Json PlacesOfSpan(std::size_t entry, Span span) const;
  bool HasColumn(StandingsGroup::Kind kind) const;
  std::vector<Column> Columns() const;
  void AddScoreColumns(std::vector<Column>& columns) const;
  void AddPlaceColumns(Span span, StandingsGroup::Kind kind, std::vector<Column>& columns) const;

  std::vector<ResultEntry> entries_;
  std::vector<PlacedMeasure> measures_;
  std::vector<EntryPlaces> places_;
  std::map<int, std::size_t> index_;  // by the number of the entry
  bool is_for_people_;                // the form is kTable
  Tiebreak tiebreak_;
};

}  // namespace golf
