// Tables as whole texts: each change reads the file and saves what stays of the old text and the new rows, in parts.
#include "store/RecordStore.h"

#include <cstddef>
#include <deque>

#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// A rewritten table in parts: runs of old rows that stay, as views of the old text, and new rows between them.
class Rewrite {
 public:
  // `row` lies in the old text with its line end behind it.
  void Keep(std::string_view row) {
    const std::size_t size = row.size() + kLineEnd.size();
    if (!parts_.empty() && parts_.back().data() + parts_.back().size() == row.data()) {
      parts_.back() = {parts_.back().data(), parts_.back().size() + size};
    } else {
      parts_.emplace_back(row.data(), size);
    }
  }
  void Add(std::string_view row) { parts_.push_back(newRows_.emplace_back(Concat(row, kLineEnd))); }

  [[nodiscard]] const std::vector<std::string_view>& Parts() const { return parts_; }
  [[nodiscard]] std::string Joined() const {
    std::size_t size = 0;
    for (const std::string_view part : parts_) size += part.size();
    std::string text;
    text.reserve(size);
    for (const std::string_view part : parts_) text.append(part);
    return text;
  }

 private:
  std::deque<std::string> newRows_;  // which never move
  std::vector<std::string_view> parts_;
};

Rewrite RewriteOf(std::string_view text, BlankRows blankRows, const RowVisitor& visit) {
  Rewrite rewrite;
  for (bool more = !text.empty(); more;) {
    const std::size_t end = text.find(kLineEnd);
    const std::string_view row = text.substr(0, end);
    more = end != std::string_view::npos;
    if (more) text.remove_prefix(end + kLineEnd.size());
    const bool asked = !row.empty();
    const RowChange change = asked                          ? visit(row)
                             : blankRows == BlankRows::Keep ? RowChange::Keep()
                                                            : RowChange::Remove();
    if (change.kind == RowChange::Kind::Replace) {
      rewrite.Add(change.row);
    } else if (change.kind == RowChange::Kind::Keep) {
      // The last row has no line end of its own that could stay with it.
      if (more) {
        rewrite.Keep(row);
      } else {
        rewrite.Add(row);
      }
    }
  }
  return rewrite;
}

}  // namespace

std::vector<std::string_view> SplitRows(std::string_view text) { return Split(text, kLineEnd); }

std::string_view FirstRow(std::string_view text) { return text.substr(0, text.find(kLineEnd)); }

std::string RewrittenText(std::string_view text, BlankRows blankRows, const RowVisitor& visit) {
  return RewriteOf(text, blankRows, visit).Joined();
}

RecordStore::RecordStore(const FileSystemObject& files, const Settings& settings)
    : files_(files), settings_(settings) {}

std::string RecordStore::ReadTableText(std::string_view fileName) { return ReadTable(fileName).text; }

ReadResult RecordStore::ReadTable(std::string_view fileName) {
  const std::string path = PathOf(fileName);
  ReadResult result = files_.Read(path);
  if (result.status == ReadStatus::Failed) {
    failedReads_.insert(LCase(path));
  } else {
    failedReads_.erase(LCase(path));
  }
  return result;
}

bool RecordStore::WriteTable(std::string_view fileName, std::string_view text) {
  return WriteTableParts(fileName, {text});
}

bool RecordStore::WriteTableParts(std::string_view fileName, const std::vector<std::string_view>& parts) {
  const std::string path = PathOf(fileName);
  return !failedReads_.contains(LCase(path)) && files_.WriteParts(path, parts);
}

bool RecordStore::AppendRow(std::string_view fileName, std::string_view row) {
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTableParts(fileName, {old.text, row, kLineEnd});
}

bool RecordStore::PrependRow(std::string_view fileName, std::string_view row) {
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTableParts(fileName, {row, kLineEnd, old.text});
}

bool RecordStore::RewriteTable(std::string_view fileName, BlankRows blankRows, const RowVisitor& visit) {
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTableParts(fileName, RewriteOf(old.text, blankRows, visit).Parts());
}

bool RecordStore::ReplaceRowByNumber(std::string_view fileName, std::string_view number, std::string_view row) {
  return RewriteTable(fileName, BlankRows::Keep, [number, row](std::string_view oldRow) {
    return RecordField(oldRow, 2) == number ? RowChange::Replace(std::string(row)) : RowChange::Keep();
  });
}

std::string RecordStore::PathOf(std::string_view fileName) const { return Concat(settings_.DBPath, fileName); }

}  // namespace kontorwerk
