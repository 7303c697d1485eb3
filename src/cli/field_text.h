#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/json_text.h"
#include "core/field.h"

namespace golf {

// Fields of a record for people and programs. Texts come without the blanks that fill them, bytes
// without a name as hex text; everything is UTF-8.

// A field's name, or "bytes@OFFSET".
std::string FieldLabel(const Field& field);

// A value, or for a table arrays nested in the order of its indexes. NaN and the infinities are
// null.
Json FieldJson(const Field& field, std::string_view record);

// Each element of a field in the order of its indexes, the last one fastest: "HolePar(1,18)".
std::vector<std::string> ElementNames(const Field& field);
std::vector<std::string> ElementTexts(const Field& field, std::string_view record);

// A line for each value of the first index of a table of two, one line for any other field: its
// label and its values.
std::vector<std::pair<std::string, std::string>> PlainLines(const Field& field,
                                                            std::string_view record);

}  // namespace golf
