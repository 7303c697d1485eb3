#include "core/field.h"

#include <algorithm>

#include "core/little_endian.h"
#include "core/numbered_error.h"

namespace golf {

void Field::FailSubscript() const {
  throw NumberedError(ErrorNumber::kSubscript,
                      "An index of " + std::string(name) + " is out of its range.");
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
