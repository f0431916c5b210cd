// The string functions of the record files, over bytes; the case tables cover the letters of Windows-1252.
#include "store/Text.h"

namespace kontorwerk {
namespace {

using CaseTable = std::array<char, 256>;

// Each pair of cases that Windows-1252 holds. "ß", "ƒ" and "µ" have no partner in the code page and stay.
template <typename Assign>
constexpr void ForEachCasePair(Assign assign) {
  for (int upper = 'A'; upper <= 'Z'; ++upper) assign(upper, upper + 0x20);
  for (int upper = 0xC0; upper <= 0xDE; ++upper)
    if (upper != 0xD7) assign(upper, upper + 0x20);
  for (const int upper : {0x8A, 0x8C, 0x8E}) assign(upper, upper + 0x10);
  assign(0x9F, 0xFF);
}

constexpr CaseTable Identity() {
  CaseTable table{};
  for (std::size_t i = 0; i < table.size(); ++i) table[i] = static_cast<char>(i);
  return table;
}

constexpr CaseTable kUpper = [] {
  CaseTable table = Identity();
  ForEachCasePair([&](int upper, int lower) { table[static_cast<std::size_t>(lower)] = static_cast<char>(upper); });
  return table;
}();

constexpr CaseTable kLower = [] {
  CaseTable table = Identity();
  ForEachCasePair([&](int upper, int lower) { table[static_cast<std::size_t>(upper)] = static_cast<char>(lower); });
  return table;
}();

std::string Mapped(std::string_view text, const CaseTable& table) {
  std::string result(text);
  for (char& c : result) c = table[static_cast<unsigned char>(c)];
  return result;
}

}  // namespace

std::string_view Left(std::string_view text, int count) {
  return count <= 0 ? std::string_view() : text.substr(0, static_cast<std::size_t>(count));
}

std::string_view Right(std::string_view text, int count) {
  if (count <= 0) return {};
  const auto wanted = static_cast<std::size_t>(count);
  return wanted >= text.size() ? text : text.substr(text.size() - wanted);
}

std::string_view Mid(std::string_view text, int start, int count) { return Left(Mid(text, start), count); }

std::string_view Mid(std::string_view text, int start) {
  const std::size_t skipped = start < 1 ? 0 : static_cast<std::size_t>(start) - 1;
  return skipped >= text.size() ? std::string_view() : text.substr(skipped);
}

int Len(std::string_view text) { return static_cast<int>(text.size()); }

std::string UCase(std::string_view text) { return Mapped(text, kUpper); }

std::string LCase(std::string_view text) { return Mapped(text, kLower); }

int InStr(std::string_view text, std::string_view part) {
  if (text.empty()) return 0;
  const std::size_t position = text.find(part);
  return position == std::string_view::npos ? 0 : static_cast<int>(position) + 1;
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t position = from.empty() ? std::string_view::npos : text.find(from);
  while (position != std::string_view::npos) {
    result.append(text.substr(0, position)).append(to);
    text.remove_prefix(position + from.size());
    position = text.find(from);
  }
  return result.append(text);
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> pieces;
  if (text.empty()) return pieces;
  if (separator.empty()) return {text};
  std::size_t position = text.find(separator);
  while (position != std::string_view::npos) {
    pieces.push_back(text.substr(0, position));
    text.remove_prefix(position + separator.size());
    position = text.find(separator);
  }
  pieces.push_back(text);
  return pieces;
}

std::string_view Trim(std::string_view text) { return LTrim(RTrim(text)); }

std::string_view LTrim(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

std::string_view RTrim(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string PadZeros(std::string_view text, int length) {
  const auto wanted = static_cast<std::size_t>(std::max(length, 0));
  std::string result(wanted > text.size() ? wanted - text.size() : 0, '0');
  return result.append(text);
}

}  // namespace kontorwerk
