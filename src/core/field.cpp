#include "core/field.h"

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
  std::size_t element = 0;
  for (std::size_t step = 0; step < rank; ++step) {
    // The slowest index first.
    const std::size_t i = order == StorageOrder::kFirstIndexFastest ? rank - 1 - step : step;
    const int position = indexes[i] - dimensions[i].base;
    if (position < 0 || position >= dimensions[i].count) FailSubscript(*this);
    element = element * static_cast<std::size_t>(dimensions[i].count) +
              static_cast<std::size_t>(position);
  }
  return offset + element * width;
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

}  // namespace golf
