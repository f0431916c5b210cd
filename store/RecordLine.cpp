// Cutting fields and words out of a line by walking to them, and joining fields to a line.
#include "store/RecordLine.h"

#include "store/Text.h"

namespace kontorwerk {
namespace {

// Kept: exactly one leading apostrophe goes, whoever wrote it. The one that opens the line is no different from
// one that the user typed at the front of a field.
std::string_view WithoutLeadingApostrophe(std::string_view piece) {
  if (!piece.empty() && piece.front() == '\'') piece.remove_prefix(1);
  return piece;
}

constexpr std::string_view kWordSeparator = " ";

// Cuts the text behind its first `count` separators off the front; false if it has fewer. The separator is known at
// compile time, so that comparing it takes no call: readers of whole tables spend their time here.
template <const std::string_view& separator>
bool SkipPieces(std::string_view& text, int count) {
  for (; count > 0; --count) {
    const std::size_t position = text.find(separator);
    if (position == std::string_view::npos) return false;
    text.remove_prefix(position + separator.size());
  }
  return true;
}

template <const std::string_view& separator>
std::string_view PieceAt(std::string_view text, int index) {
  if (index < 1 || !SkipPieces<separator>(text, index - 1)) return {};
  return text.substr(0, text.find(separator));
}

template <typename Fields>
std::string JoinedFields(const Fields& fields) {
  std::size_t size = 1;
  for (const auto& field : fields) size += field.size() + kFieldSeparator.size();
  std::string line;
  line.reserve(size);
  line.push_back('\'');
  bool first = true;
  for (const auto& field : fields) {
    if (!first) line.append(kFieldSeparator);
    line.append(field);
    first = false;
  }
  return line;
}

}  // namespace

std::string_view RecordField(std::string_view record, int index) {
  return WithoutLeadingApostrophe(PieceAt<kFieldSeparator>(record, index));
}

std::vector<std::string_view> RecordFields(std::string_view record) {
  std::vector<std::string_view> fields = Split(record, kFieldSeparator);
  for (std::string_view& field : fields) field = WithoutLeadingApostrophe(field);
  return fields;
}

std::string RecordLine(const std::vector<std::string>& fields) { return JoinedFields(fields); }

std::string RecordLine(std::initializer_list<std::string_view> fields) { return JoinedFields(fields); }

std::string_view NthWord(std::string_view text, int index) { return PieceAt<kWordSeparator>(text, index); }

std::string WordsFrom(std::string_view text, int index) {
  if (text.empty() || !SkipPieces<kWordSeparator>(text, index - 1)) return {};
  return Concat(" ", text);
}

std::string LineBreaksToMarks(std::string_view text) { return Replace(text, kLineEnd, kLineBreakMark); }

std::string MarksToLineBreaks(std::string_view field) { return Replace(field, kLineBreakMark, kLineEnd); }

}  // namespace kontorwerk
