// Tables as whole texts: each change reads the file, makes the new text beside the old one and saves it.
#include "store/RecordStore.h"

#include <cstddef>
#include <utility>

#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// Room for the longer rows of a rewrite: without it a table that grows would be copied into twice its size.
std::size_t RoomForRewrite(std::size_t oldSize) { return oldSize + oldSize / 2 + 4096; }

// The text of a rewrite as it grows. Rows that stay are copied together, up to the next one that does not.
class Rewrite {
 public:
  explicit Rewrite(std::size_t oldSize) { result_.reserve(RoomForRewrite(oldSize)); }

  // `row` with its line end lies directly behind the last one kept, or anywhere else.
  void Keep(std::string_view row) {
    if (kept_.data() + kept_.size() != row.data()) Flush();
    kept_ = {kept_.empty() ? row.data() : kept_.data(), kept_.size() + row.size() + kLineEnd.size()};
  }
  void Add(std::string_view row) {
    Flush();
    result_.append(row).append(kLineEnd);
  }
  [[nodiscard]] std::string Finish() {
    Flush();
    return std::move(result_);
  }

 private:
  void Flush() { result_.append(std::exchange(kept_, {})); }

  std::string result_;
  std::string_view kept_;
};

}  // namespace

std::vector<std::string_view> SplitRows(std::string_view text) { return Split(text, kLineEnd); }

std::string_view FirstRow(std::string_view text) { return text.substr(0, text.find(kLineEnd)); }

std::string RewrittenText(std::string_view text, BlankRows blankRows, const RowVisitor& visit) {
  if (text.empty()) return {};
  Rewrite rewrite(text.size());
  for (bool more = true; more;) {
    const std::size_t end = text.find(kLineEnd);
    const std::string_view row = text.substr(0, end);
    more = end != std::string_view::npos;
    if (more) text.remove_prefix(end + kLineEnd.size());
    const bool asked = !row.empty();
    const RowChange change = asked ? visit(row) : blankRows == BlankRows::Keep ? RowChange::Keep() : RowChange::Remove();
    if (change.kind == RowChange::Kind::Replace) {
      rewrite.Add(change.row);
    } else if (change.kind == RowChange::Kind::Keep) {
      // The last row has no line end of its own that could be copied with it.
      if (more) {
        rewrite.Keep(row);
      } else {
        rewrite.Add(row);
      }
    }
  }
  return rewrite.Finish();
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
  const std::string path = PathOf(fileName);
  return !failedReads_.contains(LCase(path)) && files_.Write(path, text);
}

bool RecordStore::AppendRow(std::string_view fileName, std::string_view row) {
  ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTable(fileName, old.text.append(row).append(kLineEnd));
}

bool RecordStore::PrependRow(std::string_view fileName, std::string_view row) {
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTable(fileName, Concat(row, kLineEnd, old.text));
}

bool RecordStore::RewriteTable(std::string_view fileName, BlankRows blankRows, const RowVisitor& visit) {
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTable(fileName, RewrittenText(old.text, blankRows, visit));
}

bool RecordStore::ReplaceRowByNumber(std::string_view fileName, std::string_view number, std::string_view row) {
  return RewriteTable(fileName, BlankRows::Keep, [number, row](std::string_view oldRow) {
    return RecordField(oldRow, 2) == number ? RowChange::Replace(std::string(row)) : RowChange::Keep();
  });
}

std::string RecordStore::PathOf(std::string_view fileName) const { return Concat(settings_.DBPath, fileName); }

}  // namespace kontorwerk
