#pragma once

#include <filesystem>

#include "core/record.h"
#include "stores/kelvane/kelvane_layouts.h"
#include "stores/quenby/quenby_layouts.h"

namespace golf::bench {

using KelvaneGolfer = Record<KelvaneGolferLayout>;
using QuenbyGolfer = Record<PlayerLayout>;

constexpr int kFirstRecord = 10;  // of Quenby's golfers

// Makes an install with a Kelvane roster CLUB and a Quenby file of as many golfers. The IDs are in
// random order. Quenby's file has the golfers with even IDs, and as many others.
void MakeGolferInstall(const std::filesystem::path& folder, int golfers);

}  // namespace golf::bench
