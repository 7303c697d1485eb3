// Combines the rows of all benchmarks in one table. Writes the table as Markdown and as JSON.
//
// report TABLE STORAGE ROWS [STORAGE ROWS]...
//
// TABLE is the path of the table without an extension. STORAGE says where the files of the
// benchmarks were, and ROWS is the file with the rows.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

namespace {

using Json = nlohmann::ordered_json;

Json ReadRows(const std::string& path, const std::string& storage) {
  std::ifstream file(path);
  if (!file) throw std::runtime_error(path + " cannot be read");
  Json rows = Json::array();
  for (std::string line; std::getline(file, line);) {
    Json row = {{"storage", storage}};
    row.update(Json::parse(line));
    rows.push_back(row);
  }
  return rows;
}

std::string Fixed(const Json& number, int decimals) {
  char text[32];
  std::snprintf(text, sizeof text, "%.*f", decimals, number.get<double>());
  return text;
}

std::string Line(const Json& row, bool is_new_task) {
  return "| " + (is_new_task ? row["task"].get<std::string>() : "") + " | " +
         row["contender"].get<std::string>() + " | " + Fixed(row["seconds"], 3) + " | " +
         Fixed(row["userSeconds"], 3) + " | " + Fixed(row["systemSeconds"], 3) + " | " +
         Fixed(row["peakMiB"], 1) + " | " + Fixed(row["ratio"], 2) + " |\n";
}

std::string Table(const Json& rows) {
  std::string table;
  std::string storage;
  std::string task;
  for (const Json& row : rows) {
    if (row["storage"] != storage) {
      storage = row["storage"];
      task.clear();
      table += (table.empty() ? "### Files " : "\n### Files ") + storage +
               "\n\n| Task | Program | Seconds | User | System | MiB | Ratio |\n"
               "|---|---|--:|--:|--:|--:|--:|\n";
    }
    table += Line(row, row["task"] != task);
    task = row["task"];
  }
  return table;
}

void WriteFile(const std::string& path, const std::string& text) {
  std::ofstream file(path);
  if (!(file << text).flush()) throw std::runtime_error(path + " cannot be written");
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 4 || argc % 2 != 0) {
    std::fprintf(stderr, "usage: report TABLE STORAGE ROWS [STORAGE ROWS]...\n");
    return EXIT_FAILURE;
  }
  Json rows = Json::array();
  for (int i = 2; i < argc; i += 2) {
    for (const Json& row : ReadRows(argv[i + 1], argv[i])) rows.push_back(row);
  }
  const std::string table(argv[1]);
  WriteFile(table + ".md", Table(rows));
  WriteFile(table + ".json", rows.dump(2) + "\n");
}
