// The tables of customers and suppliers: numbers, lines, search. All operations work on the table's text or write
// it back whole; none of them shows anything.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "partners/PartnerKind.h"
#include "store/RecordStore.h"

namespace kontorwerk {

// One partner: the texts of his boxes in the order of the columns, and the date of creation.
struct Partner {
  std::vector<std::string> texts;
  std::string Erfassdatum;

  // Empty outside the boxes.
  [[nodiscard]] std::string_view Text(int column) const;
};

// The first five columns of a line, as a result list shows them.
struct PartnerHit {
  std::string_view number, name, Straße, PLZ, Wohnort;
};

// The number of the next partner, filled to five digits: the last line's plus 1, the kind's first number in a table
// without a numbered line. Blank lines and lines that begin with no number are passed over. Behind 99999 numbers grow
// longer.
[[nodiscard]] std::string NextPartnerNumber(std::string_view tableText, const PartnerKind& kind);

// The line of a partner without line end: every line break is a mark, the date ends the line without an apostrophe.
[[nodiscard]] std::string PartnerLine(const Partner& partner);
[[nodiscard]] Partner ReadPartner(std::string_view line, const PartnerKind& kind);
// The first line of the number; nothing without one.
[[nodiscard]] std::optional<Partner> FindPartner(std::string_view tableText, std::string_view number,
                                                 const PartnerKind& kind);

// Issues a number, puts it into the partner's first text and appends his line with `today` as date of creation.
// False if nothing was written; the number is issued all the same.
bool AppendPartner(RecordStore& store, const PartnerKind& kind, Partner& partner, std::string_view today);
// Replaces the lines of the partner's number; each keeps its own date of creation. The table grows by a blank line.
// False if nothing was written; a table without such a line is rewritten as it was.
bool ReplacePartner(RecordStore& store, const PartnerKind& kind, const Partner& partner);
// Drops the lines of the number and all blank lines; the text that the table holds afterwards.
std::string RemovePartner(RecordStore& store, const PartnerKind& kind, std::string_view number);

// The lines that hold `searchText` anywhere, upper and lower case alike, in the order of the table. An empty search
// text finds every line. The views live as long as `tableText`.
[[nodiscard]] std::vector<PartnerHit> FindPartners(std::string_view tableText, std::string_view searchText);

}  // namespace kontorwerk
