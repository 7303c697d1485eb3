#include "sqlite_records.h"

#include <stdexcept>

namespace golf::bench {

SqliteRecords::SqliteRecords(const std::filesystem::path& file) {
  Check(sqlite3_open(file.c_str(), &database_));
}

SqliteRecords::~SqliteRecords() {
  for (const auto& [text, statement] : statements_) sqlite3_finalize(statement);
  sqlite3_close(database_);
}

void SqliteRecords::Execute(const std::string& statement) {
  Check(sqlite3_exec(database_, statement.c_str(), nullptr, nullptr, nullptr));
}

void SqliteRecords::MakeTable(const std::string& table) {
  Execute("create table " + table + " (number integer primary key, bytes blob)");
}

void SqliteRecords::Upsert(const std::string& table, int number, std::string_view bytes) {
  sqlite3_stmt* statement = Prepared(
      "insert into " + table + " values (?1, ?2) on conflict (number) do update set bytes = ?2");
  Check(sqlite3_bind_int(statement, 1, number));
  Check(
      sqlite3_bind_blob(statement, 2, bytes.data(), static_cast<int>(bytes.size()), SQLITE_STATIC));
  if (sqlite3_step(statement) != SQLITE_DONE) Check(SQLITE_ERROR);
  sqlite3_reset(statement);
}

std::string SqliteRecords::Read(const std::string& table, int number) {
  sqlite3_stmt* statement = Prepared("select bytes from " + table + " where number = ?1");
  Check(sqlite3_bind_int(statement, 1, number));
  std::string bytes;
  if (sqlite3_step(statement) == SQLITE_ROW) {
    bytes.assign(static_cast<const char*>(sqlite3_column_blob(statement, 0)),
                 static_cast<std::size_t>(sqlite3_column_bytes(statement, 0)));
  }
  sqlite3_reset(statement);
  return bytes;
}

sqlite3_stmt* SqliteRecords::Prepared(const std::string& text) {
  sqlite3_stmt*& statement = statements_[text];
  if (statement == nullptr) {
    Check(sqlite3_prepare_v2(database_, text.c_str(), -1, &statement, nullptr));
  }
  return statement;
}

void SqliteRecords::Check(int result) const {
  if (result != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(database_));
}

}  // namespace golf::bench
