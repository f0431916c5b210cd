// One line of a record file: an apostrophe, then the fields joined by ','. There is no quoting: a field that
// holds the separator moves all later fields of its line, and a leading apostrophe of a field is lost (kept:
// files of every version are read this way).
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

inline constexpr std::string_view kFieldSeparator = "','";

// The field at the 1-based position, without one leading apostrophe; empty outside the line. A closing
// apostrophe stays. Finds its field without splitting the line. The view lives as long as `record`.
[[nodiscard]] std::string_view RecordField(std::string_view record, int index);
// All fields of a line in one pass, field 1 at [0], each as RecordField gives it.
[[nodiscard]] std::vector<std::string_view> RecordFields(std::string_view record);
// The line of the fields, without a closing apostrophe and without line end.
[[nodiscard]] std::string RecordLine(const std::vector<std::string>& fields);
[[nodiscard]] std::string RecordLine(std::initializer_list<std::string_view> fields);

// The word at the 1-based position between single blanks; adjacent blanks make empty words.
[[nodiscard]] std::string_view NthWord(std::string_view text, int index);
// All words from the position on, behind one leading blank; empty behind the last word.
[[nodiscard]] std::string WordsFrom(std::string_view text, int index);

// A multi-line text as it travels in a field, and back: CR LF against "*__*".
[[nodiscard]] std::string LineBreaksToMarks(std::string_view text);
[[nodiscard]] std::string MarksToLineBreaks(std::string_view field);

}  // namespace kontorwerk
