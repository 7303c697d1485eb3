// Tests how the export shows the values of fields.

#include "outlets/export/shown_value.h"

#include <gtest/gtest.h>

#include <charconv>
#include <limits>
#include <string>

#include "core/little_endian.h"
#include "outlets/export/install_tables.h"
#include "outlets/file_kinds.h"

namespace golf {
namespace {

template <class T>
std::string Bytes(T value) {
  std::string bytes(sizeof value, '\0');
  StoreLittleEndian(bytes.data(), value);
  return bytes;
}

// Returns the cells of a row with "|" between them.
std::string Shown(FieldType type, FieldForm form, const std::string& bytes) {
  ExportRow row;
  AddShownValue(row, type, form, bytes);
  std::string text;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (i > 0) text += '|';
    if (row.kind(i) == CellKind::kNull) text += "null";
    if (row.kind(i) == CellKind::kText) text += row.text(i);
    if (row.kind(i) == CellKind::kInteger) text += std::to_string(row.integer(i));
    if (row.kind(i) == CellKind::kBoolean) text += row.integer(i) != 0 ? "true" : "false";
    if (row.kind(i) != CellKind::kReal) continue;
    char digits[32];
    text.append(digits, std::to_chars(digits, std::end(digits), row.real(i)).ptr);
  }
  return text;
}

TEST(ShownValueTest, ValuesHaveTheirForms) {
  constexpr auto kStored = FieldForm::kStored;
  constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
  const struct {
    FieldType type;
    FieldForm form;
    std::string bytes;
    const char* shown;
  } kCases[] = {
      {FieldType::kByte, kStored, "\xFF", "255"},
      {FieldType::kInt16, kStored, Bytes<std::int16_t>(-2), "-2"},
      {FieldType::kInt32, kStored, Bytes<std::int32_t>(-70000), "-70000"},
      {FieldType::kSingle, kStored, Bytes(70.6f), "70.6|null"},
      {FieldType::kSingle, kStored, Bytes(-2.5f), "-2.5|null"},
      {FieldType::kSingle, kStored, Bytes(std::numeric_limits<float>::infinity()), "null|0000807f"},
      {FieldType::kDouble, kStored, Bytes(0.1), "0.1|null"},
      {FieldType::kDouble, kStored, Bytes(kNan), "null|000000000000f87f"},
      {FieldType::kDate, kStored, Bytes(0.0), "null|null"},
      {FieldType::kDate, kStored, Bytes(-0.0), "null|0000000000000080"},
      {FieldType::kDate, kStored, Bytes(38108.0), "2004-05-01|null"},
      {FieldType::kDate, kStored, Bytes(-1.0), "1899-12-29|null"},
      {FieldType::kDate, kStored, Bytes(38108.0 + 52200.0 / 86400), "2004-05-01T14:30:00|null"},
      {FieldType::kDate, kStored, Bytes(38108.3), "2004-05-01T07:12:00|null"},
      {FieldType::kDate, kStored, Bytes(38108.300001), "2004-05-01T07:12:00|79b29b99899be240"},
      {FieldType::kDate, kStored, Bytes(2958465.9999999), "null|29ffffff40924641"},
      {FieldType::kDate, kStored, Bytes(2958466.0), "null|0000000041924641"},
      {FieldType::kDate, kStored, Bytes(kNan), "null|000000000000f87f"},
      {FieldType::kCurrency, kStored, Bytes<std::int64_t>(0), "0.00"},
      {FieldType::kCurrency, kStored, Bytes<std::int64_t>(125000), "12.50"},
      {FieldType::kCurrency, kStored, Bytes<std::int64_t>(-1), "-0.0001"},
      {FieldType::kCurrency, kStored, Bytes(std::numeric_limits<std::int64_t>::min()),
       "-922337203685477.5808"},
      {FieldType::kText, kStored, " M\xFCller\x81\0 ", " M\xC3\xBCller\xC2\x81"},
      {FieldType::kText, kStored, std::string("\0 \0", 3), ""},
      {FieldType::kByte, FieldForm::kBoolean, "\xFF", "true"},
      {FieldType::kInt16, FieldForm::kBoolean, Bytes<std::int16_t>(0), "false"},
      {FieldType::kInt16, FieldForm::kBitZero, Bytes<std::int16_t>(2), "false"},
      {FieldType::kInt16, FieldForm::kBitZero, Bytes<std::int16_t>(-1), "true"},
      {FieldType::kInt16, FieldForm::kTourFlags, Bytes<std::int16_t>(2), "false|true"},
      {FieldType::kSingle, FieldForm::kDay, Bytes(45414.0f), "2024-05-02|null"},
      {FieldType::kSingle, FieldForm::kTime, Bytes(static_cast<float>(8.5 / 24)), "08:30:00|null"},
      {FieldType::kSingle, FieldForm::kTime, Bytes(0.999999f), "23:59:59|efff7f3f"},
      {FieldType::kSingle, FieldForm::kTime, Bytes(1.0f), "null|0000803f"},
      {FieldType::kSingle, FieldForm::kTime, Bytes(0.123456f), "02:57:47|80d6fc3d"},
  };
  for (const auto& row : kCases) {
    EXPECT_EQ(Shown(row.type, row.form, row.bytes), row.shown) << row.shown;
  }
}

}  // namespace
}  // namespace golf
