#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/field.h"

namespace golf {

// A stored amount of money is the amount times this factor.
inline constexpr double kCurrencyScale = 10000;

// These functions describe the elements of a field as texts in code page 1252. `nth` counts the
// elements from 0; the last index varies fastest.

// Returns a field's name, or "bytes@OFFSET" if it has none.
std::string FieldLabel(const Field& field);
// Returns the indexes of an element.
std::vector<int> IndexesOf(const Field& field, std::size_t nth);
// Returns indexes as a text such as "1,18".
std::string IndexList(const std::vector<int>& indexes);
// Returns the name of an element, such as "HolePar(1,18)".
std::string ElementName(const Field& field, std::size_t nth);

std::string HexText(std::string_view bytes);
// Returns bytes as hex text. Long ones are cut.
std::string ShortHexText(std::string_view bytes);

// Returns a value as the shortest text that identifies it. Texts lose their trailing blanks. NaN
// and the infinities become an empty text.
std::string ValueText(const FieldValue& value);

// Returns the shortest decimal number that identifies a single, as a double. Returns a value that
// is no number unchanged.
double NumberOfSingle(float single);

// Returns an element in the form in which the siblings show it: a date in `date_format`, a plus
// handicap with a plus sign, an amount of money with its decimals, a text in quotes.
std::string ShownElement(const Field& field, std::string_view record, std::size_t nth,
                         std::string_view date_format);

}  // namespace golf
