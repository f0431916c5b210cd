// The register of drafts: keys, lines, the removal of a draft. A line of the register is `<key>=vom <Datum> <KDName>,
// <PLZ> <Wohnort>` without apostrophes. What a draft's own file holds is told in DraftFile.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/RecordStore.h"
#include "store/Text.h"

namespace kontorwerk {

inline constexpr int kDraftKeyLength = 11;  // "EF0150/2007"

// "AB" where the selector stands on the quotation, else "EF", and the number.
[[nodiscard]] std::string DraftKey(int selectorPlace, std::string_view number);
// "EF0150-2007.tmp": name of the draft's own file in the data folder.
[[nodiscard]] std::string DraftFileName(std::string_view key);
// The key of a register line or list entry: its first eleven characters.
[[nodiscard]] std::string_view DraftKeyOf(std::string_view registerLine);
[[nodiscard]] std::string DraftRegisterLine(std::string_view key, std::string_view datum, std::string_view KDName,
                                            std::string_view PLZ, std::string_view Wohnort);

// The lines whose first eleven characters are the key, in order. The views live as long as `registerText`.
[[nodiscard]] std::vector<std::string_view> DraftLinesOf(std::string_view registerText, std::string_view key);
// One more than the highest number of the drafts with this prefix ("EF" or "AB"), four digits at least, with the year
// of the date text.
[[nodiscard]] std::string NumberBehindHighestDraft(std::string_view registerText, std::string_view prefix,
                                                   std::string_view datum);
// The line in the place of the key's old one, blank lines left out; behind the others if no line begins with the key.
bool PutDraftLine(RecordStore& store, std::string_view key, std::string_view line);

// Question after printing, titled "Entwurf löschen?": the draft of this register line has the printed number.
[[nodiscard]] std::string LeftoverDraftQuestion(std::string_view registerLine);
inline constexpr std::string_view kDeleteDraftTitle = "Entwurf löschen?"_t;

// Removes the draft: its register line (the one whose first word is the key, "=" being a blank), its file, and for a
// quotation the line that holds its number. Steps that fail are passed over. The number of drafts left.
int DeleteDraft(RecordStore& store, std::string_view key);

}  // namespace kontorwerk
