#include "core/record.h"

#include <gtest/gtest.h>

#include "support/error_of.h"

namespace golf {
namespace {

struct Sample {
  static constexpr std::string_view kName = "sample";
  static constexpr Field kFields[] = {
      ByteField("Flag", 0),
      Int16Field("Word", 1),
      Int32Field("Long", 3),
      SingleField("Index", 7),
      DoubleField("Double", 11),
      DateField("Due", 19),
      CurrencyField("Money", 27),
      TextField("Name", 35, 4),
      Int16Field("Columns", 39).By(Dimension{1, 2}, Dimension{0, 3}),
      // The entries have three bytes each and follow each other directly.
      ByteField("Rows", 51).By(Dimension{0, 3}).InEach(Dimension{1, 2}, 3),
      TextField("Lines", 57, 3).By(Dimension{-1, 2}),
      KeptBytes(63, 2),
  };
  static constexpr std::size_t kLength = 65;
};

// Fills a record with a byte that no value here contains, and sets a field. Returns the offset and
// the content of the changed bytes.
template <class Setter>
std::pair<std::size_t, std::string> Changed(Setter setter) {
  Record<Sample> record;
  std::fill(record.MutableBytes().begin(), record.MutableBytes().end(), '\x55');
  setter(record);
  const std::string_view bytes = record.Bytes();
  const std::size_t first = bytes.find_first_not_of('\x55');
  const std::size_t last = bytes.find_last_not_of('\x55');
  return {first, std::string(bytes.substr(first, last + 1 - first))};
}

TEST(Record, SettersTouchTheBytesOfTheirFieldOnly) {
  using namespace std::string_literals;
  using At = std::pair<std::size_t, std::string>;
  using R = Record<Sample>;
  EXPECT_EQ(Changed([](R& r) { r.Set<"Flag">(200); }), At(0, "\xC8"));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Word">(-2); }), At(1, "\xFE\xFF"));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Long">(0x01020304); }), At(3, "\4\3\2\1"));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Index">(-1.5f); }), At(7, "\0\0\xC0\xBF"s));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Double">(1); }), At(11, "\0\0\0\0\0\0\xF0\x3F"s));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Due">(-2); }), At(19, "\0\0\0\0\0\0\0\xC0"s));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Money">(-10000); }), At(27, "\xF0\xD8" + std::string(6, -1)));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Name">("ab"); }), At(35, "ab  "));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Name">("abcde"); }), At(35, "abcd"));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Columns">({2, 1}, 1); }), At(39 + 2 * 3, "\1\0"s));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Rows">({2, 1}, 1); }), At(51 + 4, "\1"));
  EXPECT_EQ(Changed([](R& r) { r.Set<"Lines">({0}, "x"); }), At(60, "x  "));
}

TEST(Record, IsReadWithoutKnowingItsLayout) {
  Record<Sample> record;
  record.Set<"Money">(-123456);
  record.Set<"Index">(12.4f);
  record.Set<"Name">(" a");
  record.Set<"Columns">({1, 0}, -10);
  const std::pair<std::size_t, FieldValue> values[] = {
      {3, 12.4f}, {6, std::int64_t{-123456}}, {7, " a  "}, {8, std::int64_t{-10}}};
  for (const auto& [index, value] : values) {
    const Field& field = InfoOfLayout<Sample>().fields[index];
    EXPECT_EQ(ReadFieldValue(field, record.Bytes(), field.offset), value) << field.name;
  }
}

TEST(Record, AnIndexOutsideItsBoundsIsError9) {
  Record<Sample> record;
  for (const auto& [i, j] : {std::pair{0, 0}, {3, 0}, {1, -1}, {1, 3}}) {
    EXPECT_EQ(ErrorOf([&, i = i, j = j] { record.Get<"Columns">(i, j); }), 9) << i << "," << j;
    EXPECT_EQ(ErrorOf([&, i = i, j = j] { record.Set<"Rows">({i, j}, 1); }), 9) << i << "," << j;
  }
  EXPECT_EQ(ErrorOf([&] { record.Set<"Rows">({1}, 1); }), 9);
  EXPECT_EQ(ErrorOf([&] { record.Set<"Lines">({1}, ""); }), 9);
  EXPECT_EQ(record.Bytes(), std::string(Sample::kLength, '\0'));
}

static_assert(FieldsTile<Sample::kLength>(Sample::kFields));
static_assert(!FieldsTile<Sample::kLength + 1>(Sample::kFields));
static_assert(!FieldsTile<3>(std::array{ByteField("a", 0), ByteField("b", 2)}));
static_assert(!FieldsTile<2>(std::array{Int16Field("a", 0), ByteField("b", 1)}));

}  // namespace
}  // namespace golf
