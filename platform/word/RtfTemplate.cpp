// Finding marks, filling them and reading a page as plain text: three listeners of the walk through a file.
#include "platform/word/RtfTemplate.h"

#include "platform/word/RtfWalker.h"
#include "store/Text.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace kontorwerk {

namespace {

constexpr std::size_t kLongestName = 60;

char32_t CodePointOf(unsigned char byte) {
  return byte >= 0x80 && byte < 0xA0 ? detail::kHighCodePoints[byte - 0x80U] : byte;
}

void AppendHex(std::string& out, unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  out += "\\'";
  out += kDigits[byte / 16];
  out += kDigits[byte % 16];
}

void AppendEscaped(std::string& out, unsigned char byte) {
  if (byte == '\\' || byte == '{' || byte == '}') {
    out += '\\';
    out += static_cast<char>(byte);
  } else if (byte == '\t') {
    out += "\\tab ";
  } else if (byte >= 0x80) {
    // By number and by byte: right in every reader, whatever code page the file or the font has.
    out += "\\u";
    out += std::to_string(CodePointOf(byte));
    AppendHex(out, byte);
  } else if (byte >= 0x20) {
    out += static_cast<char>(byte);
  }
}

}  // namespace

// Collects the marks while the walker passes. One candidate is open per stream at most: the characters since the last
// opening bracket.
class MarkFinder final : public RtfListener {
 public:
  explicit MarkFinder(RtfTemplate& target) : target_(target) {}

  void StreamStart(TextArea area, bool /*repeats*/) override { streams_.push_back({area, {}}); }
  void StreamEnd() override { streams_.pop_back(); }
  void Break(RtfBreak /*kind*/) override { streams_.back().candidate.Clear(); }
  void Character(const RtfCharacter& character) override;

 private:
  enum class Bracket { None, Square, AngleHalf, Angle, AngleClosing };
  struct Candidate {
    Bracket bracket = Bracket::None;
    std::string name;
    std::vector<RtfCharacter> characters;

    void Clear() { *this = Candidate(); }
    void Open(Bracket kind, const RtfCharacter& first) {
      name.clear();
      characters.assign(1, first);
      bracket = kind;
    }
  };
  struct Stream {
    TextArea area;
    Candidate candidate;
  };

  void OpenAngle(Candidate& candidate, const RtfCharacter& character);
  void Continue(Candidate& candidate, const RtfCharacter& character);
  void Accept(Stream& stream);

  RtfTemplate& target_;
  std::vector<Stream> streams_;
};

void MarkFinder::Character(const RtfCharacter& character) {
  Candidate& candidate = streams_.back().candidate;
  if (character.byte == '[') return candidate.Open(Bracket::Square, character);
  if (character.byte == '<') return OpenAngle(candidate, character);
  if (candidate.bracket != Bracket::None) Continue(candidate, character);
}

void MarkFinder::OpenAngle(Candidate& candidate, const RtfCharacter& character) {
  const bool isDirectlyBehind = candidate.name.empty() && !candidate.characters.empty();
  if (isDirectlyBehind && candidate.bracket == Bracket::AngleHalf) {
    candidate.bracket = Bracket::Angle;
    candidate.characters.push_back(character);
  } else if (isDirectlyBehind && candidate.bracket == Bracket::Angle) {
    candidate.characters = {candidate.characters[1], character};  // of "<<<" the last two count
  } else {
    candidate.Open(Bracket::AngleHalf, character);
  }
}

void MarkFinder::Continue(Candidate& candidate, const RtfCharacter& character) {
  candidate.characters.push_back(character);
  const bool isSquare = candidate.bracket == Bracket::Square;
  if (character.byte == (isSquare ? ']' : '>')) {
    if (candidate.name.empty() || candidate.bracket == Bracket::AngleHalf) return candidate.Clear();
    if (candidate.bracket == Bracket::Angle)
      candidate.bracket = Bracket::AngleClosing;
    else
      Accept(streams_.back());
    return;
  }
  const bool fits = candidate.name.size() < kLongestName && character.byte != 0;
  if (!fits || candidate.bracket == Bracket::AngleHalf || candidate.bracket == Bracket::AngleClosing)
    return candidate.Clear();
  candidate.name += character.byte;
}

