#include "stores/zandel/zandel_batches.h"

#include <algorithm>

#include "core/file_name.h"
#include "core/number_text.h"
#include "core/text.h"
#include "stores/zandel/zandel_files.h"

namespace golf {
namespace {

constexpr std::size_t kCodeWidth = 3;

ScoreBatch ScoresBefore(int event) {
  return {event + kNonEventCode,
          "Non-Event scores after event #" + std::to_string(event - 1) + " but before #" +
              std::to_string(event),
          50};
}

ScoreBatch ScoresOf(SharedState& state, int event) {
  auto& record = state.Zandel().event;
  state.files.Read(kLeagueEventFile, event, record);
  const std::string day = FormatDay(record.Get<"EventDate">(), "mm/dd/yy");
  return {event, "Event #" + std::to_string(event) + " scores " + day, 50};
}

}  // namespace

std::string ScoreBatch::Item() const {
  return text + std::string(blanks, ' ') + FormatNumber(code, "000");
}

int BatchCode(std::string_view item) {
  return RoundToInt16(LeadingNumber(LastCharacters(item, kCodeWidth)));
}

std::string BatchHeading(const std::string& item) {
  const std::string_view text = item;
  return std::string(
      TrimRight(text.substr(0, text.size() - LastCharacters(text, kCodeWidth).size())));
}

std::optional<ScoreBatches> LoadScoreBatches(SharedState& state, std::string_view chosen) {
  CloseLeague(state);
  const std::string base = LeagueBase(chosen);
  if (LeadingNumber(base) == 0 || !FitsFileName(base)) return std::nullopt;
  OpenLeague(state, base);
  const int events = state.Zandel().control.Get<"EventCount">();
  const int current = state.Zandel().control.Get<"CurrentEvent">();
  ScoreBatches batches;
  batches.list.push_back({1 + kNonEventCode, "Practice Scores", 90});
  for (int event = 1; event <= events; ++event) {
    if (event > 1) batches.list.push_back(ScoresBefore(event));
    batches.list.push_back(ScoresOf(state, event));
  }
  if (2 * current <= static_cast<int>(batches.list.size())) {
    batches.selected = std::max(-1, 2 * current - 1);
  }
  return batches;
}

}  // namespace golf
