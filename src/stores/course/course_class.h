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

// Reads and writes one course library. A library consists of the course file and three index files
// in CourseDataPath, whose names contain ActiveProgram. The object holds one course, the current
// record, with its tee lists, and the lists of courses. A caller sets CourseDataPath and
// ActiveProgram, and then calls OpenCourseFile.
//
// Every operation on files may raise the errors of FileTable. A getter or setter raises error 9 for
// a tee outside 1 to 6, a hole outside 1 to 18 or a group outside 0 to 1. Group 0 is the men, and
// group 1 is the ladies. A setter raises error 6 if a number is too large for its field. It rounds
// a number to a whole one, half to even, unless it is a rating. Setters check nothing else and
// change only the current record.
class CourseClass {
 public:
  explicit CourseClass(SharedState& state) : state_(state), digests_(state.files) {}
  CourseClass(const CourseClass&) = delete;
  CourseClass& operator=(const CourseClass&) = delete;

  // The following functions open, read and write the library files. A missing file is created
  // empty.

  void OpenCourseFile();
  void CloseCourseFile();
  // Opens the index file of the list "9CRS", "18CRS" or "ALLCRS".
  void OpenCourseIndexFile(std::string_view list_name);
  // Returns the number of whole records of the open course file.
  std::int32_t CourseFileLength();
  std::int32_t CourseFileNumber() const { return course_file_; }

  // Copies a course from one open file to another. That course becomes the current record.
  void CopyCourseRecord(std::int32_t from_record, std::int32_t from_file, std::int32_t to_record,
                        std::int32_t to_file);
  void BuildBlankRecord();
  // Makes a record current and builds its tee lists. Record 0 is the 18-hole away course, and -1 is
  // the 9-hole one. Any other number without a record is an invalid course. A deleted course is
  // read like any other.
  void GetRecord(std::int32_t record);
  // Writes the current record if the file has a record of this number or if the number is the next
  // new one. Then updates the course lists, which changes the current record and Index. Does
  // nothing if the number is any other.
  void SaveRecord(std::int32_t record);
  // Returns the number of the course read last by GetRecord, or 0 for a course without a record.
  std::int32_t CurrentRecord() const { return current_; }

  // The following functions return and update the course lists. OpenCourseFile, SaveRecord,
  // UpdateAllCourseLists and RebuildCourseIndexes update them.

  void UpdateAllCourseLists();
  // Writes Index to this record of the open index file.
  void SaveIndexRecord(std::int32_t position);
  // Returns the records of all active courses, sorted by name without regard to case. Equal names
  // keep the order of the file. The last record of the file becomes current.
  std::vector<std::int32_t> ActiveCoursesByName();
  // Returns the digest of a record as the functions above read it last, or null if none of them
  // read the record.
  const CourseDigest* FindDigest(std::int32_t record) const { return digests_.Find(record); }
  // Writes the three index files from these records, in this order, and updates the course lists.
  // Does not shorten the files.
  void RebuildCourseIndexes(const std::vector<std::int32_t>& sorted_records);

  // Return or set the value that was read last from an index file, or that is to be written to one.
  std::int16_t Index() const { return index_.Get<"Index">(); }
  void SetIndex(double value);

  std::int32_t Course9NumberofCourses() const { return courses9_.Count(); }
  std::int32_t Course18NumberofCourses() const { return courses18_.Count(); }
  std::int32_t CourseALLNumberofCourses() const { return courses_all_.Count(); }
  // Return an entry of 80 characters with the course number at its end. Entry 0 is the away course.
  // Raise error 9 if `i` is outside 0 to the number of courses.
  const std::string& Course9Name(std::int32_t i) const { return courses9_.At(i); }
  const std::string& Course18Name(std::int32_t i) const { return courses18_.At(i); }
  const std::string& CourseALLName(std::int32_t i) const { return courses_all_.At(i); }

  // The following functions return the tee lists of the course read last by GetRecord.

  std::int32_t TeeNumberofTees() const { return tees_.count; }
  // Return an entry of 80 characters. The last character is the tee number. Only the first
  // TeeNumberofTees entries are filled. Raise error 9 if `i` is outside 1 to 5.
  const std::string& TeeMensTees(std::int32_t i) const { return TeeEntry(tees_.lists[0], i); }
  const std::string& TeeLadiesTees(std::int32_t i) const { return TeeEntry(tees_.lists[1], i); }
  const std::string& TeeAllTees(std::int32_t i) const { return TeeEntry(tees_.lists[2], i); }

  // The following members are the settings of the course screens, false at first. They are not
  // stored in a file.

  const std::string& ActiveProgram() const { return active_program_; }
  void SetActiveProgram(std::string program) { active_program_ = std::move(program); }
  bool Allow18HoleCourses = false;
  bool Allow9HoleCourses = false;
  bool RequireHoleHandicaps = false;
  bool RequirePars = false;
  bool RequireRatingandSlope = false;

  // The following functions are the getters and setters of the current record.

  // Returns the record itself, for calculations with its numbers.
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

  // The getters trim the text. SetName stores its text untrimmed. The other setters trim it first.
  // All setters cut the text to the width of the field.
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

  // A tee outside 1 to 6 counts as 1. A getter then also sets the caller's variable to 1.
  std::string TeeName(int& tee) const;
  std::string TeeName(int&& tee) const { return TeeName(tee); }
  void SetTeeName(int tee, std::string_view value);
  std::string TeeNameAbv(int& tee) const;
  std::string TeeNameAbv(int&& tee) const { return TeeNameAbv(tee); }
  void SetTeeNameAbv(int tee, std::string_view value);

  // The getters return text, in the format "0.0" for a rating and "0" for the others. Ratings and
  // pars are in strokes, and hole lengths are in the unit of YardsOrMeters(). A hole handicap is 1
  // to 18, with 1 for the hardest hole, or 0 if there is none.
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

  // Returns the hole that gets handicap stroke number `n`. Returns 1 if the stored value is below
  // 1.
  std::int16_t StrkSqnc(int tee, int n) const;
  void SetStrkSqnc(int tee, int n, double value);

  // Returns the printed number of a hole as two characters. If the stored number is out of its
  // range, stores `hole` in the current record instead. The range is 1 to 64 for holes 1 and 10,
  // which start a nine, and 1 to 72 for the others.
  std::string HoleNumber(int tee, int hole);
  void SetHoleNumber(int tee, int hole, double value);

  // Return or set the unit of the hole lengths. It is "Meters", or "Yards" for any other text.
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
    std::array<TeeList, 3> lists;  // men, ladies, all
  };
  // Holds a course that was read, with its tee lists.
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
  std::vector<KeptCourse> kept_;  // valid for kept_generation_ of kept_file_
  std::uint64_t kept_generation_ = 0;
  int kept_file_ = 0;
  std::size_t next_kept_ = 0;
};

}  // namespace golf
