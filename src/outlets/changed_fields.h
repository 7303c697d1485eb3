#pragma once

#include <span>
#include <string>
#include <vector>

#include "history/record_changes.h"
#include "history/undo.h"
#include "outlets/install_reader.h"

namespace golf {

// Contains a field of a record, or consecutive elements of a table, with the values of two states
// of the record. All texts are in code page 1252.
struct ChangedField {
  std::string name;    // "Handicap(2)"; "TourScoreGross(1), holes 10 to 18"
  std::string before;  // "-" if the record does not exist
  std::string after;
};

// Returns the elements whose bytes differ. If the record is new or removed, missing bytes count as
// zeros, and a text of NULs equals a blank text.
std::vector<FieldElement> ChangedElements(const RecordChange& change);

// Returns a line for each of the elements. Consecutive elements of a table share a line. An empty
// record does not exist.
std::vector<ChangedField> DescribeElements(std::span<const FieldElement> elements,
                                           std::string_view before, std::string_view after,
                                           std::string_view date_format);

// Describes the changes of records field by field. A score history is described by the scores that
// were added and removed.
class ChangeDescriber {
 public:
  explicit ChangeDescriber(SharedState& state) : reader_(state) {}

  // Returns the fields of one change in the order of the record, or one line that says that only
  // the filling of unused bytes changes. Returns none for a change of a file as a whole. An added
  // record has no values before, and a removed one has none after.
  std::vector<ChangedField> FieldsOf(const RecordChange& change);

 private:
  std::vector<ChangedField> ScoresOf(const RecordChange& change);
  std::string ScoreText(std::string_view file, const std::string& score);

  InstallReader reader_;
};

}  // namespace golf
