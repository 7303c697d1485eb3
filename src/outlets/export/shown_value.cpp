#include "outlets/export/shown_value.h"

#include <cmath>
#include <string>

#include "core/code_page.h"
#include "core/date_value.h"
#include "core/little_endian.h"
#include "core/text.h"
#include "outlets/field_values.h"

namespace golf {
namespace {

constexpr std::string_view kZerosAndBlanks("\0 ", 2);
constexpr int kSecondsADay = 86400;

void AddHexUnless(ExportRow& row, bool is_exact, std::string_view bytes) {
  is_exact ? row.AddNull() : row.AddText(HexText(bytes));
}

void AddNullAndHex(ExportRow& row, std::string_view bytes) {
  row.AddNull();
  row.AddText(HexText(bytes));
}

void AddDate(ExportRow& row, DateValue date, std::string_view bytes) {
  if (date == 0 && IsBlankBytes(bytes)) {
    row.AddNull();
    return row.AddNull();
  }
  if (date == 0 || !IsDate(date)) return AddNullAndHex(row, bytes);
  const CivilTime civil = CivilFromDate(date);
  // The last second of the last year is rounded up.
  if (civil.year > 9999) return AddNullAndHex(row, bytes);
  const bool is_day = date == std::trunc(date);
  row.AddText(FormatPicture(civil, is_day ? "yyyy-MM-dd" : "yyyy-MM-dd'T'HH:mm:ss"));
  AddHexUnless(row, DateFromCivil(civil) == date, bytes);
}

void AddTime(ExportRow& row, float time, std::string_view bytes) {
  if (!(time >= 0 && time < 1)) return AddNullAndHex(row, bytes);
  const CivilTime civil = CivilFromDate(time);
  const int seconds = (civil.hour * 60 + civil.minute) * 60 + civil.second;
  const bool is_next_day = seconds == 0 && time > 0.5f;  // the last second is rounded up
  row.AddText(is_next_day ? "23:59:59" : FormatPicture(civil, "HH:mm:ss"));
  AddHexUnless(row, static_cast<float>(static_cast<double>(seconds) / kSecondsADay) == time, bytes);
}

void AddMoney(ExportRow& row, std::int64_t ten_thousandths) {
  constexpr std::uint64_t kScale = 10000;
  const bool is_negative = ten_thousandths < 0;
  const auto bits = static_cast<std::uint64_t>(ten_thousandths);
  const std::uint64_t amount = is_negative ? ~bits + 1 : bits;
  const std::string decimals = std::to_string(kScale + amount % kScale).substr(1);
  std::string text = (is_negative ? "-" : "") + std::to_string(amount / kScale) + '.' + decimals;
  for (int i = 0; i < 2 && text.ends_with('0'); ++i) text.pop_back();
  row.AddText(text);
}

void AddReal(ExportRow& row, double number, std::string_view bytes) {
  AddRealOrNull(row, number);
  AddHexUnless(row, std::isfinite(number), bytes);
}

void AddText(ExportRow& row, std::string_view bytes) {
  row.AddText(IsBlankBytes(bytes) ? "" : Utf8FromText(TrimRight(bytes)));
}

std::int64_t WholeNumber(FieldType type, std::string_view bytes) {
  if (type == FieldType::kByte) return static_cast<unsigned char>(bytes[0]);
  if (type == FieldType::kInt16) return LoadLittleEndian<std::int16_t>(bytes.data());
  if (type == FieldType::kInt32) return LoadLittleEndian<std::int32_t>(bytes.data());
  return LoadLittleEndian<std::int64_t>(bytes.data());
}

void AddStored(ExportRow& row, FieldType type, std::string_view bytes) {
  switch (type) {
    case FieldType::kSingle:
      return AddReal(row, NumberOfSingle(LoadLittleEndian<float>(bytes.data())), bytes);
    case FieldType::kDouble:
      return AddReal(row, LoadLittleEndian<double>(bytes.data()), bytes);
    case FieldType::kDate:
      return AddDate(row, LoadLittleEndian<double>(bytes.data()), bytes);
    case FieldType::kCurrency:
      return AddMoney(row, WholeNumber(type, bytes));
    case FieldType::kText:
      return AddText(row, bytes);
    default:
      row.AddInteger(WholeNumber(type, bytes));
  }
}

}  // namespace

void AddRealOrNull(ExportRow& row, double number) {
  std::isfinite(number) ? row.AddReal(number) : row.AddNull();
}

bool IsBlankBytes(std::string_view bytes) {
  return bytes.find_first_not_of(kZerosAndBlanks) == std::string_view::npos;
}

void AddShownValue(ExportRow& row, FieldType type, FieldForm form, std::string_view bytes) {
  switch (form) {
    case FieldForm::kBoolean:
      return row.AddBoolean(WholeNumber(type, bytes) != 0);
    case FieldForm::kBitZero:
      return row.AddBoolean((WholeNumber(type, bytes) & 1) != 0);
    case FieldForm::kTourFlags:
      row.AddBoolean((WholeNumber(type, bytes) & 1) != 0);
      return row.AddBoolean((WholeNumber(type, bytes) & 2) != 0);
    case FieldForm::kDay:
      return AddDate(row, LoadLittleEndian<float>(bytes.data()), bytes);
    case FieldForm::kTime:
      return AddTime(row, LoadLittleEndian<float>(bytes.data()), bytes);
    case FieldForm::kStored:
      return AddStored(row, type, bytes);
  }
}

}  // namespace golf
