#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/json_text.h"
#include "core/field.h"

namespace golf {

// Write the fields of a record for people and programs. Texts lose the blanks that fill them, bytes
// without a name become hex text, and everything is UTF-8.

// Returns a field's name, or "bytes@OFFSET".
std::string FieldLabel(const Field& field);

// Returns the value of a field. A table becomes arrays nested in the order of its indexes. NaN and
// the infinities become null.
Json FieldJson(const Field& field, std::string_view record);

// Return each element of a field, the last index changing fastest. A name is "HolePar(1,18)".
std::vector<std::string> ElementNames(const Field& field);
std::vector<std::string> ElementTexts(const Field& field, std::string_view record);

// One element of a field, numbered as above from 0: its name, its value as in FieldJson, and its
// text in one line for people. Long bytes without a name are cut.
std::string ElementName(const Field& field, std::size_t nth);
Json ElementJson(const Field& field, std::string_view record, std::size_t nth);
std::string PlainElement(const Field& field, std::string_view record, std::size_t nth);
// The indexes of an element.
std::vector<int> IndexesOf(const Field& field, std::size_t nth);
// "1,18"
std::string IndexList(const std::vector<int>& indexes);

// Returns lines of a label and values: one for each value of the first index if the field is a
// table of two indexes, and one line for any other field.
std::vector<std::pair<std::string, std::string>> PlainLines(const Field& field,
                                                            std::string_view record);

}  // namespace golf
