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
  // Replaces bytes of a file of the install. The file becomes longer if they lie behind its end.
  void Put(const std::string& file, std::size_t at, const std::string& bytes) {
    std::string content = folder.Read("i/" + file);
    content.resize(std::max(content.size(), at + bytes.size()));
    folder.Write("i/" + file, content.replace(at, bytes.size(), bytes));
  }
  void Cut(const std::string& file, std::size_t length) {
    folder.Write("i/" + file, folder.Read("i/" + file).substr(0, length));
  }
  std::string Whole(int value) {
    return {static_cast<char>(value & 0xff), static_cast<char>(value >> 8)};
  }
};

TEST_F(CheckTest, EachPlantedFaultIsFoundOnce) {
  const std::string later("\0\0\0\0\0\x60\xE6\x40", 8);  // 45824, in 2025
  const std::string never("\0\0\0\0\0\0\xF8\x7F", 8);    // no number
  const struct {
    const char* code;
    const char* file;
    int record;
    const char* title;
    std::function<void()> plant;
  } kCases[] = {
      {"file-length", "kvdata/kvcrs.dat", 0, "", [&] { Put("kvdata/kvcrs.dat", 22582, "abc"); }},
      {"file-length", "kvdata/CLUB18.kvg", 0, "", [&] { Cut("kvdata/CLUB18.kvg", 30000); }},
      {"file-length", "qbdata/X0001.Q9C", 0, "", [&] { Cut("qbdata/X0001.Q9C", 1200); }},
      {"file-length", "qbdata/QBGOLFER.Q9D", 0, "", [&] { Cut("qbdata/QBGOLFER.Q9D", 20000); }},
      {"file-length", "kvdata/ALLCRSKV.INX", 0, "", [&] { Cut("kvdata/ALLCRSKV.INX", 13); }},
      {"file-length", "zddata/0001.ZS8", 0, "", [&] { Cut("zddata/0001.ZS8", 50000); }},
      {"file-length", "KVSYSTEM.FIL", 0, "", [&] { Cut("KVSYSTEM.FIL", 700); }},
      {"file-missing", "kvdata/CLUB18.kv5", 0, "", [&] { folder.Remove("i/kvdata/CLUB18.kv5"); }},
      {"file-missing", "zddata/00011.ZL8", 0, "", [&] { folder.Remove("i/zddata/00011.ZL8"); }},
      {"file-missing", "qbdata/X0001.Q9T", 0, "", [&] { folder.Remove("i/qbdata/X0001.Q9T"); }},
      {"file-unreadable", "zddata/00012.ZT8", 0, "",
       [&] {
         folder.Remove("i/zddata/00012.ZT8");
         std::filesystem::create_directory(folder.Path("i/zddata/00012.ZT8"));
       }},
      {"file-sizes", "kvdata/CLUB18.kvs", 0, "CLUB18",
       [&] { Cut("kvdata/CLUB18.kvs", 11 * 14700); }},
      {"file-sizes", "zddata/00021.ZP8", 0, "Saturday Eighteen",
       [&] { Cut("zddata/00021.ZP8", 9 * 8012); }},
      {"file-sizes", "zddata/00011.ZT8", 0, "Thursday Twilight Nine",
       [&] { Put("zddata/00011.ZT8", 3 * 4400, std::string(4400, '\0')); }},
      {"file-sizes", "qbdata/X0001.Q9T", 0, "Autumn Medal",
       [&] { Cut("qbdata/X0001.Q9T", 2 * 1339); }},
      {"file-sizes", "zddata/00011.ZE8", 0, "Thursday Twilight Nine",
       [&] { Cut("zddata/00011.ZE8", 222); }},
      {"run-interrupted", "transfer-history", 0, "",
       [&] {
         In("golfers-kv-to-zd --roster CLUB18 --league 00021 --even-if-scored");
         for (const auto& [name, bytes] : AllFiles()) {
           if (name.ends_with(".run")) Put(name, 4 * 512, std::string(512, '\0'));
         }
       }},
      {"index-missing", "zddata/9CRSZD.INX", 0, "", [&] { folder.Remove("i/zddata/9CRSZD.INX"); }},
      {"index-count", "kvdata/ALLCRSKV.INX", 1, "",
       [&] { Put("kvdata/ALLCRSKV.INX", 0, Whole(7)); }},
      {"index-nowhere", "kvdata/ALLCRSKV.INX", 3, "",
       [&] { Put("kvdata/ALLCRSKV.INX", 4, Whole(6)); }},  // a deleted course
      {"index-nowhere", "kvdata/18CRSKV.INX", 2, "",
       [&] { Put("kvdata/18CRSKV.INX", 2, Whole(8)); }},
      {"index-stale", "qbdata/ALLCRSQB.INX", 0, "",
       [&] { Put("qbdata/ALLCRSQB.INX", 2, Whole(2) + Whole(3)); }},
      {"index-stale", "qbdata/18CRSQB.INX", 0, "", [&] { Put("qbdata/18CRSQB.INX", 0, Whole(2)); }},
      {"course-link-nowhere", "qbdata/qbcrs.dat", 3, "Dunes at Port Ellery",
       [&] { Put("qbdata/qbcrs.dat", 2 * 3226 + 1224, Whole(8)); }},
      {"course-link-wrong", "qbdata/qbcrs.dat", 1, "Quarry Hollow",
       [&] { Put("qbdata/qbcrs.dat", 1224, Whole(1)); }},
      {"course-twice", "qbdata/qbcrs.dat", 2, "LARKFIELD golf Club",
       [&] {
         Put("qbdata/qbcrs.dat", 4, FitText("Larkfield Golf Club", 30));
         Put("qbdata/qbcrs.dat", 1224, Whole(1));
         Put("qbdata/qbcrs.dat", 3226 + 4, "LARKFIELD golf Club");
       }},
      {"tee-rule", "kvdata/kvcrs.dat", 3, "Millpond Short Nine",
       [&] { Put("kvdata/kvcrs.dat", 2 * 3226 + 264, Whole(54)); }},
      {"id-twice", "kvdata/CLUB18.kvg", 2, "Calder, Tom",
       [&] { Put("kvdata/CLUB18.kvg", 2804 + 4, Whole(101)); }},
      {"golfer-twice", "kvdata/CLUB18.kvg", 2, "Bergstrom, Anna",
       [&] {
         Put("kvdata/CLUB18.kv5", 673, FitText("Birthday", 12));
         for (const std::size_t at : {0, 2804}) {
           Put("kvdata/CLUB18.kvg", at + 8, FitText("Anna", 11) + FitText("Bergstrom", 16));
           Put("kvdata/CLUB18.kvg", at + 561, later);
         }
       }},
      {"golfer-twice", "qbdata/QBGOLFER.Q9D", 22, "Bergstrom, Anna",
       [&] {
         std::string golfers = folder.Read("i/qbdata/QBGOLFER.Q9D");
         golfers.replace(9 * 1867 + 599, 8, later);
         std::string twin = RecordAt(golfers, 10, 1867);
         PutRecord(golfers, 22, twin.replace(4, 2, Whole(999)));
         folder.Write("i/qbdata/QBGOLFER.Q9D", golfers);
       }},
      {"golfer-twice", "kvdata/CLUB18.kvg", 13, "Eames, Walt",
       [&] {
         std::string golfers = folder.Read("i/kvdata/CLUB18.kvg");
         std::string twin = RecordAt(golfers, 4, 2804);
         PutRecord(golfers, 13, twin.replace(4, 2, Whole(999)));
         folder.Write("i/kvdata/CLUB18.kvg", golfers);
         std::string histories = folder.Read("i/kvdata/CLUB18.kvs");
         PutRecord(histories, 13, RecordAt(histories, 4, 14700));
         folder.Write("i/kvdata/CLUB18.kvs", histories);
       }},
      {"id-twice", "zddata/00012.ZP8", 3, "Duarte, Ines",
       [&] {
         Put("zddata/00012.ZP8", 2 * 8012 + 4, folder.Read("i/zddata/00012.ZP8").substr(8016, 4));
       }},
      {"id-twice", "kvdata/NINE9.kvg", 4, "Quill, Finn",
       [&] { Put("kvdata/NINE9.kvg", 3 * 2804 + 4, Whole(104)); }},
      {"id-differs", "kvdata/CLUB18.kvg", 4, "Eames, Walt",
       [&] { Put("qbdata/QBGOLFER.Q9D", 12 * 1867 + 4, Whole(888)); }},
      {"golfer-without-id", "kvdata/CLUB18.kvg", 12, "Marlow, Ben",
       [&] { Put("kvdata/CLUB18.kvg", 11 * 2804 + 4, Whole(0)); }},
      {"golfer-on-no-roster", "qbdata/QBGOLFER.Q9D", 10, "Bergstrom, Anna",
       [&] { Put("qbdata/QBGOLFER.Q9D", 9 * 1867 + 8, std::string(8, '\0')); }},
      {"roster-missing", "qbdata/QBGOLFER.Q9D", 10, "Bergstrom, Anna",
       [&] { Put("qbdata/QBGOLFER.Q9D", 9 * 1867 + 8, Whole(3)); }},
      {"half-waits", "kvdata/CLUB18.kvg", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvg", 454, "\x28"); }},
      {"history-count", "kvdata/CLUB18.kvs", 12, "Marlow, Ben",
       [&] { Put("kvdata/CLUB18.kvg", 11 * 2804 + 455, Whole(19)); }},
      {"history-order", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 49 + 8, later); }},
      {"score-date", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 8, never); }},
      {"score-value", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 35, std::string(1, '\0')); }},
      {"score-value", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 16, std::string(18, '\7')); }},  // 126 strokes
      {"score-course", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 0, Whole(8)); }},
      {"score-course-deleted", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 0, Whole(6)); }},
      {"score-tee", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 2, "\4"); }},
      {"entry-no-golfer", "qbdata/X0001.Q9G", 1, "Autumn Medal",
       [&] { Put("qbdata/X0001.Q9G", 0, Whole(9)); }},
      {"entry-twice", "qbdata/X0001.Q9G", 2, "Bergstrom, Anna",
       [&] { Put("qbdata/X0001.Q9G", 3052, Whole(10)); }},
      {"entry-team", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna",
       [&] { Put("qbdata/X0001.Q9G", 4, Whole(4)); }},
      {"entry-tee", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna",
       [&] { Put("qbdata/X0001.Q9G", 149, Whole(2)); }},
      {"entry-score", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna",
       [&] { Put("qbdata/X0001.Q9G", 443 + 2 * 17, Whole(21)); }},
      {"tournament-date", "qbdata/X0001.Q9C", 1, "Autumn Medal",
       [&] { Put("qbdata/X0001.Q9C", 116, std::string(8, '\0')); }},
      {"league-score", "zddata/00021.ZP8", 1, "Farrow, Ruth",
       [&] { Put("zddata/00021.ZP8", 870, Whole(200)); }},
      {"history-count", "kvdata/CLUB18.kvs", 12, "Marlow, Ben",
       [&] { Put("kvdata/CLUB18.kvg", 11 * 2804 + 457, Whole(1)); }},
      {"score-value", "kvdata/CLUB18.kvs", 1, "Bergstrom, Anna",
       [&] { Put("kvdata/CLUB18.kvs", 35, "\x27"); }},  // 39 on 18 holes
      {"team-full", "qbdata/X0001.Q9G", 0, "Autumn Medal",
       [&] {
         for (int entry = 0; entry < 5; ++entry) {
           Put("qbdata/X0001.Q9G", static_cast<std::size_t>(entry) * 3052 + 4, Whole(2));
         }
       }},
      {"tournament-count", "qbdata/X0001.Q9C", 1, "Autumn Medal",
       [&] { Put("qbdata/X0001.Q9C", 50, Whole(9)); }},
      {"tournament-course", "qbdata/X0001.Q9C", 1, "Autumn Medal",
       [&] { Put("qbdata/X0001.Q9C", 166, Whole(4)); }},
      {"tournament-tee", "qbdata/X0001.Q9C", 1, "Autumn Medal",
       [&] { Put("qbdata/X0001.Q9C", 180, Whole(4)); }},           // of the ladies in round 1
      {"posted-not-found", "qbdata/X0001.Q9G", 11, "Stoll, Vera",  // not in Kelvane
       [&] { Put("qbdata/X0001.Q9G", 10 * 3052 + 30, Whole(2)); }},
      {"posted-not-found", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna",
       [&] { Put("qbdata/X0001.Q9G", 30, Whole(2)); }},
      {"found-not-posted", "qbdata/X0001.Q9G", 1, "Bergstrom, Anna",
       [&] {
         In("scores-qb-to-kv --tournament 1 --round 2 --roster CLUB18");
         Put("qbdata/X0001.Q9G", 32, Whole(0));
       }},
      {"league-event", "zddata/00021.ZP8", 1, "Farrow, Ruth",
       [&] { Put("zddata/00021.ZP8", 870 + 2 * 49, Whole(80)); }},
      {"league-event", "zddata/00021.ZL8", 1, "Saturday Eighteen",
       [&] { Put("zddata/00021.ZL8", 94, Whole(1)); }},
      {"league-event", "zddata/00021.ZL8", 1, "Saturday Eighteen",
       [&] { Put("zddata/00021.ZL8", 94, Whole(14)); }},
      {"league-date", "zddata/00021.ZE8", 12, "Saturday Eighteen",
       [&] { Put("zddata/00021.ZE8", 11 * 222 + 2, std::string(4, '\0')); }},
      {"league-substitutes", "zddata/00021.ZL8", 1, "Saturday Eighteen",
       [&] { Put("zddata/00021.ZL8", 82, Whole(7)); }},
      {"league-substitutes", "zddata/00021.ZL8", 1, "Saturday Eighteen",
       [&] { Put("zddata/00021.ZL8", 82, Whole(9)); }},
      {"league-team", "zddata/00021.ZP8", 1, "Farrow, Ruth",
       [&] { Put("zddata/00021.ZP8", 470, Whole(6)); }},
      {"league-course", "zddata/00021.ZT8", 1, "Saturday Eighteen",
       [&] { Put("zddata/00021.ZT8", 2300, Whole(3)); }},
      {"name-spelling", "zddata/00021.ZP8", 1, "Farr\xC3\xB3w, Ruth",
       [&] { Put("zddata/00021.ZP8", 23, "Farr\xF3w"); }},
      {"name-spelling", "kvdata/CLUB18.kvg", 1, "Bergstrom, An na",
       [&] { Put("kvdata/CLUB18.kvg", 8, "An na"); }},
      {"name-spelling", "zddata/zdcrs.dat", 1, "Lark field Golf Club",
       [&] { Put("zddata/zdcrs.dat", 4, FitText("Lark field Golf Club", 30)); }},
      {"name-cut", "zddata/00021.ZP8", 1, "Farrow, Ruth Isabella",
       [&] { Put("zddata/00021.ZP8", 8, "Ruth Isabella"); }},
  };
  const std::vector<json> sound = JsonLines(In("check --json").out);
  EXPECT_EQ(In("check").code, 0);
  const auto pristine = AllFiles();
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(c.code) + " " + c.file + " " + std::to_string(c.record));
    c.plant();
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
