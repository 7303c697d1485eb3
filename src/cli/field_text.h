#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/json_text.h"
#include "core/field.h"
#include "outlets/field_values.h"

namespace golf {

// These functions convert the fields of a record for people and programs. Texts lose their trailing
// blanks, bytes without a name become hex text, and the output is UTF-8.

// Returns the value of a field. A table becomes nested arrays in the order of its indexes. NaN and
// the infinities become null.
Json FieldJson(const Field& field, std::string_view record);

// These return the name, such as "HolePar(1,18)", or the text of each element of a field. The last
// index changes fastest.
std::vector<std::string> ElementNames(const Field& field);
std::vector<std::string> ElementTexts(const Field& field, std::string_view record);

// Returns the value of one element as in FieldJson. `nth` counts the elements in the order above,
// from 0.
Json ElementJson(const Field& field, std::string_view record, std::size_t nth);

// Returns lines that consist of a label and values. A table of two indexes has a line for each
// value of the first index. Any other field has one line.
std::vector<std::pair<std::string, std::string>> PlainLines(const Field& field,
                                                            std::string_view record);

}  // namespace golf
