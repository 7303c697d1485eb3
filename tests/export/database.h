#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <string>
#include <string_view>
#include <vector>

namespace golf {

// Reads an SQLite file.
class Database {
 public:
  explicit Database(const std::string& path) {
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
  }
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;
  ~Database() { sqlite3_close(database_); }

  // Returns the rows of a query. A number has the shortest form, and a null is "null".
  std::vector<std::vector<std::string>> Rows(const std::string& query) {
    std::vector<std::vector<std::string>> rows;
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(database_, query.c_str(), -1, &statement, nullptr), SQLITE_OK)
        << query << ": " << sqlite3_errmsg(database_);
    while (statement != nullptr && sqlite3_step(statement) == SQLITE_ROW) {
      auto& row = rows.emplace_back();
      for (int i = 0; i < sqlite3_column_count(statement); ++i) row.push_back(Cell(statement, i));
    }
    sqlite3_finalize(statement);
    return rows;
  }
  // Returns the rows as lines with "|" between the values.
  std::string Text(const std::string& query) {
    std::string text;
    for (const auto& row : Rows(query)) {
      for (const std::string& cell : row) text += (&cell == &row.front() ? "" : "|") + cell;
      text += '\n';
    }
    return text;
  }
  // Returns the first column.
  std::vector<std::string> Column(const std::string& query) {
    std::vector<std::string> column;
    for (auto& row : Rows(query)) column.push_back(std::move(row.front()));
    return column;
  }

 private:
  static std::string Cell(sqlite3_stmt* statement, int i);

  sqlite3* database_ = nullptr;
};

}  // namespace golf
