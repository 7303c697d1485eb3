#pragma once

#include <span>
#include <string_view>

namespace golf {

// Describes a view of the SQLite export: a query that answers a common question.
struct ExportView {
  std::string_view name;
  std::string_view query;
};

std::span<const ExportView> ExportViews();

}  // namespace golf
