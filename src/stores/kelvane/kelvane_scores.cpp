#include "stores/kelvane/kelvane_scores.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "core/number_text.h"
#include "core/numbered_error.h"
#include "stores/kelvane/kelvane_files.h"

namespace golf {
namespace {

// Describes a counter of the golfer's scores. It counts the scores after a date of the header.
struct CounterRule {
  int counter;
  int date;         // number of the CounterDate; 0: counts every score
  bool on_the_day;  // true if it also counts a score on that date
};

constexpr CounterRule kCounterRules[] = {{2, 3, true}, {3, 1, false}, {4, 2, false}, {1, 0, false}};

bool Counts(const KelvaneBuffers& buffers, const CounterRule& rule) {
  if (rule.date == 0) return true;
  const double played = buffers.score.Get<"Date">();
  const double limit = buffers.header.Get<"CounterDate">(rule.date);
  return rule.on_the_day ? !(played < limit) : played > limit;
}

void CountScore(KelvaneBuffers& buffers) {
  for (const CounterRule& rule : kCounterRules) {
    const std::int16_t count = buffers.golfer.Get<"ScoreCounter">(rule.counter);
    if (count < kKelvaneScores && Counts(buffers, rule)) {
      buffers.golfer.Set<"ScoreCounter">({rule.counter}, static_cast<std::int16_t>(count + 1));
    }
  }
}

// Moves the entries `first` to `last` by one place, towards the end if `by` is 1 and towards the
// start if `by` is -1.
void Shift(KelvaneBuffers& buffers, int first, int last, int by) {
  if (first > last) return;
  constexpr Field kEntry = FieldOf<KelvaneHistoryLayout, "CourseNumber">();
  char* const bytes = buffers.history.MutableBytes().data();
  const std::size_t end = kEntry.OffsetOf(std::array{last + by}) + kKelvaneScoreLength;
  const std::size_t to = kEntry.OffsetOf(std::array{first + by});
  std::memmove(bytes + to, bytes + kEntry.OffsetOf(std::array{first}), end - to);
}

// Finds the first entry, other than the one at `place`, that is not newer than the entry at
// `place`. Returns the number of entries before it. This number may include the entry at `place`.
int EntriesInFront(const KelvaneBuffers& buffers, int place) {
  const double date = buffers.history.Get<"Date">(place);
  const int count = std::min<int>(buffers.golfer.Get<"ScoreCounter">(1), kKelvaneScores);
  for (int i = 1; i <= count; ++i) {
    if (i != place && !(date < buffers.history.Get<"Date">(i))) return i - 1;
  }
  return count;
}

}  // namespace

Record<KelvaneScoreLayout> KelvaneBuffers::Entry(int i) const {
  constexpr Field kFirst = FieldOf<KelvaneHistoryLayout, "CourseNumber">();
  Record<KelvaneScoreLayout> entry;
  const std::string_view bytes =
      history.Bytes().substr(kFirst.OffsetOf(std::array{i}), kKelvaneScoreLength);
  bytes.copy(entry.MutableBytes().data(), bytes.size());
  return entry;
}

void KelvaneBuffers::SetEntry(int i, const Record<KelvaneScoreLayout>& entry) {
  constexpr Field kFirst = FieldOf<KelvaneHistoryLayout, "CourseNumber">();
  char* at = history.MutableBytes().data() + kFirst.OffsetOf(std::array{i});
  entry.Bytes().copy(at, kKelvaneScoreLength);
}

std::uint8_t KVByte(double value) {
  const std::int16_t whole = RoundToInt16(value);
  if (whole < 0 || whole > 255) {
    throw NumberedError(ErrorNumber::kOverflow, "A number is too large for its place.");
  }
  return static_cast<std::uint8_t>(whole);
}

void BlankKVScore(SharedState& state) {
  auto& score = state.Kelvane().score;
  score = {};
  score.Set<"Date">(state.Now());
  score.Set<"Label">("");
}

void AddKVScore(SharedState& state) {
  KelvaneBuffers& buffers = state.Kelvane();
  CountScore(buffers);
  Shift(buffers, 1, kKelvaneScores - 1, 1);
  buffers.SetEntry(1, buffers.score);
  if (buffers.history.Get<"Date">(1) < buffers.history.Get<"Date">(2)) RepositionKVScore(state, 1);
}

void RepositionKVScore(SharedState& state, int place) {
  KelvaneBuffers& buffers = state.Kelvane();
  const int target = EntriesInFront(buffers, place);
  if (target < 0) return;
  buffers.score = buffers.Entry(place);
  if (target == place) return;
  if (place > target - 1) {
    Shift(buffers, target + 1, place - 1, 1);
    buffers.SetEntry(target + 1, buffers.score);
  } else {
    Shift(buffers, place + 1, target, -1);
    buffers.SetEntry(target, buffers.score);
  }
}

void ReadKVHistory(SharedState& state, std::int32_t place) {
  state.files.Read(kKelvaneScoreFile, place, state.Kelvane().history);
}

void WriteKVHistory(SharedState& state, std::int32_t place) {
  state.files.Write(kKelvaneScoreFile, place, state.Kelvane().history);
}

void WriteKVGolfer(SharedState& state, std::int32_t place) {
  state.files.Write(kKelvaneGolferFile, place, state.Kelvane().golfer);
}

void PostKVScore(SharedState& state, std::int32_t place) {
  AddKVScore(state);
  WriteKVGolfer(state, place);
  WriteKVHistory(state, place);
}

}  // namespace golf
