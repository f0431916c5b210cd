// The lexical rules of rich text.
#include "platform/word/RtfTokenizer.h"

#include <algorithm>
#include <limits>

namespace kontorwerk {

namespace {

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
bool IsLineEnd(char c) { return c == '\r' || c == '\n'; }

int HexDigit(char c) {
  if (IsDigit(c)) return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

}  // namespace

bool RtfTokenizer::Next(RtfToken& token) {
  if (position_ >= rtf_.size()) return false;
  token = RtfToken{};
  token.begin = position_;
  const char first = rtf_[position_++];
  if (first == '\\') {
    ReadBackslash(token);
  } else if (first == '{') {
    token.kind = RtfTokenKind::GroupStart;
  } else if (first == '}') {
    token.kind = RtfTokenKind::GroupEnd;
  } else if (IsLineEnd(first)) {
    token.kind = RtfTokenKind::LineEnd;
    while (At(IsLineEnd)) ++position_;
  } else {
    token.kind = RtfTokenKind::Text;
    position_ = std::min(rtf_.find_first_of("\\{}\r\n", position_), rtf_.size());
  }
  token.end = position_;
  return true;
}

void RtfTokenizer::ReadBackslash(RtfToken& token) {
  if (At(IsLetter)) return ReadWord(token);
  token.kind = RtfTokenKind::Symbol;
  if (position_ >= rtf_.size()) return;
  token.symbol = rtf_[position_++];
  if (token.symbol != '\'' || rtf_.size() - position_ < 2) return;
  const int high = HexDigit(rtf_[position_]);
  const int low = HexDigit(rtf_[position_ + 1]);
  if (high < 0 || low < 0) return;
  token.kind = RtfTokenKind::HexByte;
  token.number = high * 16 + low;
  position_ += 2;
}

void RtfTokenizer::ReadWord(RtfToken& token) {
  token.kind = RtfTokenKind::Word;
  const std::size_t start = position_;
  while (At(IsLetter)) ++position_;
  token.word = rtf_.substr(start, position_ - start);
  ReadNumber(token);
  if (position_ < rtf_.size() && rtf_[position_] == ' ') {
    token.hasDelimiter = true;
    ++position_;
  }
  if (token.word == "bin" && token.number > 0)
    position_ += std::min(static_cast<std::size_t>(token.number), rtf_.size() - position_);
}

void RtfTokenizer::ReadNumber(RtfToken& token) {
  const bool negative = rtf_.size() - position_ >= 2 && rtf_[position_] == '-' && IsDigit(rtf_[position_ + 1]);
  if (negative) ++position_;
  if (!At(IsDigit)) return;
  token.hasNumber = true;
  long long value = 0;
  for (; At(IsDigit); ++position_)
    value = std::min<long long>(value * 10 + (rtf_[position_] - '0'), std::numeric_limits<int>::max());
  token.number = static_cast<int>(negative ? -value : value);
}

}  // namespace kontorwerk
