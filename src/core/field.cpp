#include "core/field.h"

#include <algorithm>

#include "core/little_endian.h"
#include "core/numbered_error.h"

namespace golf {
namespace {

[[noreturn]] void FailSubscript(const Field& field) {
  throw NumberedError(ErrorNumber::kSubscript,
                      "An index of " + std::string(field.name) + " is out of its range.");
}

}  // namespace

std::size_t Field::OffsetOf(std::span<const int> indexes) const {
  if (indexes.size() != rank) FailSubscript(*this);
  std::size_t at = offset;
  for (std::size_t i = 0; i < rank; ++i) {
    const std::int64_t position = std::int64_t{indexes[i]} - dimensions[i].base;
    if (position < 0 || position >= dimensions[i].count) FailSubscript(*this);
    at += static_cast<std::size_t>(position) * strides[i];
  }
  return at;
}

FieldValue ReadFieldValue(const Field& field, std::string_view record, std::size_t offset) {
  const char* at = record.data() + offset;
  switch (field.type) {
    case FieldType::kByte:
      return std::int64_t{LoadLittleEndian<std::uint8_t>(at)};
    case FieldType::kInt16:
      return std::int64_t{LoadLittleEndian<std::int16_t>(at)};
    case FieldType::kInt32:
      return std::int64_t{LoadLittleEndian<std::int32_t>(at)};
    case FieldType::kSingle:
      return LoadLittleEndian<float>(at);
    case FieldType::kDouble:
    case FieldType::kDate:
      return LoadLittleEndian<double>(at);
    case FieldType::kCurrency:
      return LoadLittleEndian<std::int64_t>(at);
    case FieldType::kText:
      break;
  }
  return std::string(record.substr(offset, field.width));
}

void FillField(const Field& field, std::span<char> record, double number) {
  for (std::size_t n = 0; n < field.Count(); ++n) {
    char* at = record.data() + field.OffsetOfNth(n);
    switch (field.type) {
      case FieldType::kByte:
        StoreLittleEndian(at, static_cast<std::uint8_t>(number));
        break;
      case FieldType::kInt16:
        StoreLittleEndian(at, static_cast<std::int16_t>(number));
        break;
      case FieldType::kInt32:
        StoreLittleEndian(at, static_cast<std::int32_t>(number));
        break;
      case FieldType::kSingle:
        StoreLittleEndian(at, static_cast<float>(number));
        break;
      case FieldType::kDouble:
      case FieldType::kDate:
        StoreLittleEndian(at, number);
        break;
      case FieldType::kCurrency:
        StoreLittleEndian(at, static_cast<std::int64_t>(number));
        break;
      case FieldType::kText:
        std::fill_n(at, field.width, ' ');
        break;
    }
  }
}

}  // namespace golf
