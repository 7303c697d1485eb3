#pragma once

#include <string_view>

#include "history/place_code.h"

namespace golf {

// Compare the changed bytes of a place with what the file has now. `now` begins at the first
// changed byte of the place and ends at the end of the file, or at the last changed byte. Behind
// the old end of a file, missing bytes and zeros count as old; behind the new end, as new.

// True if the bytes are those of before the run.
bool IsUntouched(const HistoryPlace& place, std::string_view now);

// True if each byte is that of before or of after the run, as a crash leaves them.
bool IsMixture(const HistoryPlace& place, std::string_view now);

}  // namespace golf
