// Field and word access against a reader that splits the text piece by piece.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "store/RecordLine.h"
#include "store/RecordStore.h"
#include "store/Text.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// One character after the other, the way the format is told: from the left, without overlapping.
std::vector<std::string> NaiveSplit(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  if (text.empty()) return pieces;
  pieces.emplace_back();
  for (std::size_t i = 0; i < text.size();) {
    if (text.substr(i, separator.size()) == separator) {
      pieces.emplace_back();
      i += separator.size();
    } else {
      pieces.back().push_back(text[i++]);
    }
  }
  return pieces;
}

std::string At(const std::vector<std::string>& pieces, int index) {
  const bool inside = index >= 1 && static_cast<std::size_t>(index) <= pieces.size();
  return inside ? pieces[static_cast<std::size_t>(index) - 1] : std::string();
}

void CheckFields(std::string_view text) {
  const std::vector<std::string> pieces = NaiveSplit(text, "','");
  const std::vector<std::string_view> fields = kontorwerk::RecordFields(text);
  Require(fields.size() == pieces.size());
  for (int index = -1; index <= static_cast<int>(pieces.size()) + 1; ++index) {
    std::string expected = At(pieces, index);
    if (!expected.empty() && expected.front() == '\'') expected.erase(0, 1);
    Require(kontorwerk::RecordField(text, index) == expected);
    if (index >= 1 && static_cast<std::size_t>(index) <= fields.size())
      Require(fields[static_cast<std::size_t>(index) - 1] == expected);
  }
}

void CheckWords(std::string_view text) {
  const std::vector<std::string> words = NaiveSplit(text, " ");
  for (int index = -1; index <= static_cast<int>(words.size()) + 1; ++index) {
    Require(kontorwerk::NthWord(text, index) == At(words, index));
    std::string expected;
    for (std::size_t i = index < 1 ? 0 : static_cast<std::size_t>(index) - 1; i < words.size(); ++i)
      expected += " " + words[i];
    Require(kontorwerk::WordsFrom(text, index) == expected);
  }
}

// A rewrite that keeps everything adds line ends at the end and nothing else.
void CheckRows(std::string_view text) {
  const auto keep = [](std::string_view) { return kontorwerk::RowChange::Keep(); };
  const std::string kept = kontorwerk::RewrittenText(text, kontorwerk::BlankRows::Keep, keep);
  Require(kept == (text.empty() ? std::string() : std::string(text) + "\r\n"));
  std::string rows;
  kontorwerk::ForEachRow(text, [&rows](std::string_view row) { rows.append(row).append("\r\n"); });
  Require(kontorwerk::RewrittenText(text, kontorwerk::BlankRows::Drop, keep) == rows);
  const std::vector<std::string> split = NaiveSplit(text, "\r\n");
  Require(kontorwerk::SplitRows(text) == std::vector<std::string_view>(split.begin(), split.end()));
  Require(kontorwerk::FirstRow(text) == (split.empty() ? std::string() : split.front()));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The comparison walks over the text once for each field: long inputs only cost time.
  if (size > 2000) return 0;
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  CheckFields(text);
  CheckWords(text);
  CheckRows(text);
  const std::string marked = kontorwerk::LineBreaksToMarks(text);
  Require(marked.find("\r\n") == std::string::npos);
  if (text.find("*__*") == std::string_view::npos && marked.find("*__*") == std::string::npos)
    Require(kontorwerk::MarksToLineBreaks(marked) == text);
  return 0;
}
