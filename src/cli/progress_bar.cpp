#include "cli/progress_bar.h"

#include <algorithm>
#include <iostream>
#include <string>

#include "cli/console.h"
#include "cli/plain_text.h"
#include "core/text.h"

namespace golf {
namespace {

constexpr auto kInterval = std::chrono::milliseconds(100);
constexpr std::int64_t kBarWidth = 30;
constexpr std::size_t kNameWidth = 32;
constexpr std::string_view kStartOfEmptyLine = "\r\x1b[K";

}  // namespace

ProgressBar::ProgressBar(bool wanted) : shows_(wanted && ErrorOutputIsTerminal()) {}

void ProgressBar::Show(const Progress& progress) {
  if (!shows_ || Clock::now() < next_) return;
  next_ = Clock::now() + kInterval;
  const std::int64_t total = std::max<std::int64_t>(progress.total, 1);
  const auto filled = static_cast<std::size_t>(kBarWidth * progress.done / total);
  const std::string bar(filled, '#');
  std::cerr << kStartOfEmptyLine << '[' << FitText(bar, kBarWidth) << "] " << progress.done
            << " of " << progress.total << "  "
            << PlainCell(Trim(progress.doing).substr(0, kNameWidth)) << std::flush;
  drawn_ = true;
}

void ProgressBar::Clear() {
  if (drawn_) std::cerr << kStartOfEmptyLine << std::flush;
  drawn_ = false;
}

}  // namespace golf
