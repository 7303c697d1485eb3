// Tests the history of runs, undo and recovery on the demonstration with the real program.

#include <set>

#include "cli/command_line_fixture.h"
#include "core/text.h"
#include "history/deeds.h"
#include "outlets/file_kinds.h"
#include "support/bytes.h"

namespace golf {
namespace {

using nlohmann::json;

constexpr const char* kGolfersKvToQb =
    "golfers-kv-to-qb --roster CLUB18 --to 1 --items Flight --update-tournament";
constexpr const char* kOneTransaction = "golfers-kv-to-qb --roster CLUB18 --to 1";
constexpr const char* kTransfers[] = {
    "courses-kv-to-qb",
    kGolfersKvToQb,
    "golfers-kv-to-zd --roster CLUB18 --league 00021 --percent 80 --even-if-scored",
    "golfers-zd-to-qb --league 00011 --to 1 --double --subs",
    "scores-qb-to-kv --tournament 1 --round 1 --roster CLUB18",
    "scores-zd-to-kv --league 00021 --batch 2 --roster CLUB18 --again no"};

std::size_t LengthOf(const std::string& file) {
  return LayoutOfFile(file.substr(file.find('/') + 1))->length;
}

class HistoryTest : public CommandLineTest {
 protected:
  void Transfer(const std::string& words) { ASSERT_EQ(In(words).code, 0) << words; }

  // Returns the kept runs by their running numbers, such as "3 done, 2 undone".
  std::string States() {
    std::string states;
    for (const json& run : JsonLines(In("history --json").out)) {
      states +=
          (states.empty() ? "" : ", ") + run["file"].dump() + " " + run["state"].get<std::string>();
    }
    return states;
  }
  void Write(const std::string& file, const std::string& bytes) {
    folder.Write("i/" + file, bytes);
  }

  void AddEntryOfGolfer22() {
    Edit("qbdata/X0001.Q9G", [](std::string& entries) {
      std::string entry = RecordAt(entries, 1, 3052);
      Put16(entry, 0, {22});
      entries += entry;
    });
  }

  void WriteAll(const Tree& files) {
    for (const auto& [name, bytes] : files) Write(name, bytes);
  }

