#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace golf {

enum class FieldType : std::uint8_t {
  kByte,      // an unsigned 8-bit integer
  kInt16,     // a signed 16-bit integer; all numbers are little-endian
  kInt32,     // a signed 32-bit integer
  kSingle,    // IEEE 754, 4 bytes
  kDouble,    // IEEE 754, 8 bytes
  kDate,      // a double: days since 30 December 1899
  kCurrency,  // a signed 64-bit integer: the amount times 10000
  kText,      // code page 1252, filled with blanks
};

struct FieldTypeInfo {
  std::string_view name;
  std::size_t width;  // bytes of one value; 0 for text, since the width differs by field
};

constexpr FieldTypeInfo InfoOf(FieldType type) {
  constexpr FieldTypeInfo kInfos[] = {{"byte", 1},   {"int16", 2}, {"int32", 4},    {"single", 4},
                                      {"double", 8}, {"date", 8},  {"currency", 8}, {"text", 0}};
  return kInfos[static_cast<std::size_t>(type)];
}

// Describes the range of one index of a table. It runs from `base` to `base` + `count` - 1.
struct Dimension {
  int base = 1;
  int count = 1;
  std::string_view name{};  // what the index counts, such as "hole"; may be empty
};

// Describes one field of a record: the position, type and indexes of its values. A field without a
// name covers bytes whose meaning is unknown. These bytes are kept unchanged.
struct Field {
  static constexpr std::size_t kMaxRank = 3;

  std::string_view name;
  FieldType type = FieldType::kByte;
  std::size_t offset = 0;
  std::size_t width = 1;  // the size of one value in bytes
  std::size_t rank = 0;   // the number of indexes
  std::array<Dimension, kMaxRank> dimensions{};
  std::array<std::size_t, kMaxRank> strides{};  // bytes from one value to the next, for each index
  std::string_view meaning{};  // what the values mean, with their unit; empty if the name says it

  constexpr std::size_t Count() const {
    std::size_t count = 1;
    for (std::size_t i = 0; i < rank; ++i) count *= static_cast<std::size_t>(dimensions[i].count);
    return count;
  }
  // Returns the size of all values in bytes.
  constexpr std::size_t Size() const { return Count() * width; }

  // Returns this field with a description of its values, for the documentation.
  constexpr Field Means(std::string_view text) const {
    Field described = *this;
    described.meaning = text;
    return described;
  }

  // Returns this field as a table with the given indexes. The first index varies fastest in the
  // record.
  template <class... Dimensions>
  constexpr Field By(Dimensions... given) const {
    static_assert(sizeof...(given) <= kMaxRank);
    Field table = *this;
    table.rank = sizeof...(given);
    table.dimensions = {given...};
    std::size_t stride = width;
    for (std::size_t i = 0; i < table.rank; ++i) {
      table.strides[i] = stride;
      stride *= static_cast<std::size_t>(table.dimensions[i].count);
    }
    return table;
  }

  // Returns this field repeated in each of several entries that start `stride` bytes apart. The
  // entry number becomes the first index.
  constexpr Field InEach(Dimension entries, std::size_t stride) const {
    Field table = *this;
    for (std::size_t i = rank; i > 0; --i) {
      table.dimensions[i] = dimensions[i - 1];
      table.strides[i] = strides[i - 1];
    }
    table.dimensions[0] = entries;
    table.strides[0] = stride;
    table.rank = rank + 1;
    return table;
  }

  // Returns the offset in the record of the value with these indexes. Raises error 9 if an index is
  // out of its range or the number of indexes is wrong.
  constexpr std::size_t OffsetOf(std::span<const int> indexes) const {
    if (indexes.size() != rank) FailSubscript();
    std::size_t at = offset;
    for (std::size_t i = 0; i < rank; ++i) {
      const std::int64_t position = std::int64_t{indexes[i]} - dimensions[i].base;
      if (position < 0 || position >= dimensions[i].count) FailSubscript();
      at += static_cast<std::size_t>(position) * strides[i];
    }
    return at;
  }

  [[noreturn]] void FailSubscript() const;

  // Returns the offset of value number `n`, counted from 0. The last index varies fastest.
  constexpr std::size_t OffsetOfNth(std::size_t n) const {
    std::size_t at = offset;
    for (std::size_t i = rank; i-- > 0;) {
      const auto count = static_cast<std::size_t>(dimensions[i].count);
      at += n % count * strides[i];
      n /= count;
    }
    return at;
  }
};

constexpr Field MakeField(std::string_view name, FieldType type, std::size_t offset) {
  return {name, type, offset, InfoOf(type).width};
}
constexpr Field ByteField(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kByte, offset);
}
constexpr Field Int16Field(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kInt16, offset);
}
constexpr Field Int32Field(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kInt32, offset);
}
constexpr Field SingleField(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kSingle, offset);
}
constexpr Field DoubleField(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kDouble, offset);
}
constexpr Field DateField(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kDate, offset);
}
constexpr Field CurrencyField(std::string_view name, std::size_t offset) {
  return MakeField(name, FieldType::kCurrency, offset);
}
constexpr Field TextField(std::string_view name, std::size_t offset, std::size_t width) {
  return {name, FieldType::kText, offset, width};
}
constexpr Field KeptBytes(std::size_t offset, std::size_t width) {
  return {"", FieldType::kText, offset, width};
}

// Returns true if the fields cover a record of `kLength` bytes with no gap and no overlap.
template <std::size_t kLength>
constexpr bool FieldsTile(std::span<const Field> fields) {
  std::array<bool, kLength> covered{};
  std::size_t size = 0;
  for (const Field& field : fields) {
    size += field.Size();
    for (std::size_t n = 0; n < field.Count(); ++n) {
      const std::size_t start = field.OffsetOfNth(n);
      for (std::size_t at = start; at < start + field.width; ++at) {
        if (at >= kLength || covered[at]) return false;
        covered[at] = true;
      }
    }
  }
  return size == kLength;
}

// Describes a layout for code that handles records of any layout.
struct LayoutInfo {
  std::string_view name;
  std::size_t length;
  std::span<const Field> fields;
};

template <class Layout>
constexpr LayoutInfo InfoOfLayout() {
  static_assert(FieldsTile<Layout::kLength>(Layout::kFields));
  return {Layout::kName, Layout::kLength, Layout::kFields};
}

using FieldValue = std::variant<std::int64_t, float, double, std::string>;

// Returns the value at `offset` in the bytes of a record. Returns a currency as the stored integer,
// which is the amount times 10000. A text keeps its trailing blanks.
FieldValue ReadFieldValue(const Field& field, std::string_view record, std::size_t offset);

// Sets every value of a number field to `number`, and every value of a text field to blanks.
// `number` must fit the type.
void FillField(const Field& field, std::span<char> record, double number);

}  // namespace golf