void MarkFinder::Accept(Stream& stream) {
  const std::size_t mark = target_.marks_.size();
  auto& pieces = target_.pieces_;
  bool isFirst = true;
  for (const RtfCharacter& character : stream.candidate.characters) {
    if (!isFirst && pieces.back().end == character.begin)
      pieces.back().end = character.end;
    else
      pieces.push_back({character.begin, character.end, mark, isFirst, character.followsOpenWord});
    isFirst = false;
  }
  target_.marks_.push_back({stream.area, stream.candidate.name, FieldValues::KeyOf(stream.candidate.name)});
  stream.candidate.Clear();
}

bool RtfTemplate::IsRtf(std::string_view bytes) { return bytes.starts_with("{\\rtf"); }

std::string RtfTemplate::Escaped(std::string_view text) {
  std::string out;
  out.reserve(text.size() + 16);
  const bool needsGroup = std::any_of(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
  if (needsGroup) out += "{\\uc1 ";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
    if (isPair) ++i;
    if (text[i] == '\r' || text[i] == '\n')
      out += "\\line ";
    else
      AppendEscaped(out, static_cast<unsigned char>(text[i]));
  }
  if (needsGroup) out += '}';
  return out;
}

RtfTemplate::RtfTemplate(std::string rtf) : rtf_(std::move(rtf)) {
  MarkFinder finder(*this);
  RtfWalker(rtf_, finder).Walk();
  // A text frame may stand in the middle of a mark of the text around it.
  std::sort(pieces_.begin(), pieces_.end(), [](const Piece& a, const Piece& b) { return a.begin < b.begin; });
}

std::vector<std::string> RtfTemplate::Names(TextArea area) const {
  std::vector<std::string> names;
  std::set<std::string_view> seen;
  for (const Mark& mark : marks_)
    if (mark.area == area && seen.insert(mark.name).second) names.push_back(mark.name);
  return names;
}

std::string RtfTemplate::Fill(const FieldValues& values) const {
  std::vector<const std::string*> found;
  found.reserve(marks_.size());
  for (const Mark& mark : marks_) found.push_back(values.Find(mark.area, mark.key));

  std::string out;
  out.reserve(rtf_.size() + rtf_.size() / 8);
  std::size_t copied = 0;
  for (const Piece& piece : pieces_) {
    const std::string* value = found[piece.mark];
    if (value == nullptr) continue;
    out.append(rtf_, copied, piece.begin - copied);
    if (piece.followsOpenWord) out += ' ';
    if (piece.isFirst) out += Escaped(*value);
    copied = piece.end;
  }
  out.append(rtf_, copied);
  return out;
}

namespace {

class PlainTextCollector final : public RtfListener {
 public:
  void StreamStart(TextArea area, bool repeats) override {
    const bool isSilent = repeats || (!streams_.empty() && streams_.back().isSilent);
    if (!streams_.empty()) EndLine(streams_.back(), false);
    streams_.push_back({area, isSilent});
  }
  void StreamEnd() override {
    EndLine(streams_.back(), false);
    streams_.pop_back();
  }
  void Character(const RtfCharacter& character) override {
    if (streams_.back().isSilent) return;
    TextOf(streams_.back()) += character.byte == 0 ? '?' : character.byte;
  }
  void Break(RtfBreak kind) override {
    if (streams_.back().isSilent) return;
    if (kind == RtfBreak::Cell || kind == RtfBreak::Tab)
      TextOf(streams_.back()) += '\t';
    else
      EndLine(streams_.back(), true);
  }
  [[nodiscard]] std::string Result() const { return Concat(texts_[1], texts_[0], texts_[2]); }

 private:
  struct Stream {
    TextArea area;
    bool isSilent;
  };

  std::string& TextOf(const Stream& stream) { return texts_[static_cast<std::size_t>(stream.area)]; }
  // Ends the line, an empty one only if `always`; tabs at the end of a line come from the last cell of a row.
  void EndLine(const Stream& stream, bool always) {
    std::string& text = TextOf(stream);
    const std::size_t length = text.size();
    while (text.ends_with('\t')) text.pop_back();
    const bool isEmpty = length == 0 || text.ends_with('\n');
    if (always || !isEmpty) text += kLineEnd;
  }

  std::vector<Stream> streams_;
  std::array<std::string, kTextAreaCount> texts_;
};

}  // namespace

std::string PlainTextOf(std::string_view rtf) {
  PlainTextCollector collector;
  RtfWalker(rtf, collector).Walk();
  return collector.Result();
}

}  // namespace kontorwerk
