#include <cmath>
#include <cstdlib>

#include "screens/transfers/kv_courses_to_qb.h"
#include "support/bytes.h"
#include "support/file_checks.h"

namespace golf {
namespace {

constexpr std::size_t kLength = 3226;

// Returns a course in which neighbouring bytes differ, so that a byte out of place shows.
std::string Course(const std::string& name, int active = 1, int holes = 18, int link = 0) {
  std::string bytes(kLength, '\0');
  for (std::size_t i = 0; i < kLength; ++i) {
    bytes[i] = static_cast<char>(i * 7 + name.size() * 13 + static_cast<unsigned char>(name[0]));
  }
  Put16(bytes, 0, {active});
  Put16(bytes, 2, {holes});
  PutText(bytes, 4, 30, name);
  Put16(bytes, 1224, {link});
  return bytes;
}

// The expected result of a transfer, worked out from whole files in memory.
struct Outcome {
  std::string library;
  std::string index9, index18, index_all;
  int added = 0;
  int updated = 0;
};

std::size_t RoundedCount(const std::string& file) {
  return static_cast<std::size_t>(
      std::nearbyint(static_cast<double>(file.size()) / static_cast<double>(kLength)));
}

std::string Index(const std::string& old_file, const std::vector<int>& records) {
  std::string file = old_file;
  file.resize(std::max(file.size(), 2 * records.size() + 2), '\0');
  Put16(file, 0, {static_cast<int>(records.size())});
  for (std::size_t i = 0; i < records.size(); ++i) Put16(file, 2 * i + 2, {records[i]});
  return file;
}

Outcome Expected(const std::string& kelvane, const std::string& quenby,
                 const std::string& old_index18) {
  Outcome outcome;
  outcome.library = quenby;
  const std::size_t count = RoundedCount(quenby);
  for (std::size_t s = 1; s <= RoundedCount(kelvane); ++s) {
    std::string course = RecordAt(kelvane, s, kLength);
    Put16(course, 1224, {static_cast<int>(s)});
    bool found = false;
    for (std::size_t j = 1; j <= count; ++j) {
      if (Int16At(RecordAt(quenby, j, kLength), 1224) != static_cast<int>(s)) continue;
      if (Int16At(course, 0) & 1) ++outcome.updated;
      PutRecord(outcome.library, j, course);
      found = true;
    }
    if (!found)
      PutRecord(outcome.library, count + static_cast<std::size_t>(++outcome.added), course);
  }
  std::multimap<std::string, int> by_name;  // equal names keep the order of their records
  for (std::size_t j = 1; j <= outcome.library.size() / kLength; ++j) {
    const std::string course = RecordAt(outcome.library, j, kLength);
    const std::string name = UpperCase(Trim(course.substr(4, 30)));
    if (Int16At(course, 0) != 0) by_name.emplace(name, static_cast<int>(j));
  }
  std::vector<int> all, of9, of18;
  for (const auto& [name, record] : by_name) {
    const int holes =
        Int16At(outcome.library, (static_cast<std::size_t>(record) - 1) * kLength + 2);
    all.push_back(record);
    if (std::abs(holes) == 9) of9.push_back(record);
    if (holes == 18) of18.push_back(record);
  }
  outcome.index9 = Index("", of9);
  outcome.index18 = Index(old_index18, of18);
  outcome.index_all = Index("", all);
  return outcome;
}

// Works as the operator does: menu, transfer, and back.
void RunTransfer(TestInstall& install) {
  install.Open("TransferMenu", [&](Screen& screen) {
    const bool menu = screen.name() == "TransferMenu";
    install.host->Press(screen, menu ? "KVCoursestoQBButton" : "TransferCourses");
  });
}

void ExpectOutcome(const TestInstall& install, const Outcome& outcome) {
  EXPECT_TRUE(Holds(install.folder, "qbdata/qbcrs.dat", outcome.library)) << "library differs";
  EXPECT_EQ(install.folder.Read("qbdata/9CRSQB.INX"), outcome.index9);
  EXPECT_EQ(install.folder.Read("qbdata/18CRSQB.INX"), outcome.index18);
  EXPECT_EQ(install.folder.Read("qbdata/ALLCRSQB.INX"), outcome.index_all);
}

struct Library {
  const char* what;
  std::string kelvane, quenby, index18;
};

std::vector<Library> Libraries() {
  const std::string three = Course("Beta") + Course("alpha", 1, -9) + Course("Alpha", 3, 9);
  const std::string odd = Course("\xE9toile", 2, 18, 99) + Course("gone", 0, 18) +
                          std::string(kLength, '\0') + Course("\xFF\x01\"", -1, 12);
  const std::string linked = Course("Own") + Course("Old beta", 1, 18, 1) +
                             Course("Twice", 1, 18, 2) + Course("Stray", 1, 18, 77) +
                             Course("Again", 0, 9, 2);
  return {
      {"into nothing", three, "", ""},
      {"from nothing", "", linked, std::string("\x05\0\x63\0\x01", 5)},
      {"onto links, one of them double", three, linked,
       std::string("\x04\0\x01\0\x02\0\x03\0\x07\0", 10)},
      {"deleted, empty and odd courses", odd, linked, ""},
      {"records that held numbers appended in the run", odd + three, Course("x", 1, 18, 4), ""},
      {"torn at the end, above a half", three + Course("Torn").substr(0, 1700),
       linked + Course("Torn", 1, 18, 1).substr(0, 1700), ""},
      {"torn at the end, below a half", three + Course("Torn").substr(0, 1612),
       linked + Course("Torn", 1, 18, 1).substr(0, 1612), ""},
      {"torn at the half, which goes to the even count", Course("One") + std::string(1613, 'x'),
       std::string(1613, 'y'), ""},
  };
}

TEST(CourseTransferTest, FilesByteForByte) {
  for (const Library& library : Libraries()) {
    SCOPED_TRACE(library.what);
    TestInstall install;
    // A missing library comes into being.
    if (!library.kelvane.empty()) install.folder.Write("kvdata/KVCRS.DAT", library.kelvane);
    if (!library.quenby.empty()) install.folder.Write("qbdata/qbcrs.dat", library.quenby);
    if (!library.index18.empty()) install.folder.Write("qbdata/18CRSQB.INX", library.index18);
    const Outcome outcome = Expected(library.kelvane, library.quenby, library.index18);
    RunTransfer(install);
    EXPECT_EQ(install.events(),
              std::vector<std::string>(
                  {"open TransferMenu", "open KVCoursestoQB",
                   "message [Course transfer complete.] Number of courses ADDED: " +
                       std::to_string(outcome.added) + "\rNumber of courses UPDATED: " +
                       std::to_string(outcome.updated) + "\r -> OK",
                   "close KVCoursestoQB", "end"}));
    ExpectOutcome(install, outcome);
    EXPECT_EQ(Counts(install), "added " + std::to_string(outcome.added) + ", updated " +
                                   std::to_string(outcome.updated));
    const char* source = library.kelvane.empty() ? "kvdata/kvcrs.dat" : "kvdata/KVCRS.DAT";
    EXPECT_TRUE(Holds(install.folder, source, library.kelvane));
  }
}

TEST(CourseTransferTest, AFaultLosesNothing) {
  TestInstall install;
  const std::string kelvane = Course("One") + Course("Two") + Course("Three", 0);
  const std::string quenby = Course("Own") + Course("Old two", 1, 18, 2);
  install.folder.Write("kvdata/kvcrs.dat", kelvane);
  install.folder.Write("qbdata/qbcrs.dat", quenby);
  WalkReadFaults(install, [&] { RunTransfer(install); });
  // The courses are copied even if the indexes cannot be written.
  install.folder.Write("qbdata/qbcrs.dat", quenby);
  install.Restart();
  install.platform->Fail({.only = Operation::kOpen, .name = "18CRSQB.INX"});
  EXPECT_EQ(ClickErrorOf([&] { RunTransfer(install); }), 57);
  EXPECT_TRUE(Holds(install.folder, "qbdata/qbcrs.dat", Expected(kelvane, quenby, "").library));
}

TEST(CourseTransferTest, CoursesAfterAnErrorAreLeftOut) {
  TestInstall install;
  install.folder.Write("kvdata/kvcrs.dat",
                       Course("One") + Course("Two") + Course("Gone", 0) + Course("Three"));
  install.platform->Fail({.nth = 2, .only = Operation::kRead, .name = "kvcrs.dat"});
  EXPECT_EQ(ClickErrorOf([&] { RunTransfer(install); }), 57);
  EXPECT_EQ(LeftOutLines(install),
            "Two: stopped by an error\nThree: not reached before the run ended\n");
}

TEST(CourseTransferTest, ASecondProcessInTheInstallIsRefusedUntouched) {
  TestInstall install;
  install.folder.Write("kvdata/kvcrs.dat", Course("One"));
  const auto lock = MakePlatform(install.folder.Path())->LockRun(install.state().ProgramPath);
  EXPECT_THROW(RunTransfer(install), ClickEnded);
  EXPECT_EQ(install.events().back(), "error 70");
  EXPECT_FALSE(install.folder.Exists("qbdata/qbcrs.dat"));
}

TEST(CourseTransferTest, NothingIsTakenInDuringARun) {
  TestInstall install;
  install.folder.Write("kvdata/kvcrs.dat", Course("One") + Course("Two"));
  std::vector<std::string> shown;
  install.listener.on_progress = [&](const Progress& progress) {
    Screen& screen = *install.host->Top();
    shown.push_back(dynamic_cast<KVCoursestoQB&>(screen).TransferLabel.caption());
    install.host->Leave(screen);
    EXPECT_TRUE(install.host->IsShown(screen)) << progress.done;
  };
  RunTransfer(install);
  EXPECT_EQ(shown, std::vector<std::string>({FitText("One", 30), FitText("Two", 30)}));
}

}  // namespace
}  // namespace golf
