
#include "core/little_endian.h"
#include "support/test_host.h"

namespace golf {
namespace {

constexpr std::size_t kLength = 3226;
constexpr std::size_t kLargest = 32767;

int ErrorOfTransfer(TestInstall& install) {
  return ClickErrorOf([&] {
    install.Open("KVCoursestoQB",
                 [&](Screen& screen) { install.host->Press(screen, "TransferCourses"); });
  });
}

TEST(CourseOverflowTest, ANumberBeyondItsFieldStopsTheRunAndWhatWasWrittenStays) {
  TestInstall install;
  install.folder.Write("kvdata/kvcrs.dat", "");
  std::filesystem::resize_file(install.folder.Path("kvdata/kvcrs.dat"), (kLargest + 1) * kLength);
  EXPECT_EQ(ErrorOfTransfer(install), 6);
  EXPECT_EQ(std::filesystem::file_size(install.folder.Path("qbdata/qbcrs.dat")),
            kLargest * kLength);
}

TEST(CourseOverflowTest, ACountBeyondItsWidthStopsTheRunBeforeItsWrite) {
  TestInstall install;
  std::string course(kLength, '\0');
  course[0] = 1;
  install.folder.Write("kvdata/kvcrs.dat", course);
  std::string linked = course;
  StoreLittleEndian(linked.data() + 1224, std::int16_t{1});
  linked[4] = 'x';
  std::string library;
  for (std::size_t i = 0; i <= kLargest; ++i) library += linked;
  install.folder.Write("qbdata/qbcrs.dat", library);
  EXPECT_EQ(ErrorOfTransfer(install), 6);
  const std::string left = install.folder.Read("qbdata/qbcrs.dat");
  ASSERT_EQ(left.size(), library.size());
  EXPECT_EQ(left[(kLargest - 1) * kLength + 4], '\0');
  EXPECT_EQ(left[kLargest * kLength + 4], 'x');
}

}  // namespace
}  // namespace golf
