#pragma once

#include <cstdint>
#include <string_view>

#include "core/field.h"
#include "outlets/export/export_row.h"

namespace golf {

// Describes how the value of a field is shown.
enum class FieldForm : std::uint8_t {
  kStored,     // by its type
  kBoolean,    // true if it is not 0
  kBitZero,    // a boolean in bit 0
  kTourFlags,  // two booleans, in the bits 0 and 1
  kDay,        // a number of days since 30 December 1899
  kTime,       // a fraction of a day
};

// Returns true if the bytes consist of zeros and blanks.
bool IsBlankBytes(std::string_view bytes);

// Adds the value that is stored in `bytes`:
// - A text loses its trailing blanks. Zeros and blanks only are an empty text.
// - An amount of money is a text such as "12.50", with two to four decimals.
// - A date is a text such as "2004-05-01", or "2004-05-01T14:30:00" with a time of day, and a time
//   is a text such as "14:30:00". The date 0 is null, since the programs store it for no date.
// - The hex text of the bytes, or null, follows a real number, a date and a time. It is not null if
//   the bytes are no number or no date, or if a date or a time is not shown exactly.
void AddShownValue(ExportRow& row, FieldType type, FieldForm form, std::string_view bytes);

// Adds null for a value that is no number.
void AddRealOrNull(ExportRow& row, double number);

}  // namespace golf
