// This file contains the getters and setters of the current record of CourseClass.

#include <algorithm>

#include "core/number_text.h"
#include "core/text.h"
#include "stores/course/course_class.h"

namespace golf {
namespace {

constexpr std::uint8_t kActiveTee = 255;
constexpr std::uint8_t kMeters = 1;

constexpr int kLastStartOfNine = 64;
constexpr int kLastHoleNumber = 72;

int LimitTee(int& tee) {
  if (tee < 1 || tee > kTeeSlots) tee = 1;
  return tee;
}

}  // namespace

std::string CourseClass::Trimmed(std::string_view text) { return std::string(Trim(text)); }

void CourseClass::Setactiveflag(double value) { record_.Set<"activeflag">(RoundToInt16(value)); }
void CourseClass::SetHoleNumFlag(double value) { record_.Set<"HoleNumFlag">(RoundToInt16(value)); }
void CourseClass::SetParsFlag(double value) { record_.Set<"ParsFlag">(RoundToInt16(value)); }
void CourseClass::SetHandicapFlag(double value) {
  record_.Set<"HandicapFlag">(RoundToInt16(value));
}
void CourseClass::SetKVCourseNum(double value) { record_.Set<"KVCourseNum">(RoundToInt16(value)); }

void CourseClass::SetActiveTees(int tee, bool active) {
  record_.Set<"ActiveTees">({tee}, active ? kActiveTee : std::uint8_t{0});
}

std::string CourseClass::TeeName(int& tee) const {
  return Trimmed(record_.Get<"TeeName">(LimitTee(tee)));
}

void CourseClass::SetTeeName(int tee, std::string_view value) {
  record_.Set<"TeeName">({LimitTee(tee)}, value);
}

std::string CourseClass::TeeNameAbv(int& tee) const {
  return record_.Get<"TeeNameAbv">(LimitTee(tee));
}

void CourseClass::SetTeeNameAbv(int tee, std::string_view value) {
  record_.Set<"TeeNameAbv">({LimitTee(tee)}, UpperCase(value));
}

std::string CourseClass::Rating(int tee, int group) const {
  return FormatNumber(record_.Get<"Rating">(tee, group), "0.0");
}

void CourseClass::SetRating(int tee, int group, double value) {
  record_.Set<"Rating">({tee, group}, CheckedSingle(value));
}

std::string CourseClass::slope(int tee, int group) const {
  return FormatNumber(int{record_.Get<"slope">(tee, group)}, "0");
}

void CourseClass::Setslope(int tee, int group, double value) {
  record_.Set<"slope">({tee, group}, RoundToInt16(value));
}

std::string CourseClass::HoleYard(int tee, int hole) const {
  return FormatNumber(int{record_.Get<"HoleYard">(tee, hole)}, "0");
}

void CourseClass::SetHoleYard(int tee, int hole, double value) {
  record_.Set<"HoleYard">({tee, hole}, RoundToInt16(value));
}

std::string CourseClass::HolePar(int tee, int hole) const {
  return FormatNumber(int{record_.Get<"HolePar">(tee, hole)}, "0");
}

void CourseClass::SetHolePar(int tee, int hole, double value) {
  record_.Set<"HolePar">({tee, hole}, RoundToInt16(value));
}

std::string CourseClass::HoleHandicap(int tee, int hole) const {
  return FormatNumber(int{record_.Get<"HoleHandicap">(tee, hole)}, "0");
}

void CourseClass::SetHoleHandicap(int tee, int hole, double value) {
  record_.Set<"HoleHandicap">({tee, hole}, RoundToInt16(value));
}

void CourseClass::SetYardOut(int tee, double value) {
  record_.Set<"YardOut">({tee}, RoundToInt16(value));
}
void CourseClass::SetYardIn(int tee, double value) {
  record_.Set<"YardIn">({tee}, RoundToInt16(value));
}
void CourseClass::SetYardTotal(int tee, double value) {
  record_.Set<"YardTotal">({tee}, RoundToInt16(value));
}
void CourseClass::SetParOut(int tee, double value) {
  record_.Set<"ParOut">({tee}, RoundToInt16(value));
}
void CourseClass::SetParIn(int tee, double value) {
  record_.Set<"ParIn">({tee}, RoundToInt16(value));
}
void CourseClass::SetParTotal(int tee, double value) {
  record_.Set<"ParTotal">({tee}, RoundToInt16(value));
}

std::int16_t CourseClass::StrkSqnc(int tee, int n) const {
  return std::max<std::int16_t>(record_.Get<"StrkSqnc">(tee, n), 1);
}

void CourseClass::SetStrkSqnc(int tee, int n, double value) {
  record_.Set<"StrkSqnc">({tee, n}, RoundToInt16(value));
}

std::string CourseClass::HoleNumber(int tee, int hole) {
  const int stored = record_.Get<"HoleNumber">(tee, hole);
  const int last = hole == 1 || hole == 10 ? kLastStartOfNine : kLastHoleNumber;
  const int number = stored >= 1 && stored <= last ? stored : hole;
  if (number != stored) SetHoleNumber(tee, hole, number);
  return std::string(LastCharacters(FormatNumber(number, " 0"), 2));
}

void CourseClass::SetHoleNumber(int tee, int hole, double value) {
  record_.Set<"HoleNumber">({tee, hole}, RoundToInt16(value));
}

std::string CourseClass::YardsOrMeters() const {
  return record_.Get<"YardsOrMeters">() == kMeters ? "Meters" : "Yards";
}

void CourseClass::SetYardsOrMeters(std::string_view value) {
  record_.Set<"YardsOrMeters">(EqualIgnoringCase(value, "Meters") ? kMeters : std::uint8_t{0});
}

}  // namespace golf
