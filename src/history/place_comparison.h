#pragma once

#include <string_view>

#include "history/place_code.h"

namespace golf {

// Both functions compare the changed bytes of a place with `now`, the bytes of the file at present.
// `now` begins at the first changed byte of the place. It ends at the last changed byte or at the
// end of the file. A missing byte or a zero counts as an old byte behind the end of the old bytes,
// and as a new byte behind the end of the new bytes.

// True if each byte is the old one.
bool IsUntouched(const HistoryPlace& place, std::string_view now);

// True if each byte is the old one or the new one, as after a crash.
bool IsMixture(const HistoryPlace& place, std::string_view now);

}  // namespace golf
