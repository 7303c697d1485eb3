// embed_text TEXT FOLDER NAME SOURCE writes a C++ source file that defines a constant with the text
// of a file. NAME is the name of the constant, a std::string_view in the namespace golf. If the
// text is a web page, each src="FILE.png" gets the bytes of the picture as a data URI. FOLDER
// contains the pictures.

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <string_view>

namespace {

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) {
    std::cerr << path << " cannot be read.\n";
    std::exit(EXIT_FAILURE);
  }
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Base64(std::string_view bytes) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const auto byte = [&](std::size_t at) {
      return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0u;
    };
    const unsigned group = byte(i) << 16 | byte(i + 1) << 8 | byte(i + 2);
    for (unsigned digit = 0; digit < 4; ++digit) {
      const bool is_padding = i + digit > bytes.size();
      text += is_padding ? '=' : kDigits[group >> (18 - 6 * digit) & 63];
    }
  }
  return text;
}

std::string WithPictures(const std::string& page, const std::string& folder) {
  constexpr std::string_view kBefore = "src=\"";
  std::string result;
  std::size_t copied = 0;
  for (std::size_t at = page.find(kBefore); at != std::string::npos; at = page.find(kBefore, at)) {
    at += kBefore.size();
    const std::size_t end = page.find('"', at);
    result += page.substr(copied, at - copied) + "data:image/png;base64," +
              Base64(ReadFile(folder + "/" + page.substr(at, end - at)));
    copied = end;
  }
  return result + page.substr(copied);
}

// Returns the text as lines of string literals.
std::string Literals(const std::string& text) {
  constexpr std::size_t kLine = 100;
  std::string literals = "\"";
  std::size_t length = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      literals += {'\\', c};
    } else if (byte >= 0x20 && byte < 0x7F && c != '?') {
      literals += c;
    } else {
      char octal[5];
      std::snprintf(octal, sizeof octal, "\\%03o", byte);
      literals += octal;
    }
    if (++length % kLine == 0) literals += "\"\n\"";
  }
  return literals + "\"";
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) {
    std::cerr << "usage: embed_text TEXT FOLDER NAME SOURCE\n";
    return EXIT_FAILURE;
  }
  const std::string text = WithPictures(ReadFile(argv[1]), argv[2]);
  std::ofstream source(argv[4], std::ios::binary);
  // Both compilers accept literals of this length. Clang warns that not every compiler does.
  source << "#include <string_view>\n\n#pragma GCC diagnostic ignored \"-Woverlength-strings\"\n\n"
         << "namespace golf {\n\nextern const std::string_view " << argv[3]
         << ";\nconst std::string_view " << argv[3] << "{\n"
         << Literals(text) << ",\n"
         << text.size() << "};\n\n}  // namespace golf\n";
  return source.flush() ? EXIT_SUCCESS : EXIT_FAILURE;
}