  // Returns the name of a run's history file.
  std::string HistoryFile(int run) const {
    const std::string beginning = "transfer-history/00000" + std::to_string(run);
    return AllFiles().lower_bound(beginning)->first;
  }
  // Erases marks of a history file. Without "done" it is that of a crashed run.
  void Interrupt(int run, std::initializer_list<std::size_t> marks = {4}) {
    for (const std::size_t mark : marks) {
      Put(HistoryFile(run), mark * 512, std::string(512, '\0'));
    }
  }
};

using Names = std::set<std::string>;

Names FilesThatDiffer(const std::map<std::string, std::string>& some,
                      const std::map<std::string, std::string>& others) {
  std::map<std::string, std::string> differing;
  std::set_symmetric_difference(some.begin(), some.end(), others.begin(), others.end(),
                                std::inserter(differing, differing.end()));
  Names files;
  for (const auto& file : differing) files.insert(file.first);
  return files;
}

// Returns the changes without repetitions. A run of two transactions may report a change in both, a
// dry run reports it once.
Names ChangesIn(const std::vector<json>& events) {
  Names changes;
  for (const json& event : events) {
    if (event["event"] == "change") changes.insert(event.dump());
  }
  return changes;
}

// Returns the other events, and the result without the values that differ in a dry run.
std::vector<json> WithoutChanges(std::vector<json> events) {
  std::erase_if(events, [](const json& event) { return event["event"] == "change"; });
  events.back().erase("dryRun");
  events.back().erase("history");
  return events;
}

TEST_F(HistoryTest, UndoGivesBackEveryByteOfEachTransfer) {
  const std::string index = folder.Read("i/qbdata/18CRSQB.INX");
  folder.Remove("i/qbdata/18CRSQB.INX");  // the first transfer makes it
  for (const std::string transfer : kTransfers) {
    SCOPED_TRACE(transfer);
    const Tree before = Data();
    const Tree everything = AllFiles();
    const auto dry = JsonLines(In(transfer + " --json --dry-run").out);
    EXPECT_TRUE(AllFiles() == everything);
    const auto events = JsonLines(In(transfer + " --json").out);
    EXPECT_EQ(events.back()["dryRun"], false);
    EXPECT_EQ(WithoutChanges(dry), WithoutChanges(events));
    const int run = events.back()["history"];
    const Tree after = Data();
    ASSERT_NE(FilesThatDiffer(before, after), Names());

    const Tree all = AllFiles();
    const auto shown = JsonLines(In("history show 1 --json").out);
    EXPECT_EQ(In("undo --dry-run").code, 0);
    EXPECT_EQ(In("history").code, 0);
    EXPECT_TRUE(AllFiles() == all);
    Names told;
    for (const json& change : shown) {
      if (change["event"] == "change") told.insert(change["file"]);
    }
    EXPECT_EQ(told, FilesThatDiffer(before, after));
    EXPECT_EQ(ChangesIn(dry), ChangesIn(shown));

    const auto undone = JsonLines(In("undo --json").out);
    EXPECT_EQ(undone.back()["run"], run);
    EXPECT_EQ(undone.back()["history"], run + 1);
    EXPECT_TRUE(Data() == before);
    ASSERT_EQ(In("undo 1").code, 0);
    EXPECT_TRUE(Data() == after);
    const std::string first = std::to_string(run);
    EXPECT_TRUE(States().starts_with(std::to_string(run + 2) + " done, " + std::to_string(run + 1) +
                                     " undone, " + first + " done"))
        << States();
    // An undo without a number undoes the transfer and not the undo of its undo.
    ASSERT_EQ(In("undo").code, 0);
    EXPECT_TRUE(Data() == before);
    EXPECT_EQ(In("undo 4").code, 1);  // undone already
    EXPECT_EQ(In("undo 3").code, 1);
    ASSERT_EQ(In("history forget all").code, 0);
    EXPECT_EQ(States(), "");
    Write("qbdata/18CRSQB.INX", index);
  }
  EXPECT_EQ(In("undo").code, 1);
}

TEST_F(HistoryTest, UndoGivesBackEveryByteOfEachClick) {
  for (const Deed& deed : kDeeds) {
    if (std::string_view(deed.name).find("-to-") != std::string_view::npos) continue;  // a transfer
    SCOPED_TRACE(deed.name);
    const Tree before = Data();
    ASSERT_EQ(Script(deed.script).code, 0);
    const Tree after = Data();
    ASSERT_FALSE(after == before);
    const auto runs = JsonLines(In("history --json").out);
    EXPECT_EQ(runs.back()["command"], deed.name);
    // The indexes of a library follow its courses, also those that another run has written.
    ASSERT_EQ(In("undo " + std::to_string(runs.size())).code, 0);
    EXPECT_EQ(FilesThatDiffer(before, Data()), Names());
    ASSERT_EQ(In("undo 1").code, 0);
    EXPECT_EQ(FilesThatDiffer(after, Data()), Names());
    ASSERT_EQ(In("history forget all").code, 0);
    Restore(before);
  }
}

TEST_F(HistoryTest, ARunThatChangesNothingIsNotKept) {
  Transfer(kTransfers[0]);
  const auto events = JsonLines(In(std::string(kTransfers[0]) + " --json").out);
  EXPECT_EQ(events.back()["history"], nullptr);
  EXPECT_EQ(States(), "1 done");
}

TEST_F(HistoryTest, ChangesHaveTheFormOfADump) {
  Transfer(kGolfersKvToQb);
  const auto events = JsonLines(In("history show 1 --json").out);
  EXPECT_EQ(events[0]["event"], "report");
  EXPECT_EQ(events[1], json::parse(R"j({"event":"change","file":"qbdata/QBGOLFER.Q9D","record":10,
      "kind":"changed","title":"Bergstrom, Anna","fields":[
      {"name":"AddressHomeLine(1)","old":"","new":"12 Fairway Road"},
      {"name":"AddressHomeLine(2)","old":"","new":"Larkfield, OH"},
      {"name":"PhoneHome","old":"","new":"555-0101"}]})j"));
  const auto added = std::find_if(events.begin(), events.end(), [](const json& event) {
    return event.value("kind", "") == "added";
  });
  ASSERT_NE(added, events.end());
  EXPECT_EQ((*added)["record"], 22);
  EXPECT_EQ((*added)["fields"][0], json::parse(R"({"name":"IDNum","old":null,"new":111})"));
  const std::string text = In("history show 1").out;
  EXPECT_NE(text.find("10 golfers updated."), std::string::npos);
  EXPECT_NE(text.find("\n10 golfers changed, 2 added in Quenby; 12 tournament entries changed in "
                      "Quenby; 2 files\n"),
            std::string::npos);
  // The records of a golfer follow each other.
  EXPECT_NE(
      text.find(
          "\n\nDuarte, Ines: changed in qbdata/QBGOLFER.Q9D, record 12\n"
          "  AddressHomeLine(1) to (2)  \"\", \"\" -> \"14 Fairway Road\", \"Larkfield, OH\"\n"
          "  PhoneHome                  \"\" -> \"555-0103\"\n"
          "Duarte, Ines (Autumn Medal): changed in qbdata/X0001.Q9G, record 3\n"
          "  TourIndex(3) to (7)          0 0 0 0 0 -> 22.5 22.5 22.5 22.5 22.5\n"),
      std::string::npos)
      << text;
}

// The golfer is no longer in the roster, so the history has the name that the run has noted.
TEST_F(HistoryTest, AChangeKeepsTheNameOfItsGolfer) {
  Transfer(kTransfers[4]);
  Write("kvdata/CLUB18.kvg", "");
  for (const json& change : JsonLines(In("history show 1 --json").out)) {
    if (change.value("file", "") != "kvdata/CLUB18.kvs" || change["record"] != 1) continue;
    EXPECT_EQ(change["title"], "Bergstrom, Anna");
    return;
  }
  ADD_FAILURE() << "no change";
}

// The section is the last one of the output. The log and the stored report contain it, too.
TEST_F(HistoryTest, WhoIsLeftOutAndWhy) {
  const std::string zeros(4, '\0');
  const struct {
    std::string words;
    const char* file;  // gets these bytes before
    std::size_t at;
    std::string bytes;
    const char* section;
  } kCases[] = {
      {"golfers-kv-to-qb --roster CLUB18 --to 1 --marked-only", "kvdata/CLUB18.kvg", 0, zeros,
       "Left out: 5\n  5 not marked to print\n    Duarte, Ines\n    Farrow, Ruth\n"
       "    H\xC3\xB6lzer, Lena\n    Jarvis, Peg\n    Lindqvist, Nora\n"},
      {kTransfers[2], "kvdata/CLUB18.kvg", 4, zeros,
       "Left out: 4\n  1 without an ID number\n    Bergstrom, Anna\n"
       "  3 not in this league\n    Calder, Tom\n    Duarte, Ines\n    Eames, Walt\n"},
      {kTransfers[5], "zddata/00021.ZP8", 972, zeros,
       "Left out: 1\n  1 without a score\n    Farrow, Ruth\n"},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(c.section);
    MakeDemo();
    Put(c.file, c.at, c.bytes);
    EXPECT_TRUE(In(c.words + " --dry-run").out.ends_with(c.section));
    EXPECT_TRUE(In(c.words + " --log log").out.ends_with(c.section));
    EXPECT_TRUE(In("history show 1").out.ends_with(std::string("\n\n") + c.section));
    std::string log = folder.Read("log");
    std::erase(log, '\r');  // the log has the line ends of the system
    EXPECT_NE(log.find(c.section), std::string::npos) << log;
  }
  // The score was not posted, and the others are posted already.
  const json left_out = JsonLines(In(std::string(kTransfers[5]) + " --json").out).back()["leftOut"];
  ASSERT_EQ(left_out.size(), 9u);
  EXPECT_EQ(left_out[0], json::parse(R"({"title":"Farrow, Ruth","reason":"without a score"})"));
  EXPECT_EQ(left_out[1]["title"], "Grimaldi, Hugo (89)");
  EXPECT_EQ(left_out[1]["reason"], "already transferred, and not transferred again");
  EXPECT_EQ(JsonLines(In("courses-kv-to-qb --json").out).back()["leftOut"], json::array());
  EXPECT_EQ(In("courses-kv-to-qb").out.find("Left out"), std::string::npos);
  // A second update of the tournament changes nothing.
  Transfer(kGolfersKvToQb);
  EXPECT_NE(In(kGolfersKvToQb).out.find("with the same handicap and index already\n    Bergstrom"),
            std::string::npos);
}

// A golfer without an ID number is written into a free record, which stays free for Quenby.
TEST_F(HistoryTest, ChangesOfFreeAndEmptyRecordsAreShown) {
  Put("qbdata/QBGOLFER.Q9D", 20 * 1867, std::string(1867, '\0'));
  Put("kvdata/CLUB18.kvg", 11 * 2804 + 4, std::string(4, '\0'));  // the ID of golfer 12
  Write("kvdata/CLUB18.kvs", "");
  std::string shown;
  for (const std::string words : {"golfers-kv-to-qb --roster CLUB18 --to 1",
                                  "scores-zd-to-kv --league 00021 --batch 2 "
                                  "--roster CLUB18 --again yes"}) {
    for (const json& event : JsonLines(In(words + " --dry-run --json").out)) {
      const int record = event.value("record", 0);
      const std::string file = event.value("file", "");
      if (record < 21 && (!file.ends_with("kvs") || record > 2)) continue;
      shown += event["kind"].get<std::string>() + ' ' + event["title"].get<std::string>();
      for (const json& field : event.value("fields", json::array())) {
        if (field["name"] == "NameFirst") shown += " " + field["old"].dump();
      }
      shown += '\n';
    }
  }
  EXPECT_EQ(shown, "changed Marlow, Ben " + json(std::string(11, '\0')).dump() +
                       "\nadded Bergstrom, Anna\nadded Calder, Tom\n");
}

// Another program changes a byte of what a run has written, in each kind of file.
TEST_F(HistoryTest, AConflictRefusesAndKeepsTheWholeGolfer) {
  const struct {
    int transfer;
    const char* file;
    std::size_t behind;  // the first byte that the run has changed
    const char* field;
    const char* golfer;  // or course
  } kCases[] = {
      {0, "qbdata/qbcrs.dat", 0, "", ""},
      {1, "qbdata/QBGOLFER.Q9D", 0, "AddressHomeLine(1)", "Bergstrom, Anna"},
      // The run has not changed this byte, but other bytes of the field.
      {1, "qbdata/QBGOLFER.Q9D", 29, "AddressHomeLine(1)", "Bergstrom, Anna"},
      {1, "qbdata/X0001.Q9G", 0, "TourIndex(3)", "Bergstrom, Anna"},
      {2, "zddata/00021.ZP8", 0, "", ""},
      {3, "qbdata/QBGOLFER.Q9D", 0, "", ""},
      {4, "qbdata/X0001.Q9G", 0, "TourFlags(1)", "Bergstrom, Anna"},
      {4, "kvdata/CLUB18.kvg", 0, "", "Bergstrom, Anna"},
      {5, "kvdata/CLUB18.kvs", 0, "", ""},
  };
  for (const auto& c : kCases) {
    SCOPED_TRACE(std::string(kTransfers[c.transfer]) + " " + c.file);
    MakeDemo();
    const Tree before = Data();
    Transfer(kTransfers[c.transfer]);
    Tree after = Data();
    std::string& bytes = after.at(c.file);
    const std::string& old_bytes = before.at(c.file);
    const auto first = std::mismatch(old_bytes.begin(), old_bytes.end(), bytes.begin()).second;
    const std::size_t at = static_cast<std::size_t>(first - bytes.begin()) + c.behind;
    ASSERT_LT(at, bytes.size());
    const auto changes = JsonLines(In("history show 1 --json").out);
    bytes[at] = static_cast<char>(bytes[at] + 0x21);
    Write(c.file, bytes);

    const Ended refused = In("undo --json");
    EXPECT_EQ(refused.code, 1);
    EXPECT_NE(refused.problems.find("--skip-changed"), std::string::npos);
    EXPECT_TRUE(Data() == after);
    const auto conflicts = JsonLines(refused.out);
    ASSERT_FALSE(conflicts.empty());
    const json& conflict = conflicts[0];
    EXPECT_EQ(conflict["event"], "conflict");
    EXPECT_TRUE(EqualIgnoringCase(conflict["file"].get<std::string>(), c.file)) << conflict;
    EXPECT_EQ(conflict["record"], at / LengthOf(c.file) + 1);
    EXPECT_NE(conflict["written"], conflict["found"]);
    const std::string field = conflict["name"];
    EXPECT_TRUE(field.starts_with(c.field)) << field;
    const std::string title = conflict["title"];
    EXPECT_TRUE(title.starts_with(c.golfer)) << title;
    ASSERT_NE(title, "");

    // What belongs to the golfer stays; everything else is as before.
    ASSERT_EQ(In("undo --skip-changed").code, 0);
    const Tree undone = Data();
    const std::string name = title.substr(0, title.find(" ("));
    int kept = 0;
    for (const json& change : changes) {
      if (!change.contains("record") || change["file"].get<std::string>().ends_with(".INX")) {
        continue;
      }
      const std::string in = change["file"];
      const auto record = change["record"].get<std::size_t>();
      const bool stays = change["title"].get<std::string>().starts_with(name);
      const Tree& expected = stays ? after : before;
      EXPECT_EQ(RecordAt(undone.at(in), record, LengthOf(in)),
                RecordAt(expected.at(in), record, LengthOf(in)))
          << change["title"];
      if (stays) ++kept;
    }
    EXPECT_GE(kept, 1);
  }
}

TEST_F(HistoryTest, IndexesFollowACourseThatStays) {
  Transfer(kTransfers[0]);
  EXPECT_NE(In("history show 1").out.find("Number of courses ADDED: 5\n"), std::string::npos);
  const std::size_t courses = folder.Read("i/qbdata/qbcrs.dat").size() / 3226;
  Put("qbdata/qbcrs.dat", (courses - 1) * 3226 + 34, "!");  // the address
  ASSERT_EQ(In("undo --skip-changed").code, 0);
  // The index contains the number of courses, and their records in the order of the names.
  EXPECT_EQ(folder.Read("i/qbdata/ALLCRSQB.INX").substr(0, 10), Index({4, 8, 3, 2, 1}));
}

TEST_F(HistoryTest, AnAddedGolferWhoPlaysByNowStays) {
  const Tree before = Data();
  Transfer(kGolfersKvToQb);
  AddEntryOfGolfer22();
  const Ended refused = In("undo");
  EXPECT_EQ(refused.code, 1);
  EXPECT_TRUE(
      refused.problems.starts_with("Lindqvist, Nora: qbdata/QBGOLFER.Q9D, record 22\n"
                                   "  Tournament \"Autumn Medal\" refers to it by now.\n"))
      << refused.problems;
  const std::string golfers = folder.Read("i/qbdata/QBGOLFER.Q9D");
  ASSERT_EQ(In("undo --skip-changed").code, 0);
  std::string expected = before.at("qbdata/QBGOLFER.Q9D");
  PutRecord(expected, 22, RecordAt(golfers, 22, 1867));
  PutRecord(expected, 23, std::string(1867, '\0'));  // not cut: nothing else shows where it ends
  EXPECT_TRUE(folder.Read("i/qbdata/QBGOLFER.Q9D") == expected);
}

TEST_F(HistoryTest, AReferenceThatIsOlderThanTheRunKeepsNoGolfer) {
  AddEntryOfGolfer22();
  const Tree before = Data();
  Transfer(kGolfersKvToQb);
  ASSERT_EQ(In("undo").code, 0);
  EXPECT_TRUE(Data() == before);
}

TEST_F(HistoryTest, OthersWhoFollowAnAddedGolferKeepHim) {
  Transfer(kGolfersKvToQb);
  Edit("qbdata/QBGOLFER.Q9D",
       [](std::string& golfers) { PutRecord(golfers, 24, RecordAt(golfers, 10, 1867)); });
  const auto events = JsonLines(In("undo --json").out);
  ASSERT_EQ(events.size(), 2u);
  EXPECT_EQ(events[1], json::parse(R"({"event":"conflict","file":"qbdata/QBGOLFER.Q9D","record":23,
      "title":"Marlow, Ben","reason":"Other records follow it by now."})"));
}

TEST_F(HistoryTest, WhatIsAsBeforeAlreadyCountsAsUndone) {
  const Tree before = Data();
  Transfer(kTransfers[4]);
  WriteAll(before);
  EXPECT_EQ(In("undo").code, 0);
  EXPECT_TRUE(Data() == before);
  EXPECT_EQ(States(), "1 undone");
  EXPECT_EQ(In("undo").code, 1);
}

TEST_F(HistoryTest, ForgettingAnUndoLeavesItsRunUndone) {
  Transfer(kTransfers[0]);
  Transfer(kTransfers[4]);
  ASSERT_EQ(In("undo").code, 0);
  ASSERT_EQ(In("history forget 1").code, 0);
  EXPECT_EQ(States(), "2 undone, 1 done");
  EXPECT_EQ(In("history forget 3").code, 1);
  EXPECT_EQ(In("history forget one").code, 2);
}

TEST_F(HistoryTest, AnInterruptedRunIsInTheWayUntilItIsDecidedAbout) {
  constexpr const char* kReading[] = {"list courses", "history", "course check",
                                      "results players --tournament 1",
                                      "dump qbdata/QBGOLFER.Q9D --record 10"};
  const Tree before = Data();
  Transfer(kOneTransaction);
  const Tree after = Data();
  const std::string golfers = "qbdata/QBGOLFER.Q9D";
  std::string changed = after.at(golfers);
  changed[9 * 1867 + 44] = '?';
  Write(golfers, changed);
  // The undone golfers, but for the byte that another program has changed.
  std::string put_back = before.at(golfers);
  put_back.replace(9 * 1867, 1867, changed.substr(9 * 1867, 1867));
  const struct {
    const char* choice;
    const char* state;
    const std::string& golfers;
  } kChoices[] = {{"--finish", "1 done", changed},
                  {"--put-back", "", put_back},
                  {"--leave", "1 left", changed}};
  for (const auto& c : kChoices) {
    SCOPED_TRACE(c.choice);
    WriteAll(after);
    Write(golfers, changed);
    Interrupt(1, {2, 3, 4, 5});
    const Tree all = AllFiles();
    for (const std::string words : kReading) {
      const Ended ended = In(words);
      EXPECT_EQ(ended.code, 0) << words;
      EXPECT_TRUE(ended.problems.starts_with("A run is unfinished.")) << words << ended.problems;
    }
    EXPECT_EQ(States(), "1 interrupted");
    for (const std::string words :
         {"courses-kv-to-qb", "courses-kv-to-qb --json", "undo", "undo --json", "undo --dry-run",
          "history forget 1", "history forget all"}) {
      const Ended ended = In(words);
      EXPECT_EQ(ended.code, 1) << words;
      EXPECT_NE(ended.problems.find("recover"), std::string::npos) << words << ended.problems;
    }
    EXPECT_TRUE(AllFiles() == all);
    const Ended recovered = In(std::string("recover ") + c.choice);
    EXPECT_EQ(recovered.code, 0) << recovered.problems;
    EXPECT_EQ(States(), c.state);
    EXPECT_TRUE(Data().at(golfers) == c.golfers);
    EXPECT_EQ(In("list courses").problems, "");
    EXPECT_EQ(In("recover --finish").out, "No run is unfinished.\n");
  }
  EXPECT_EQ(In("undo --skip-changed").code, 1);  // a run that is left cannot be undone
  Transfer(kTransfers[0]);
  EXPECT_EQ(In("history forget all").code, 0);
  EXPECT_EQ(In("recover").code, 2);
  EXPECT_EQ(In("recover --finish --leave").code, 2);
}

TEST_F(HistoryTest, DamagedHistoryFilesAreTold) {
  Transfer(kTransfers[0]);
  Transfer(kTransfers[4]);
  const std::string bytes = folder.Read("i/" + HistoryFile(2));
  for (const std::size_t size :
       {std::size_t{100}, std::size_t{4096}, bytes.size() - 1, std::size_t{4200}}) {
    std::string damaged = bytes.substr(0, size);
    if (size > 4200) damaged[5000] = static_cast<char>(damaged[5000] + 1);
    Write(HistoryFile(2), damaged);
    for (const std::string words :
         {"history", "history show 1", "history show 2", "undo 1 --dry-run", "undo 2 --dry-run"}) {
      const Ended ended = In(words);
      EXPECT_LE(ended.code, 3) << words;
      EXPECT_EQ(ended.problems.find("fault of the program"), std::string::npos) << words;
    }
  }
  const Ended ended = In("history");
  EXPECT_EQ(ended.code, 0);
  EXPECT_NE(ended.problems.find("is damaged."), std::string::npos);
}

TEST_F(HistoryTest, ALogGetsEveryEnd) {
  const struct {
    const char* words;
    int code;
    const char* logged;
    const char* end;
  } kRuns[] = {
      {"courses-kv-to-qb", 0, "Number of courses ADDED: 5", "\nRun 1 of the history.\n\n"},
      {"golfers-kv-to-qb --roster NONE --to 1", 1, "Kelvane has no roster NONE.",
       "\nNothing was changed. Exit code 1.\n\n"},
      // The roster is marked before its holes are compared.
      {"scores-qb-to-kv --tournament 1 --round 1 --roster NINE9 --json", 1, "9 hole",
       "\nRun 2 of the history. Exit code 1.\n\n"},
      {"scores-qb-to-kv --tournament 1 --round 1 --roster CLUB18 --json", 0, "10 Scores",
       "\nRun 3 of the history.\n\n"},
  };
  for (const auto& run : kRuns) {
    folder.Write("log", "first\n");
    EXPECT_EQ(In(std::string(run.words) + " --log log").code, run.code) << run.words;
    std::string log = folder.Read("log");
    std::erase(log, '\r');  // the system's own line ends
    EXPECT_TRUE(log.starts_with("first\n2026-05-13 12:00:00  " +
                                std::string(run.words).substr(0, std::string(run.words).find(' ')) +
                                "\n"))
        << log;
    EXPECT_NE(log.find(run.logged), std::string::npos) << log;
    EXPECT_TRUE(log.ends_with(run.end)) << log;
  }
  folder.Write("log", "");
  const HeldFile held(folder.Path("i/qbdata/qbcrs.dat"));
  EXPECT_EQ(In("courses-kv-to-qb --log log").code, 4);
  EXPECT_NE(folder.Read("log").find("Error # 70"), std::string::npos);
  EXPECT_EQ(In("courses-kv-to-qb --log i").code, 1);
}

// The example in the help of each command runs on the demonstration.
TEST_F(HistoryTest, ExamplesRun) {
  for (const char* words :
       {"list", "dump", "results", "course show", "course check", "courses-kv-to-qb",
        "golfers-kv-to-qb", "golfers-kv-to-zd", "golfers-zd-to-qb", "scores-qb-to-kv",
        "scores-zd-to-kv", "history", "history show", "history forget", "undo", "recover"}) {
    const std::string help = Run(std::string(words) + " --help").out;
    std::filesystem::remove_all(folder.Path("golf-demo"));
    ASSERT_EQ(Run("demo golf-demo").code, 0);
    std::istringstream lines(help.substr(help.find("Example:")));
    int examples = 0;
    for (std::string line; std::getline(lines, line);) {
      constexpr std::string_view kProgram = "  golf-transfer-cli ";
      if (!line.starts_with(kProgram)) continue;
      ++examples;
      const Ended ended = Run(line.substr(kProgram.size()));
      EXPECT_EQ(ended.code, 0) << line << ended.problems;
    }
    EXPECT_GE(examples, 1) << words;
  }
}

}  // namespace
}  // namespace golf
