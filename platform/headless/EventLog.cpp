#include "platform/headless/EventLog.h"

#include <array>
#include <charconv>

#include "store/CodePage.h"

namespace kontorwerk {

namespace {

std::string Quoted(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string json = "\"";
  for (const char c : ToUtf8(text)) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      json += '\\';
      json += c;
    } else if (c == '\r') {
      json += "\\r";
    } else if (c == '\n') {
      json += "\\n";
    } else if (c == '\t') {
      json += "\\t";
    } else if (byte < 0x20 || byte == 0x7F) {
      json += "\\u00";
      json += kHex[byte >> 4U];
      json += kHex[byte & 0xFU];
    } else {
      json += c;
    }
  }
  return json + "\"";
}

}  // namespace

JsonValue::JsonValue(std::string_view text) : json_(Quoted(text)) {}

JsonValue::JsonValue(int number) : json_(std::to_string(number)) {}

JsonValue::JsonValue(bool value) : json_(value ? "true" : "false") {}

JsonValue::JsonValue(double number) {
  std::array<char, 64> digits{};
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number, std::chars_format::fixed, 2);
  json_.assign(digits.data(), result.ptr);
  while (json_.ends_with('0')) json_.pop_back();
  if (json_.ends_with('.')) json_.pop_back();
}

JsonValue::JsonValue(const std::vector<std::string>& texts) {
  json_ = "[";
  for (const std::string& text : texts) {
    if (json_.size() > 1) json_ += ", ";
    json_ += Quoted(text);
  }
  json_ += "]";
}

void EventLog::Emit(std::string_view event, Values values) {
  out_ << "{\"line\": " << line_ << ", \"event\": \"" << event << '"';
  for (const auto& [key, value] : values) out_ << ", \"" << key << "\": " << value.Json();
  out_ << "}\n";
}

void EventLog::Emit(std::string_view event, const std::vector<std::pair<std::string, JsonValue>>& values) {
  out_ << "{\"line\": " << line_ << ", \"event\": \"" << event << '"';
  for (const auto& [key, value] : values) out_ << ", \"" << key << "\": " << value.Json();
  out_ << "}\n";
}

void EventLog::Plain(std::string_view text) { out_ << text << std::endl; }

}  // namespace kontorwerk
