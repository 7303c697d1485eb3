#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace golf {

enum class CellKind : std::uint8_t { kNull, kInteger, kReal, kBoolean, kText };

// Contains the values of one row of a table, from left to right. A row is filled again and again,
// so that it allocates memory only for its longest content.
class ExportRow {
 public:
  void Clear() {
    cells_.clear();
    texts_.clear();
  }

  void AddNull() { cells_.push_back({CellKind::kNull, 0, 0, 0}); }
  void AddInteger(std::int64_t value) { cells_.push_back({CellKind::kInteger, value, 0, 0}); }
  void AddReal(double value) { cells_.push_back({CellKind::kReal, 0, value, 0}); }
  void AddBoolean(bool value) { cells_.push_back({CellKind::kBoolean, value ? 1 : 0, 0, 0}); }
  void AddText(std::string_view utf8) {
    cells_.push_back({CellKind::kText, static_cast<std::int64_t>(utf8.size()), 0, texts_.size()});
    texts_ += utf8;
  }
  // Adds all cells of another row.
  void AddCells(const ExportRow& other) {
    for (Cell cell : other.cells_) {
      cell.start += texts_.size();
      cells_.push_back(cell);
    }
    texts_ += other.texts_;
  }
  // Adds a number, or null if it is 0.
  void AddIntegerOrNull(std::int64_t id) { id == 0 ? AddNull() : AddInteger(id); }

  std::size_t size() const { return cells_.size(); }
  CellKind kind(std::size_t i) const { return cells_[i].kind; }
  std::int64_t integer(std::size_t i) const { return cells_[i].integer; }  // also of a boolean
  double real(std::size_t i) const { return cells_[i].real; }
  std::string_view text(std::size_t i) const {  // in UTF-8
    return std::string_view(texts_).substr(cells_[i].start,
                                           static_cast<std::size_t>(cells_[i].integer));
  }

 private:
  struct Cell {
    CellKind kind;
    std::int64_t integer;  // for a text: its length in bytes
    double real;
    std::size_t start;  // of a text, in texts_
  };

  std::vector<Cell> cells_;
  std::string texts_;
};

}  // namespace golf
