// Tables as whole texts: each change reads the file, makes the new text beside the old one and saves it.
#include "store/RecordStore.h"

#include <cstddef>

#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

// Room for the longer rows of a rewrite: without it a table that grows would be copied into twice its size.
std::size_t RoomForRewrite(std::size_t oldSize) { return oldSize + oldSize / 2 + 4096; }

std::string RowWithLineEnd(std::string_view before, std::string_view row, std::string_view behind) {
  return Concat(before, row, kLineEnd, behind);
}

}  // namespace

std::vector<std::string_view> SplitRows(std::string_view text) { return Split(text, kLineEnd); }

std::string_view FirstRow(std::string_view text) { return text.substr(0, text.find(kLineEnd)); }

std::string RewrittenText(std::string_view text, BlankRows blankRows, const RowVisitor& visit) {
  std::string result;
  if (text.empty()) return result;
  result.reserve(RoomForRewrite(text.size()));
  const auto writeLine = [&result](std::string_view row) { result.append(row).append(kLineEnd); };
  for (bool more = true; more;) {
    const std::size_t end = text.find(kLineEnd);
    const std::string_view row = text.substr(0, end);
    more = end != std::string_view::npos;
    if (more) text.remove_prefix(end + kLineEnd.size());
    if (row.empty()) {
      if (blankRows == BlankRows::Keep) writeLine(row);
      continue;
    }
    const RowChange change = visit(row);
    if (change.kind == RowChange::Kind::Keep) writeLine(row);
    if (change.kind == RowChange::Kind::Replace) writeLine(change.row);
  }
  return result;
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
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTable(fileName, RowWithLineEnd(old.text, row, ""));
}

bool RecordStore::PrependRow(std::string_view fileName, std::string_view row) {
  const ReadResult old = ReadTable(fileName);
  return old.status != ReadStatus::Failed && WriteTable(fileName, RowWithLineEnd("", row, old.text));
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
