// A script as the operator reads it: one step a line, a verb and its arguments. See docs/operator.md for the language.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kontorwerk {

struct Argument {
  std::string text;  // Windows-1252
  bool quoted = false;
};

struct Step {
  int line = 0;
  std::string verb;
  std::vector<Argument> arguments;
};

struct ScriptFault {
  int line = 0;
  std::string message;  // Windows-1252
};

// The steps of a script in UTF-8, or the first line that is none.
[[nodiscard]] std::variant<std::vector<Step>, ScriptFault> ParseScript(std::string_view utf8);

// A name of a control or a screen, with a property: SCREEN[.CONTROL[(i)]][.PROPERTY[(ARGUMENT)]].
struct TargetName {
  std::string screen;
  std::vector<std::string> parts;  // behind the screen, each with its brackets: "LGNr(0)", "bold(01.02.2026)"
};
[[nodiscard]] TargetName ParseTargetName(std::string_view text);
// "LGNr(0)" into name and what stands in the brackets; false for unbalanced brackets. No brackets: empty argument.
struct BracketedName {
  std::string name;
  std::string argument;
  bool hasArgument = false;
};
[[nodiscard]] BracketedName ParseBracketedName(std::string_view text);

}  // namespace kontorwerk
