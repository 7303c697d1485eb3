#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace golf::bench {

// Stores the records of a file in a table of an SQLite database, by a number. Benchmarks use it to
// compare a transfer with a database that has its default durability.
class SqliteRecords {
 public:
  // Opens the database, or creates it. Throws an exception on an error, which ends the benchmark.
  explicit SqliteRecords(const std::filesystem::path& file);
  SqliteRecords(const SqliteRecords&) = delete;
  SqliteRecords& operator=(const SqliteRecords&) = delete;
  ~SqliteRecords();

  void Execute(const std::string& statement);
  void MakeTable(const std::string& table);
  // Writes a record. Replaces a record that has the same number.
  void Upsert(const std::string& table, int number, std::string_view bytes);
  std::string Read(const std::string& table, int number);

 private:
  // Returns the statement of this text, ready for new values. Each statement is prepared once.
  sqlite3_stmt* Prepared(const std::string& text);
  void Check(int result) const;

  sqlite3* database_ = nullptr;
  std::map<std::string, sqlite3_stmt*> statements_;
};

}  // namespace golf::bench
