#include "driver/text.h"

#include "host/code_page.h"

namespace norvane {

std::string Escape(const std::string& text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '\t':
        escaped += "\\t";
        break;
      case '\r':
        escaped += "\\r";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\\':
        escaped += "\\\\";
        break;
      default:
        escaped += c;
    }
  }
  return escaped;
}

std::string Unescape(const std::string& text) {
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '\\' || i + 1 == text.size()) {
      plain += text[i];
      continue;
    }
    switch (text[++i]) {
      case 't':
        plain += '\t';
        break;
      case 'r':
        plain += '\r';
        break;
      case 'n':
        plain += '\n';
        break;
      case '\\':
        plain += '\\';
        break;
      default:
        plain += '\\';
        plain += text[i];
    }
  }
  return plain;
}

std::string Shown(const std::string& bytes, int charset) { return Escape(To_Utf8(bytes, charset)); }

}  // namespace norvane
