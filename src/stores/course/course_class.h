#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/shared_state.h"
#include "stores/course/course_digest.h"
#include "stores/course/course_layout.h"

namespace golf {

// One course library: the course file and three index files in CourseDataPath, named by
// ActiveProgram. Holds one course, the current record, with its tee lists, and the lists of
// courses. A caller sets CourseDataPath and ActiveProgram, then calls OpenCourseFile.
//
// Every operation on files may raise the numbered errors of FileTable; nothing is caught here. A
// getter or setter raises error 9 for a tee outside 1 to 6, a hole outside 1 to 18 or a group
// outside 0 to 1, and a setter error 6 for a number too large for its field. Numbers become whole
// by rounding half to even. Setters check nothing else and change the current record only.
class CourseClass {
 public:
  explicit CourseClass(SharedState& state) : state_(state), digests_(state.files) {}
  CourseClass(const CourseClass&) = delete;
  CourseClass& operator=(const CourseClass&) = delete;

  // Library files. A missing one comes into being empty.

  void OpenCourseFile();
  void CloseCourseFile();
  // "9CRS", "18CRS" or "ALLCRS".
  void OpenCourseIndexFile(std::string_view list_name);
  // Whole records of the open course file.
  std::int32_t CourseFileLength();
  std::int32_t CourseFileNumber() const { return course_file_; }

  // Replaces the current record.
  void CopyCourseRecord(std::int32_t from_record, std::int32_t from_file, std::int32_t to_record,
                        std::int32_t to_file);
  void BuildBlankRecord();
  // Makes a record current and builds its tee lists. 0 is the 18-hole away course, -1 the 9-hole
  // one, any other number without a record an invalid course; a deleted course comes as it is.
  void GetRecord(std::int32_t record);
  // Writes the current record, if there is a record of this number or it is the next new one, and
  // reads the course lists anew: afterwards the current record and Index hold what the lists read
  // last.
  void SaveRecord(std::int32_t record);
  // The number behind the current record; 0 after a course without a record.
  std::int32_t CurrentRecord() const { return current_; }

  // Course lists, as old as the last of these calls.

  void UpdateAllCourseLists();
  // Writes Index at this record of the open index file.
  void SaveIndexRecord(std::int32_t position);
  // The records of all active courses, sorted by name in capitals; equal names in file order.
  std::vector<std::int32_t> ActiveCoursesByName();
  // What lists show of a record, as old as the last call above; null where there is none.
  const CourseDigest* FindDigest(std::int32_t record) const { return digests_.Find(record); }
  // Writes the three index files from the records given, in their order. Files are not cut.
  void RebuildCourseIndexes(const std::vector<std::int32_t>& sorted_records);

  // The last value read from or to be written to an index file.
  std::int16_t Index() const { return index_.Get<"Index">(); }
  void SetIndex(double value);

  std::int32_t Course9NumberofCourses() const { return courses9_.Count(); }
  std::int32_t Course18NumberofCourses() const { return courses18_.Count(); }
  std::int32_t CourseALLNumberofCourses() const { return courses_all_.Count(); }
  // Entries of 80 characters, 0 (the away course) to the count, with the course number at the end.
  const std::string& Course9Name(std::int32_t i) const { return courses9_.At(i); }
  const std::string& Course18Name(std::int32_t i) const { return courses18_.At(i); }
  const std::string& CourseALLName(std::int32_t i) const { return courses_all_.At(i); }

  // Tee lists, as old as the last GetRecord.

  std::int32_t TeeNumberofTees() const { return tees_.count; }
  // Entries of 80 characters, 1 to 5, of which the first TeeNumberofTees are filled; the tee number
  // is the last character.
  const std::string& TeeMensTees(std::int32_t i) const { return TeeEntry(tees_.lists[0], i); }
  const std::string& TeeLadiesTees(std::int32_t i) const { return TeeEntry(tees_.lists[1], i); }
  const std::string& TeeAllTees(std::int32_t i) const { return TeeEntry(tees_.lists[2], i); }

  // Settings of the course screens. Nothing keeps them and they start as false.

  const std::string& ActiveProgram() const { return active_program_; }
  void SetActiveProgram(std::string program) { active_program_ = std::move(program); }
  bool Allow18HoleCourses = false;
  bool Allow9HoleCourses = false;
  bool RequireHoleHandicaps = false;
  bool RequirePars = false;
  bool RequireRatingandSlope = false;

  // The current record.

  // As it stands, for whoever calculates with its numbers.
  const Record<CourseLayout>& Stored() const { return record_; }

  std::int16_t activeflag() const { return record_.Get<"activeflag">(); }
  void Setactiveflag(double value);
  std::int16_t HoleNumFlag() const { return record_.Get<"HoleNumFlag">(); }
  void SetHoleNumFlag(double value);
  std::int16_t ParsFlag() const { return record_.Get<"ParsFlag">(); }
  void SetParsFlag(double value);
  std::int16_t HandicapFlag() const { return record_.Get<"HandicapFlag">(); }
  void SetHandicapFlag(double value);
  std::int16_t KVCourseNum() const { return record_.Get<"KVCourseNum">(); }
  void SetKVCourseNum(double value);

