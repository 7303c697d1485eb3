#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <string>
#include <string_view>

namespace golf::bench {

// The records of a file as a table of an SQLite database, by a number: what a database makes of the
// same work, with its default durability.
class SqliteRecords {
 public:
  // Opens the database, or makes it. An error ends the benchmark.
  explicit SqliteRecords(const std::filesystem::path& file);
  SqliteRecords(const SqliteRecords&) = delete;
  SqliteRecords& operator=(const SqliteRecords&) = delete;
  ~SqliteRecords();

  void Execute(const std::string& statement);
  void MakeTable(const std::string& table);
  // Writes a record; one that has the number is replaced.
  void Upsert(const std::string& table, int number, std::string_view bytes);
  std::string Read(const std::string& table, int number);

 private:
  sqlite3_stmt* Prepared(const std::string& text);
  void Check(int result) const;

  sqlite3* database_ = nullptr;
};

}  // namespace golf::bench
