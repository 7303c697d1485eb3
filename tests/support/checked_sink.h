#pragma once

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "outlets/export/export_sink.h"

namespace golf {

// Checks the rows of an export: each has a value for each column, all keys differ, and each link
// leads to a row.
class CheckedSink : public ExportSink {
 public:
  // The sink calls `need` with the result of each check.
  explicit CheckedSink(void (*need)(bool)) : need_(need) {}

  void Create(std::span<const ExportTable> tables) override {
    tables_ = {tables.begin(), tables.end()};
  }

  void Add(std::size_t table, const ExportRow& row) override {
    const ExportTable& described = tables_[table];
    need_(row.size() == described.columns.size());
    std::string key;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const bool is_text = row.kind(i) == CellKind::kText;
      if (i < described.key) {
        key += (is_text ? std::string(row.text(i)) : std::to_string(row.integer(i))) + '/';
      }
      const std::string_view target = described.columns[i].links_to;
      if (target.empty() || row.kind(i) == CellKind::kNull) continue;
      links_.emplace(target, std::to_string(row.integer(i)) + '/');
    }
    need_(keys_[described.name].insert(key).second);
  }

  void Finish() override {
    for (const auto& [table, key] : links_) need_(keys_[table].contains(key));
  }

 private:
  void (*need_)(bool);
  std::vector<ExportTable> tables_;
  std::map<std::string_view, std::set<std::string>> keys_;    // of the rows of each table
  std::set<std::pair<std::string_view, std::string>> links_;  // tables with the keys of rows
};

}  // namespace golf
