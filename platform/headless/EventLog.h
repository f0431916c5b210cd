// The operator's record: each event as one line of JSON, in UTF-8, with the script line that was in work.
#pragma once

#include <initializer_list>
#include <ostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kontorwerk {

// A value of an event, already in JSON.
class JsonValue {
 public:
  // From a text in Windows-1252.
  JsonValue(std::string_view text);  // NOLINT: events are written as lists of names and values
  JsonValue(const std::string& text) : JsonValue(std::string_view(text)) {}
  JsonValue(const char* text) : JsonValue(std::string_view(text)) {}
  JsonValue(int number);
  JsonValue(bool value);
  // A number with at most two decimals, for millimetres and font sizes.
  JsonValue(double number);
  JsonValue(const std::vector<std::string>& texts);

  [[nodiscard]] const std::string& Json() const { return json_; }

 private:
  std::string json_;
};

class EventLog {
 public:
  using Values = std::initializer_list<std::pair<std::string_view, JsonValue>>;

  explicit EventLog(std::ostream& out) : out_(out) {}

  void SetLine(int line) { line_ = line; }
  [[nodiscard]] int Line() const { return line_; }
  void Emit(std::string_view event, Values values);
  void Emit(std::string_view event, const std::vector<std::pair<std::string, JsonValue>>& values);
  // A line that is no event.
  void Plain(std::string_view text);

 private:
  std::ostream& out_;
  int line_ = 0;
};

}  // namespace kontorwerk
