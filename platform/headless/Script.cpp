#include "platform/headless/Script.h"

#include <optional>
#include <utility>

#include "store/CodePage.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }

// Takes a quoted argument off the front of `rest`, which begins with the quote.
std::optional<std::string> TakeQuoted(std::string_view& rest, std::string& fault) {
  std::string text;
  std::size_t i = 1;
  for (; i < rest.size() && rest[i] != '"'; ++i) {
    if (rest[i] != '\\') {
      text += rest[i];
      continue;
    }
    if (++i == rest.size()) break;
    switch (rest[i]) {
      case '"':
        text += '"';
        break;
      case '\\':
        text += '\\';
        break;
      case 'r':
        text += '\r';
        break;
      case 'n':
        text += '\n';
        break;
      case 't':
        text += '\t';
        break;
      default:
        fault = Concat("unknown escape \\", rest.substr(i, 1));
        return std::nullopt;
    }
  }
  if (i >= rest.size()) {
    fault = "a quote is not closed";
    return std::nullopt;
  }
  rest.remove_prefix(i + 1);
  if (!rest.empty() && !IsBlank(rest.front())) {
    fault = "a quoted argument runs into the next";
    return std::nullopt;
  }
  return text;
}

std::optional<std::vector<Argument>> SplitArguments(std::string_view line, std::string& fault) {
  std::vector<Argument> arguments;
  for (;;) {
    while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
    if (line.empty()) return arguments;
    if (line.front() == '"') {
      auto text = TakeQuoted(line, fault);
      if (!text) return std::nullopt;
      arguments.push_back({std::move(*text), true});
      continue;
    }
    std::size_t end = 0;
    while (end < line.size() && !IsBlank(line[end])) ++end;
    arguments.push_back({std::string(line.substr(0, end)), false});
    line.remove_prefix(end);
  }
}

}  // namespace

std::variant<std::vector<Step>, ScriptFault> ParseScript(std::string_view utf8) {
  if (utf8.starts_with("\xEF\xBB\xBF")) utf8.remove_prefix(3);
  std::vector<Step> steps;
  int number = 0;
  while (!utf8.empty()) {
    ++number;
    const std::size_t end = utf8.find('\n');
    std::string_view line = utf8.substr(0, end);
    utf8.remove_prefix(end == std::string_view::npos ? utf8.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    while (!line.empty() && IsBlank(line.front())) line.remove_prefix(1);
    if (line.empty() || line.front() == '#') continue;
    const auto text = FromUtf8(line);
    if (!text) return ScriptFault{number, "a character is not in Windows-1252"};
    std::string fault;
    auto arguments = SplitArguments(*text, fault);
    if (!arguments) return ScriptFault{number, fault};
    Step step{number, arguments->front().text, {}};
    step.arguments.assign(std::make_move_iterator(arguments->begin() + 1), std::make_move_iterator(arguments->end()));
    steps.push_back(std::move(step));
  }
  return steps;
}

TargetName ParseTargetName(std::string_view text) {
  TargetName target;
  std::vector<std::string> parts(1);
  int depth = 0;
  for (const char c : text) {
    if (c == '(') ++depth;
    if (c == ')') --depth;
    if (c == '.' && depth <= 0) {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  target.screen = parts.front();
  target.parts.assign(parts.begin() + 1, parts.end());
  return target;
}

BracketedName ParseBracketedName(std::string_view text) {
  BracketedName result;
  const std::size_t open = text.find('(');
  if (open == std::string_view::npos || !text.ends_with(')')) {
    result.name = text;
    return result;
  }
  result.name = text.substr(0, open);
  result.argument = text.substr(open + 1, text.size() - open - 2);
  result.hasArgument = true;
  return result;
}

}  // namespace kontorwerk
