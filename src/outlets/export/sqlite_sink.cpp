#include "outlets/export/sqlite_sink.h"

#include <sqlite3.h>

#include <utility>
#include <vector>

#include "core/code_page.h"
#include "core/numbered_error.h"
#include "outlets/export/views.h"

namespace golf {
namespace {

struct CloseDatabase {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
};
struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

// Only this process uses the new file, and a failure deletes it. It therefore needs no journal and
// no locks. The commit returns after the data is on the disk. A negative cache size is in KiB.
constexpr const char* kSettings =
    "pragma page_size = 8192;"
    "pragma journal_mode = off;"
    "pragma locking_mode = exclusive;"
    "pragma synchronous = full;"
    "pragma cache_size = -32768;"
    "pragma foreign_keys = off;"
    "begin";

std::string Quoted(std::string_view name) { return '"' + std::string(name) + '"'; }

std::string_view DeclarationOf(ColumnType type) {
  constexpr std::string_view kDeclarations[] = {" INTEGER", " REAL", " TEXT", " BOOLEAN", ""};
  return kDeclarations[static_cast<std::size_t>(type)];
}

std::string CreateStatement(const ExportTable& table) {
  std::string sql = "create table " + Quoted(table.name) + " (";
  for (const ExportColumn& column : table.columns) {
    if (&column != &table.columns.front()) sql += ", ";
    sql += Quoted(column.name);
    sql += DeclarationOf(column.type);
    if (column.name == "id") sql += " primary key";  // the first column
    if (!column.links_to.empty()) sql += " references " + Quoted(column.links_to) + "(id)";
  }
  if (table.columns.front().name == "id" || table.key == 0) return sql + ")";
  sql += ", primary key (";
  for (std::size_t i = 0; i < table.key; ++i) {
    if (i > 0) sql += ", ";
    sql += Quoted(table.columns[i].name);
  }
  return sql + ")) without rowid";
}

class SqliteSink : public ExportSink {
 public:
  explicit SqliteSink(std::string utf8_path) : path_(std::move(utf8_path)) {
    sqlite3* database = nullptr;
    const int code =
        sqlite3_open_v2(path_.c_str(), &database,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(database);
    Check(code);
    Run(kSettings);
  }

  void Create(std::span<const ExportTable> tables) override {
    tables_ = {tables.begin(), tables.end()};
    for (const ExportTable& table : tables_) {
      Run(CreateStatement(table));
      std::string sql = "insert into " + Quoted(table.name) + " values (?";
      for (std::size_t i = 1; i < table.columns.size(); ++i) sql += ",?";
      sqlite3_stmt* statement = nullptr;
      Check(sqlite3_prepare_v3(database_.get(), (sql + ")").c_str(), -1, SQLITE_PREPARE_PERSISTENT,
                               &statement, nullptr));
      inserts_.emplace_back(statement);
    }
  }

  void Add(std::size_t table, const ExportRow& row) override {
    sqlite3_stmt* const insert = inserts_[table].get();
    for (std::size_t i = 0; i < row.size(); ++i) Bind(insert, static_cast<int>(i) + 1, row, i);
    const int code = sqlite3_step(insert);
    sqlite3_reset(insert);
    if (code != SQLITE_DONE) Check(code);
  }

  void Finish() override {
    inserts_.clear();
    for (const ExportTable& table : tables_) {
      for (std::size_t i = 0; i < table.indexes.size(); ++i) {
        Run("create index " + Quoted(std::string(table.name) + "_" + std::to_string(i + 1)) +
            " on " + Quoted(table.name) + " (" + std::string(table.indexes[i]) + ")");
      }
    }
    for (const ExportView& view : ExportViews()) {
      Run("create view " + Quoted(view.name) + " as " + std::string(view.query));
    }
    Run("commit");
    Check(sqlite3_close(database_.release()));
  }

 private:
  void Bind(sqlite3_stmt* insert, int parameter, const ExportRow& row, std::size_t i) {
    switch (row.kind(i)) {
      case CellKind::kNull:
        Check(sqlite3_bind_null(insert, parameter));
        break;
      case CellKind::kReal:
        Check(sqlite3_bind_double(insert, parameter, row.real(i)));
        break;
      case CellKind::kText: {
        const std::string_view text = row.text(i);
        // The row keeps the text until the statement has run.
        Check(sqlite3_bind_text64(insert, parameter, text.data(), text.size(), SQLITE_STATIC,
                                  SQLITE_UTF8));
        break;
      }
      default:
        Check(sqlite3_bind_int64(insert, parameter, row.integer(i)));
    }
  }

  void Run(const std::string& sql) {
    Check(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr));
  }

  void Check(int code) const {
    if (code == SQLITE_OK) return;
    const std::string reason =
        database_ == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(database_.get());
    const ErrorNumber number = code == SQLITE_FULL       ? ErrorNumber::kDiskFull
                               : code == SQLITE_CANTOPEN ? ErrorNumber::kPathAccess
                               : code == SQLITE_READONLY ? ErrorNumber::kPathAccess
                                                         : ErrorNumber::kDeviceFault;
    throw NumberedError(number, "The database " + TextFromUtf8(path_) +
                                    " cannot be written: " + TextFromUtf8(reason) + ".");
  }

  std::string path_;
  std::unique_ptr<sqlite3, CloseDatabase> database_;
  std::vector<ExportTable> tables_;
  std::vector<Statement> inserts_;  // by table
};

}  // namespace

std::unique_ptr<ExportSink> MakeSqliteSink(const std::string& utf8_path) {
  return std::make_unique<SqliteSink>(utf8_path);
}

}  // namespace golf