  // Texts come trimmed. Name is stored as given, the others trimmed; all are cut to their field.
  std::string Name() const { return Trimmed(record_.Get<"Name">()); }
  void SetName(std::string_view value) { record_.Set<"Name">(value); }
  std::string Address1() const { return Trimmed(record_.Get<"Address1">()); }
  void SetAddress1(std::string_view value) { record_.Set<"Address1">(Trimmed(value)); }
  std::string Address2() const { return Trimmed(record_.Get<"Address2">()); }
  void SetAddress2(std::string_view value) { record_.Set<"Address2">(Trimmed(value)); }
  std::string City() const { return Trimmed(record_.Get<"City">()); }
  void SetCity(std::string_view value) { record_.Set<"City">(Trimmed(value)); }
  std::string State() const { return Trimmed(record_.Get<"State">()); }
  void SetState(std::string_view value) { record_.Set<"State">(Trimmed(value)); }
  std::string Zipcode() const { return Trimmed(record_.Get<"Zipcode">()); }
  void SetZipcode(std::string_view value) { record_.Set<"Zipcode">(Trimmed(value)); }
  std::string GolfPro() const { return Trimmed(record_.Get<"GolfPro">()); }
  void SetGolfPro(std::string_view value) { record_.Set<"GolfPro">(Trimmed(value)); }
  std::string Phone() const { return Trimmed(record_.Get<"Phone">()); }
  void SetPhone(std::string_view value) { record_.Set<"Phone">(Trimmed(value)); }

  bool ActiveTees(int tee) const { return record_.Get<"ActiveTees">(tee) != 0; }
  void SetActiveTees(int tee, bool active);

  // A tee outside 1 to 6 is taken as 1, and the caller's variable set to it.
  std::string TeeName(int& tee) const;
  std::string TeeName(int&& tee) const { return TeeName(tee); }
  void SetTeeName(int tee, std::string_view value);
  std::string TeeNameAbv(int& tee) const;
  std::string TeeNameAbv(int&& tee) const { return TeeNameAbv(tee); }
  void SetTeeNameAbv(int tee, std::string_view value);

  // Numbers as text: "0.0" for a rating, "0" for the others.
  std::string Rating(int tee, int group) const;
  void SetRating(int tee, int group, double value);
  std::string slope(int tee, int group) const;
  void Setslope(int tee, int group, double value);
  std::string HoleYard(int tee, int hole) const;
  void SetHoleYard(int tee, int hole, double value);
  std::string HolePar(int tee, int hole) const;
  void SetHolePar(int tee, int hole, double value);
  std::string HoleHandicap(int tee, int hole) const;
  void SetHoleHandicap(int tee, int hole, double value);

  std::int16_t YardOut(int tee) const { return record_.Get<"YardOut">(tee); }
  void SetYardOut(int tee, double value);
  std::int16_t YardIn(int tee) const { return record_.Get<"YardIn">(tee); }
  void SetYardIn(int tee, double value);
  std::int16_t YardTotal(int tee) const { return record_.Get<"YardTotal">(tee); }
  void SetYardTotal(int tee, double value);
  std::int16_t ParOut(int tee) const { return record_.Get<"ParOut">(tee); }
  void SetParOut(int tee, double value);
  std::int16_t ParIn(int tee) const { return record_.Get<"ParIn">(tee); }
  void SetParIn(int tee, double value);
  std::int16_t ParTotal(int tee) const { return record_.Get<"ParTotal">(tee); }
  void SetParTotal(int tee, double value);

  // The hole that takes the n-th stroke; a stored value below 1 reads as 1.
  std::int16_t StrkSqnc(int tee, int n) const;
  void SetStrkSqnc(int tee, int n, double value);

  // The printed number, two characters. Mends the current record where the stored one is out of
  // range: 1 to 64 for holes 1 and 10, where a nine starts, and 1 to 72 for the others.
  std::string HoleNumber(int tee, int hole);
  void SetHoleNumber(int tee, int hole, double value);

  // "Meters" or "Yards".
  std::string YardsOrMeters() const;
  void SetYardsOrMeters(std::string_view value);

 private:
  struct CourseList {
    std::vector<std::string> entries;

    std::int32_t Count() const;
    const std::string& At(std::int32_t i) const;
  };
  using TeeList = std::array<std::string, kShownTees>;
  struct TeeLists {
    std::int32_t count = 0;
    std::array<TeeList, 3> lists;  // men's, ladies', all
  };
  // A course that was read, and the tee lists that were built from it.
  struct KeptCourse {
    std::int32_t number;
    Record<CourseLayout> record;
    TeeLists tees;
  };

  static std::string Trimmed(std::string_view text);
  static const std::string& TeeEntry(const TeeList& list, std::int32_t i);

  bool IsCourseRecord(std::int32_t record);
  bool TakeKept(std::int32_t record);
  void Keep(std::int32_t record);
  void BuildSpecialRecord(std::int32_t record);
  void BuildCourseList(std::string_view list_name, std::string_view away_entry, CourseList& list);
  std::vector<std::int32_t> ReadIndexEntries();
  void BuildTeeLists();
  template <class Belongs>
  void WriteIndexFile(std::string_view list_name, const std::vector<std::int32_t>& records,
                      Belongs belongs);

  SharedState& state_;
  CourseDigests digests_;
  std::string active_program_ = "QB";
  int course_file_ = 0;
  int index_file_ = 0;
  std::int32_t current_ = 0;
  Record<CourseLayout> record_;
  Record<CourseIndexLayout> index_;
  CourseList courses9_;
  CourseList courses18_;
  CourseList courses_all_;
  TeeLists tees_;
  std::vector<KeptCourse> kept_;  // as fresh as the window of the file was in this generation
  std::uint64_t kept_generation_ = 0;
  int kept_file_ = 0;
  std::size_t next_kept_ = 0;
};

}  // namespace golf
