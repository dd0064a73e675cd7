#include "cli/Json.h"

#include "base/Utf8.h"

namespace ostrel::cli {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char kHexDigits[] = "0123456789abcdef";

void AppendEscaped(char32_t character, std::string& text) {
  switch (character) {
    case '"':
      text += "\\\"";
      return;
    case '\\':
      text += "\\\\";
      return;
    case '\n':
      text += "\\n";
      return;
    case '\r':
      text += "\\r";
      return;
    case '\t':
      text += "\\t";
      return;
    default:
      break;
  }
  const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
  if (!isControl) return AppendCharacter(character, text);
  text += "\\u00";
  text += kHexDigits[character >> 4U];
  text += kHexDigits[character & 15U];
}

}  // namespace

void JsonWriter::Value(std::string_view text) {
  Separate();
  Quoted(text);
}

void JsonWriter::Key(std::string_view key) {
  Separate();
  Quoted(key);
  out_ << (layout_ == Layout::Indented ? ": " : ":");
  afterKey_ = true;
}

void JsonWriter::Raw(std::string_view text) {
  Separate();
  out_ << text;
}

void JsonWriter::Separate() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (depth_ == 0) return;
  if (!isFirst_) out_ << ',';
  isFirst_ = false;
  NewLine();
}

void JsonWriter::NewLine() {
  if (layout_ == Layout::OneLine) return;
  out_ << '\n' << std::string(static_cast<std::size_t>(depth_) * 2, ' ');
}

void JsonWriter::Quoted(std::string_view text) {
  std::string quoted;
  for (std::size_t position = 0; position < text.size();) {
    const char32_t character = NextCharacter(text, position);
    AppendEscaped(character == kMalformed ? kReplacement : character, quoted);
  }
  out_ << '"' << quoted << '"';
}

}  // namespace ostrel::cli
