#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

#include "core/field.h"
#include "core/little_endian.h"
#include "core/text.h"

namespace golf {

// Makes the name of a field usable as a template argument.
template <std::size_t kSize>
struct FieldName {
  char characters[kSize]{};

  consteval FieldName(const char (&text)[kSize]) {  // NOLINT: a literal must convert implicitly
    for (std::size_t i = 0; i < kSize; ++i) characters[i] = text[i];
  }
  constexpr std::string_view View() const { return {characters, kSize - 1}; }
};

// Returns the field of a layout with this name. The code does not compile if the layout has no such
// field.
template <class Layout, FieldName kName>
consteval Field FieldOf() {
  for (const Field& field : Layout::kFields) {
    if (field.name == kName.View()) return field;
  }
  throw "the layout has no field of this name";
}

namespace detail {

template <FieldType kType>
struct ValueOf;
template <>
struct ValueOf<FieldType::kByte> {
  using Type = std::uint8_t;
};
template <>
struct ValueOf<FieldType::kInt16> {
  using Type = std::int16_t;
};
template <>
struct ValueOf<FieldType::kInt32> {
  using Type = std::int32_t;
};
template <>
struct ValueOf<FieldType::kSingle> {
  using Type = float;
};
template <>
struct ValueOf<FieldType::kDouble> {
  using Type = double;
};
template <>
struct ValueOf<FieldType::kDate> {
  using Type = double;
};
template <>
struct ValueOf<FieldType::kCurrency> {
  using Type = std::int64_t;
};
template <>
struct ValueOf<FieldType::kText> {
  using Type = std::string;
};

}  // namespace detail

// Holds a record of Layout::kLength bytes, all 0 at first. Get and Set access the bytes of a field
// directly. Setting a field changes no other byte. An index out of its range raises error 9.
template <class Layout>
class Record {
  static_assert(FieldsTile<Layout::kLength>(Layout::kFields),
                "the fields must cover the record with no gap and no overlap");

 public:
  template <FieldName kName>
  using Value = typename detail::ValueOf<FieldOf<Layout, kName>().type>::Type;
  // This is the parameter type of Set.
  template <FieldName kName>
  using Source =
      std::conditional_t<std::is_same_v<Value<kName>, std::string>, std::string_view, Value<kName>>;

  // Returns the stored value. A text keeps its trailing blanks.
  template <FieldName kName, class... Indexes>
  Value<kName> Get(Indexes... indexes) const {
    constexpr Field kField = FieldOf<Layout, kName>();
    static_assert(sizeof...(Indexes) == kField.rank, "as many indexes as the field has");
    const char* at = bytes_.data() + Offset<kField.rank>(kField, {static_cast<int>(indexes)...});
    if constexpr (kField.type == FieldType::kText) {
      return std::string(at, kField.width);
    } else {
      return LoadLittleEndian<Value<kName>>(at);
    }
  }

  // Returns a stored text without a copy. It is valid until the record changes.
  template <FieldName kName, class... Indexes>
  std::string_view View(Indexes... indexes) const {
    constexpr Field kField = FieldOf<Layout, kName>();
    static_assert(kField.type == FieldType::kText && sizeof...(Indexes) == kField.rank);
    return Bytes().substr(Offset<kField.rank>(kField, {static_cast<int>(indexes)...}),
                          kField.width);
  }

  // Sets a field that is not a table. Cuts a text at the field's width, or fills it with blanks.
  template <FieldName kName>
  void Set(Source<kName> value) {
    Set<kName>({}, value);
  }

  // Sets the element of a table with these indexes.
  template <FieldName kName>
  void Set(std::initializer_list<int> indexes, Source<kName> value) {
    constexpr Field kField = FieldOf<Layout, kName>();
    char* at = bytes_.data() + kField.OffsetOf({indexes.begin(), indexes.size()});
    if constexpr (kField.type == FieldType::kText) {
      const std::size_t held = std::min(value.size(), kField.width);
      if (held > 0) std::memmove(at, value.data(), held);  // the text may be the field's own
      std::memset(at + held, ' ', kField.width - held);
    } else {
      StoreLittleEndian(at, value);
    }
  }

  // Sets every value of a field or table: numbers to `number`, texts to blanks.
  template <FieldName kName>
  void Fill(double number = 0) {
    FillField(FieldOf<Layout, kName>(), bytes_, number);
  }

  std::string_view Bytes() const { return {bytes_.data(), bytes_.size()}; }
  std::span<char> MutableBytes() { return bytes_; }

 private:
  template <std::size_t kRank>
  static std::size_t Offset(const Field& field, const std::array<int, kRank>& indexes) {
    return field.OffsetOf(indexes);
  }

  std::array<char, Layout::kLength> bytes_{};
};

}  // namespace golf
