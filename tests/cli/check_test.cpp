// The check-up on the demonstration, with one planted fault at a time.

#include <algorithm>
#include <filesystem>
#include <functional>

#include "cli/command_line_fixture.h"
#include "core/text.h"
#include "support/bytes.h"

namespace golf {
namespace {

using nlohmann::json;

class CheckTest : public CommandLineTest {
 protected:
  std::string Whole(int value) {
    return {static_cast<char>(value & 0xff), static_cast<char>(value >> 8)};
  }
};

TEST_F(CheckTest, EachPlantedFaultIsFoundOnce) {
  const std::string later("\0\0\0\0\0\x60\xE6\x40", 8);  // 45824, in 2025
  const std::string never("\0\0\0\0\0\0\xF8\x7F", 8);    // no number
  const auto put = [this](std::size_t at, const std::string& bytes) {
    return [=, this](const std::string& file) { Put(file, at, bytes); };
  };
  const auto cut = [this](std::size_t length) {
    return [=, this](const std::string& file) {
      Edit(file, [&](std::string& bytes) { bytes.resize(length); });
    };
  };
  const auto remove = [this](const std::string& file) { folder.Remove("i/" + file); };
  const struct {
    const char* code;
    const char* file;
    int record;
    const char* title;
    std::function<void(const std::string& file)> plant;
  } kCases[] = {
      {"file-length", "kvdata/kvcrs.dat", 0, "", put(22582, "abc")},
      {"file-length", "kvdata/CLUB18.kvg", 0, "", cut(30000)},
      {"file-length", "qbdata/X0001.Q9C", 0, "", cut(1200)},
      {"file-length", "qbdata/QBGOLFER.Q9D", 0, "", cut(20000)},
      {"file-length", "kvdata/ALLCRSKV.INX", 0, "", cut(13)},
      {"file-length", "zddata/0001.ZS8", 0, "", cut(50000)},
      {"file-length", "KVSYSTEM.FIL", 0, "", cut(700)},
      {"file-missing", "kvdata/CLUB18.kv5", 0, "", remove},
      {"file-missing", "zddata/00011.ZL8", 0, "", remove},
      {"file-missing", "qbdata/X0001.Q9T", 0, "", remove},
      {"file-unreadable", "zddata/00012.ZT8", 0, "",
       [&](const std::string&) {
         folder.Remove("i/zddata/00012.ZT8");
         std::filesystem::create_directory(folder.Path("i/zddata/00012.ZT8"));
       }},
      {"file-sizes", "kvdata/CLUB18.kvs", 0, "CLUB18", cut(11 * 14700)},
      {"file-sizes", "zddata/00021.ZP8", 0, "Saturday Eighteen", cut(9 * 8012)},
      {"file-sizes", "zddata/00011.ZT8", 0, "Thursday Twilight Nine",
       put(3 * 4400, std::string(4400, '\0'))},
      {"file-sizes", "qbdata/X0001.Q9T", 0, "Autumn Medal", cut(2 * 1339)},
      {"file-sizes", "zddata/00011.ZE8", 0, "Thursday Twilight Nine", cut(222)},
      {"run-interrupted", "transfer-history", 0, "",
       [&](const std::string&) {
         In("golfers-kv-to-zd --roster CLUB18 --league 00021 --even-if-scored");
         for (const auto& [name, bytes] : AllFiles()) {
           if (name.ends_with(".run")) Put(name, 4 * 512, std::string(512, '\0'));
         }
       }},
      {"index-missing", "zddata/9CRSZD.INX", 0, "", remove},
      {"index-count", "kvdata/ALLCRSKV.INX", 1, "", put(0, Whole(7))},
      {"index-nowhere", "kvdata/ALLCRSKV.INX", 3, "", put(4, Whole(6))},  // a deleted course
      {"index-nowhere", "kvdata/18CRSKV.INX", 2, "", put(2, Whole(8))},
      {"index-stale", "qbdata/ALLCRSQB.INX", 0, "", put(2, Whole(2) + Whole(3))},
      {"index-stale", "qbdata/18CRSQB.INX", 0, "", put(0, Whole(2))},
      {"course-link-nowhere", "qbdata/qbcrs.dat", 3, "Dunes at Port Ellery",
       put(2 * 3226 + 1224, Whole(8))},
      {"course-link-wrong", "qbdata/qbcrs.dat", 1, "Quarry Hollow", put(1224, Whole(1))},
      {"course-twice", "qbdata/qbcrs.dat", 2, "LARKFIELD golf Club",
       [&](const std::string&) {
         Put("qbdata/qbcrs.dat", 4, FitText("Larkfield Golf Club", 30));
         Put("qbdata/qbcrs.dat", 1224, Whole(1));
         Put("qbdata/qbcrs.dat", 3226 + 4, "LARKFIELD golf Club");
       }},
      {"tee-rule", "kvdata/kvcrs.dat", 3, "Millpond Short Nine", put(2 * 3226 + 264, Whole(54))},
      {"id-twice", "kvdata/CLUB18.kvg", 2, "Calder, Tom", put(2804 + 4, Whole(101))},
      {"golfer-twice", "kvdata/CLUB18.kvg", 2, "Bergstrom, Anna",
       [&](const std::string&) {
         Put("kvdata/CLUB18.kv5", 673, FitText("Birthday", 12));
         for (const std::size_t at : {0u, 2804u}) {
           Put("kvdata/CLUB18.kvg", at + 8, FitText("Anna", 11) + FitText("Bergstrom", 16));
           Put("kvdata/CLUB18.kvg", at + 561, later);
         }
       }},
      {"golfer-twice", "qbdata/QBGOLFER.Q9D", 22, "Bergstrom, Anna",
       [&](const std::string& file) {
         Edit(file, [&](std::string& golfers) {
           golfers.replace(9 * 1867 + 599, 8, later);
           PutRecord(golfers, 22, RecordAt(golfers, 10, 1867).replace(4, 2, Whole(999)));
         });
       }},
      {"golfer-twice", "kvdata/CLUB18.kvg", 13, "Eames, Walt",
       [&](const std::string& file) {
         Edit(file, [&](std::string& golfers) {
           PutRecord(golfers, 13, RecordAt(golfers, 4, 2804).replace(4, 2, Whole(999)));
         });
         Edit("kvdata/CLUB18.kvs", [](std::string& histories) {
           PutRecord(histories, 13, RecordAt(histories, 4, 14700));
         });
       }},
      {"id-twice", "zddata/00012.ZP8", 3, "Duarte, Ines",
       put(2 * 8012 + 4, folder.Read("i/zddata/00012.ZP8").substr(8016, 4))},
      {"id-twice", "kvdata/NINE9.kvg", 4, "Quill, Finn", put(3 * 2804 + 4, Whole(104))},
      {"id-differs", "kvdata/CLUB18.kvg", 4, "Eames, Walt",
       [&](const std::string&) { Put("qbdata/QBGOLFER.Q9D", 12 * 1867 + 4, Whole(888)); }},
      {"golfer-without-id", "kvdata/CLUB18.kvg", 12, "Marlow, Ben", put(11 * 2804 + 4, Whole(0))},
      {"golfer-on-no-roster", "qbdata/QBGOLFER.Q9D", 10, "Bergstrom, Anna",
       put(9 * 1867 + 8, std::string(8, '\0'))},
      {"roster-missing", "qbdata/QBGOLFER.Q9D", 10, "Bergstrom, Anna", put(9 * 1867 + 8, Whole(3))},
      {"half-waits", "kvdata/CLUB18.kvg", 1, "Bergstrom, Anna", put(454, "\x28")},
      {"history-count", "kvdata/CLUB18.kvs", 12, "Marlow, Ben",
       [&](const std::string&) { Put("kvdata/CLUB18.kvg", 11 * 2804 + 455, Whole(19)); }},
      {"history-order", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna", put(49 + 8, later)},
      {"score-date", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna", put(8, never)},
      {"score-value", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna", put(35, std::string(1, '\0'))},
      {"score-value", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       put(16, std::string(18, '\7'))},  // 126 strokes
      {"score-course", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna", put(0, Whole(8))},
      {"score-course-deleted", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna", put(0, Whole(6))},
      {"score-tee", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna", put(2, "\4")},
      {"entry-no-golfer", "qbdata/X0001.Q9G", 1, "Autumn Medal", put(0, Whole(9))},
      {"entry-twice", "qbdata/X0001.Q9G", 2, "Bergstrom, Anna", put(3052, Whole(10))},
      {"entry-team", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna", put(4, Whole(4))},
      {"entry-tee", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna", put(149, Whole(2))},
      {"entry-score", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna", put(443 + 2 * 17, Whole(21))},
      {"tournament-date", "qbdata/X0001.Q9C", 1, "Autumn Medal", put(116, std::string(8, '\0'))},
      {"league-score", "zddata/00021.ZP8", 1, "Farrow, Ruth", put(870, Whole(200))},
      {"history-count", "kvdata/CLUB18.kvs", 12, "Marlow, Ben",
       [&](const std::string&) { Put("kvdata/CLUB18.kvg", 11 * 2804 + 457, Whole(1)); }},
      {"score-value", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       put(35, "\x27")},  // 39 on 18 holes
      {"team-full", "qbdata/X0001.Q9G", 0, "Autumn Medal",
       [&](const std::string&) {
         for (int entry = 0; entry < 5; ++entry) {
           Put("qbdata/X0001.Q9G", static_cast<std::size_t>(entry) * 3052 + 4, Whole(2));
         }
       }},
      {"tournament-count", "qbdata/X0001.Q9C", 1, "Autumn Medal", put(50, Whole(9))},
      {"tournament-course", "qbdata/X0001.Q9C", 1, "Autumn Medal", put(166, Whole(4))},
      {"tournament-tee", "qbdata/X0001.Q9C", 1, "Autumn Medal",
       put(180, Whole(4))},                                        // of the ladies in round 1
      {"posted-not-found", "qbdata/X0001.Q9G", 11, "Stoll, Vera",  // not in Kelvane
       put(10 * 3052 + 30, Whole(2))},
      {"posted-not-found", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna", put(30, Whole(2))},
      {"found-not-posted", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna",
       [&](const std::string&) {
         In("scores-qb-to-kv --tournament 1 --round 2 --roster CLUB18");
         Put("qbdata/X0001.Q9G", 32, Whole(0));
       }},
      {"league-event", "zddata/00021.ZP8", 1, "Farrow, Ruth", put(870 + 2 * 49, Whole(80))},
      {"league-event", "zddata/00021.ZL8", 1, "Saturday Eighteen", put(94, Whole(1))},
      {"league-event", "zddata/00021.ZL8", 1, "Saturday Eighteen", put(94, Whole(14))},
      {"league-date", "zddata/00021.ZE8", 12, "Saturday Eighteen",
       put(11 * 222 + 2, std::string(4, '\0'))},
      {"league-substitutes", "zddata/00021.ZL8", 1, "Saturday Eighteen", put(82, Whole(7))},
      {"league-substitutes", "zddata/00021.ZL8", 1, "Saturday Eighteen", put(82, Whole(9))},
      {"league-team", "zddata/00021.ZP8", 1, "Farrow, Ruth", put(470, Whole(6))},
      {"league-course", "zddata/00021.ZT8", 1, "Saturday Eighteen", put(2300, Whole(3))},
      {"name-spelling", "zddata/00021.ZP8", 1, "Farr\xC3\xB3w, Ruth", put(23, "Farr\xF3w")},
      {"name-spelling", "kvdata/CLUB18.kvg", 1, "Bergstrom, An na", put(8, "An na")},
      {"name-spelling", "zddata/zdcrs.dat", 1, "Lark field Golf Club",
       put(4, FitText("Lark field Golf Club", 30))},
      {"name-cut", "zddata/00021.ZP8", 1, "Farrow, Ruth Isabella", put(8, "Ruth Isabella")},
  };
  const std::vector<json> sound = JsonLines(In("check --json").out);
  EXPECT_EQ(In("check").code, 0);
  const auto pristine = AllFiles();
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.code) + " " + c.file + " " + std::to_string(c.record));
    c.plant(c.file);
    const auto planted = AllFiles();
    const Ended ended = In("check --json");
    std::vector<json> findings = JsonLines(ended.out);
    std::erase_if(findings, [&](const json& finding) {
      const bool was_there = std::find(sound.begin(), sound.end(), finding) != sound.end();
      return was_there || (finding["code"] != c.code && finding["code"] == "tee-rule");
    });
    ASSERT_EQ(findings.size(), 1u) << json(findings).dump(1);
    EXPECT_EQ(findings[0]["code"], c.code);
    EXPECT_EQ(findings[0]["file"], c.file);
    EXPECT_EQ(findings[0]["record"], c.record == 0 ? json(nullptr) : json(c.record));
    EXPECT_EQ(findings[0]["title"], c.title);
    EXPECT_EQ(ended.code, findings[0]["severity"] == "note" ? 0 : 1);
    EXPECT_TRUE(AllFiles() == planted);
    std::filesystem::remove_all(folder.Path("i"));
    for (const auto& [name, bytes] : pristine) folder.Write("i/" + name, bytes);
  }
}

TEST_F(CheckTest, FindingsAreChosenAndGroupedByFile) {
  Put("kvdata/CLUB18.kvg", 455, Whole(3));
  Put("kvdata/CLUB18.kvg", 454, "\x28");
  Put("qbdata/qbcrs.dat", 1224, Whole(1));
  EXPECT_EQ(
      In("check --severity warning").out,
      "1 error, 1 warning.\n\n"
      "kvdata/CLUB18.kvs: 1 error\n"
      "  error history-count: Scores that are not counted are overwritten by the next one, and "
      "do not count for the handicap.\n"
      "    What to do: Correct the golfer's scores in Kelvane.\n"
      "    Record 1, Bergstrom, Anna: The golfer's record counts 3 scores, but the history has "
      "18.\n\n"
      "qbdata/qbcrs.dat: 1 warning\n"
      "  warning course-link-wrong: Scores of the course can be posted to another course.\n"
      "    What to do: Compare both courses, and transfer the courses again.\n"
      "    Record 1, Quarry Hollow: The course is linked to Kelvane's course 1, which is "
      "\"Larkfield Golf Club\", 18 holes.\n");
  EXPECT_EQ(In("check --only half-waits,tee-rule --json").code, 0);
  EXPECT_EQ(In("check --only course-link-wrong").code, 1);
  const Ended unknown = In("check --only nonsense");
  EXPECT_EQ(unknown.code, 1);
  EXPECT_EQ(unknown.problems, "There is no finding nonsense; docs/check.md lists them.\n");
}

// Plants faults of all severities in the files of all three programs.
TEST_F(CheckTest, TheScreenListsTheSameFindingsByKind) {
  Put("kvdata/CLUB18.kvg", 455, Whole(3));
  Put("qbdata/qbcrs.dat", 1224, Whole(1));
  Put("qbdata/X0001.Q9G", 0, Whole(9));
  Put("zddata/00021.ZP8", 23, "Farr\xF3w");
  In("golfers-kv-to-zd --roster CLUB18 --league 00021 --even-if-scored");
  for (const auto& [name, bytes] : AllFiles()) {
    if (name.ends_with(".run")) Put(name, 4 * 512, std::string(512, '\0'));
  }
  const auto planted = AllFiles();
  std::vector<std::vector<std::string>> expected;
  for (const json& finding : JsonLines(In("check --json").out)) {
    expected.push_back({finding["severity"], finding["code"], finding["file"],
                        finding["record"].is_null() ? "" : finding["record"].dump(),
                        finding["title"], finding["text"]});
  }
  const auto rank = [](const std::string& severity) {
    return severity == "error" ? 0 : severity == "warning" ? 1 : 2;
  };
  const Ended ended = Script(
      "open CheckData\nclick CheckButton\nshow FindingList\n"
      "show SummaryLabel\nselect KindList 1\nshow FindingList\n");
  EXPECT_EQ(ended.code, 0) << ended.problems;
  std::vector<std::vector<std::vector<std::string>>> lists;
  for (const json& event : JsonLines(ended.out)) {
    if (event.value("name", "") == "FindingList") {
      auto& rows = lists.emplace_back();
      for (const json& row : event["rows"]) {
        const auto cells = row.get<std::vector<std::string>>();
        rows.emplace_back(cells.begin() + 1, cells.end());
      }
    }
    if (event.value("name", "") == "SummaryLabel") {
      const std::string people = In("check").out;
      EXPECT_EQ(event["text"], people.substr(0, people.find('\n')));
    }
  }
  ASSERT_EQ(lists.size(), 2u);
  EXPECT_TRUE(std::ranges::is_sorted(lists[0], {}, [&](const auto& row) { return rank(row[0]); }));
  std::erase_if(lists[1], [&](const auto& row) { return row[1] != lists[0][0][1]; });
  EXPECT_EQ(static_cast<std::ptrdiff_t>(lists[1].size()),
            std::ranges::count(lists[0], lists[0][0][1], [](const auto& row) { return row[1]; }));
  std::ranges::sort(lists[0]);
  std::ranges::sort(expected);
  EXPECT_EQ(lists[0], expected);
  EXPECT_TRUE(AllFiles() == planted);
}

TEST_F(CheckTest, RepairWritesIndexesAnewAndCanBeUndone) {
  const Tree sound = Data();
  Put("kvdata/ALLCRSKV.INX", 2, Whole(99));
  folder.Remove("i/zddata/9CRSZD.INX");
  const Tree planted = Data();
  const Ended repaired = In("check --repair --severity warning");
  EXPECT_EQ(repaired.out,
            "The course indexes of Kelvane were written anew.\n"
            "The course indexes of Zandel were written anew.\n\nNothing was found.\n");
  EXPECT_EQ(repaired.code, 0) << repaired.problems;
  EXPECT_TRUE(Data() == sound);
  EXPECT_EQ(In("undo").code, 0);
  EXPECT_TRUE(Data() == planted);
}

}  // namespace
}  // namespace golf
