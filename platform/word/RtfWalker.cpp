// Which groups of rich text a reader sees, and which of them are streams of their own.
#include "platform/word/RtfWalker.h"

#include "store/Text.h"

#include <algorithm>
#include <array>

namespace kontorwerk {

namespace {

// Deeper streams count as part of the one around; no real document comes near.
constexpr std::size_t kDeepestStream = 64;

template <std::size_t N>
bool Contains(const std::array<std::string_view, N>& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

constexpr std::array<std::string_view, 20> kHiddenDestinations = {
    "fonttbl",   "colortbl", "stylesheet", "info",   "pict",    "fldinst", "listtext",
    "bkmkstart", "bkmkend",  "nonshppict", "pntext", "objdata", "filetbl", "private",
    "themedata", "sn",       "sv",         "tc",     "xe",      "template"};
constexpr std::array<std::string_view, 4> kShownOptionalDestinations = {"shpinst", "do", "shptxt", "dptxbxtext"};
constexpr std::array<std::string_view, 4> kHeaders = {"header", "headerl", "headerr", "headerf"};
constexpr std::array<std::string_view, 4> kFooters = {"footer", "footerl", "footerr", "footerf"};

struct SymbolWord {
  std::string_view word;
  unsigned char byte;
};
constexpr std::array<SymbolWord, 7> kSymbolWords = {{{"emdash", 0x97},
                                                     {"endash", 0x96},
                                                     {"bullet", 0x95},
                                                     {"lquote", 0x91},
                                                     {"rquote", 0x92},
                                                     {"ldblquote", 0x93},
                                                     {"rdblquote", 0x94}}};

struct BreakWord {
  std::string_view word;
  RtfBreak kind;
};
constexpr std::array<BreakWord, 9> kBreakWords = {{{"par", RtfBreak::Paragraph},
                                                   {"sect", RtfBreak::Paragraph},
                                                   {"page", RtfBreak::Paragraph},
                                                   {"line", RtfBreak::Line},
                                                   {"cell", RtfBreak::Cell},
                                                   {"nestcell", RtfBreak::Cell},
                                                   {"row", RtfBreak::Row},
                                                   {"nestrow", RtfBreak::Row},
                                                   {"tab", RtfBreak::Tab}}};

bool IsLowSurrogate(char32_t code) { return code >= 0xDC00 && code <= 0xDFFF; }

}  // namespace

void RtfWalker::Walk() {
  RtfTokenizer tokenizer(rtf_);
  listener_.StreamStart(TextArea::Body, false);
  streams_.push_back(TextArea::Body);
  RtfToken token;
  while (tokenizer.Next(token)) Handle(token);
  Flush();
  for (; !streams_.empty(); streams_.pop_back()) listener_.StreamEnd();
}

void RtfWalker::Handle(const RtfToken& token) {
  if (skippedDepth_ > 0) {
    if (token.kind == RtfTokenKind::GroupStart) ++skippedDepth_;
    if (token.kind == RtfTokenKind::GroupEnd && --skippedDepth_ == 0) EndGroup();
    return;
  }
  switch (token.kind) {
    case RtfTokenKind::GroupStart:
      return StartGroup();
    case RtfTokenKind::GroupEnd:
      return EndGroup();
    case RtfTokenKind::Word:
      HandleWord(token);
      break;
    case RtfTokenKind::Symbol:
      HandleSymbol(token);
      break;
    case RtfTokenKind::HexByte:
      if (!TakeSubstitute(token.end)) Show(static_cast<char>(token.number), token.begin, token.end);
      break;
    case RtfTokenKind::Text:
      HandleText(token);
      break;
    case RtfTokenKind::LineEnd:
      return;
  }
  optionalNext_ = token.kind == RtfTokenKind::Symbol && token.symbol == '*';
  if (token.kind == RtfTokenKind::Word && !token.hasDelimiter) openWordEnd_ = token.end;
}

void RtfWalker::StartGroup() {
  Flush();
  const std::uint8_t substitutes = groups_.empty() ? 1 : groups_.back().substitutes;
  groups_.push_back({substitutes, false});
  optionalNext_ = false;
}

void RtfWalker::EndGroup() {
  Flush();
  optionalNext_ = false;
  if (groups_.empty()) return;
  if (groups_.back().isStream) {
    streams_.pop_back();
    listener_.StreamEnd();
  }
  groups_.pop_back();
}

void RtfWalker::HandleWord(const RtfToken& token) {
  if (token.word == "u" && token.hasNumber) return HandleUnicode(token);
  if (TakeSubstitute(token.end)) return;
  if (token.word == "uc" && !groups_.empty()) {
    groups_.back().substitutes = static_cast<std::uint8_t>(std::clamp(token.number, 0, 255));
  } else if (!HandleSymbolWord(token) && !HandleDestination(token.word, optionalNext_) && optionalNext_) {
    SkipGroup();
  }
}

// Characters and breaks that have a word of their own.
bool RtfWalker::HandleSymbolWord(const RtfToken& token) {
  const auto isMeant = [&](const auto& entry) { return entry.word == token.word; };
  const auto symbol = std::find_if(kSymbolWords.begin(), kSymbolWords.end(), isMeant);
  if (symbol != kSymbolWords.end()) Show(static_cast<char>(symbol->byte), token.begin, token.end);
  const auto breaking = std::find_if(kBreakWords.begin(), kBreakWords.end(), isMeant);
  if (breaking != kBreakWords.end()) listener_.Break(breaking->kind);
  return symbol != kSymbolWords.end() || breaking != kBreakWords.end();
}

bool RtfWalker::HandleDestination(std::string_view word, bool isOptional) {
  if (Contains(kHiddenDestinations, word)) {
    SkipGroup();
  } else if (Contains(kHeaders, word)) {
    OpenStream(TextArea::Header, false);
  } else if (Contains(kFooters, word)) {
    OpenStream(TextArea::Footer, false);
  } else if (word == "shptxt" || word == "footnote") {
    OpenStream(streams_.back(), false);
  } else if (word == "shprslt" || word == "dptxbxtext") {
    OpenStream(streams_.back(), true);
  } else {
    return isOptional && Contains(kShownOptionalDestinations, word);
  }
  return true;
}

void RtfWalker::HandleSymbol(const RtfToken& token) {
  if (token.symbol == '*') return;
  if (TakeSubstitute(token.end)) return;
  switch (token.symbol) {
    case '\\':
    case '{':
    case '}':
      return Show(token.symbol, token.begin, token.end);
    case '~':
      return Show(static_cast<char>(0xA0), token.begin, token.end);
    case '_':
      return Show('-', token.begin, token.end);
    case '\t':
      return listener_.Break(RtfBreak::Tab);
    case '\r':
    case '\n':
      return listener_.Break(RtfBreak::Paragraph);
    default:
      return;  // optional hyphens and the like leave nothing to read
  }
}

void RtfWalker::HandleText(const RtfToken& token) {
  for (std::size_t i = token.begin; i < token.end; ++i) {
    if (TakeSubstitute(i + 1)) continue;
    if (rtf_[i] == '\t')
      listener_.Break(RtfBreak::Tab);
    else
      Show(rtf_[i], i, i + 1);
  }
}

void RtfWalker::HandleUnicode(const RtfToken& token) {
  Flush();
  const char32_t code = static_cast<char16_t>(token.number);
  const int byte = detail::ByteOf(code);
  unicode_.character = {static_cast<char>(std::max(byte, 0)), token.begin, token.end, token.begin == openWordEnd_};
  unicode_.isOpen = true;
  unicode_.isShown = !IsLowSurrogate(code);
  unicode_.substitutesLeft = groups_.empty() ? 1 : groups_.back().substitutes;
  if (unicode_.substitutesLeft == 0) Flush();
}

// True if the character that ends at `end` only stands in for the \u before it.
bool RtfWalker::TakeSubstitute(std::size_t end) {
  if (!unicode_.isOpen) return false;
  unicode_.character.end = end;
  if (--unicode_.substitutesLeft == 0) Flush();
  return true;
}

void RtfWalker::Flush() {
  if (!unicode_.isOpen) return;
  unicode_.isOpen = false;
  if (unicode_.isShown) listener_.Character(unicode_.character);
}

void RtfWalker::OpenStream(TextArea area, bool repeats) {
  if (groups_.empty() || groups_.back().isStream || streams_.size() >= kDeepestStream) return;
  groups_.back().isStream = true;
  streams_.push_back(area);
  listener_.StreamStart(area, repeats);
}

void RtfWalker::SkipGroup() {
  if (!groups_.empty()) skippedDepth_ = 1;
}

void RtfWalker::Show(char byte, std::size_t begin, std::size_t end) {
  listener_.Character({byte, begin, end, begin == openWordEnd_});
}

}  // namespace kontorwerk
