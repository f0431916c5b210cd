// What customers and suppliers share and where they differ: the columns of a partner's line, and for each kind its
// table, first number, boxes and words. Every operation and screen of the partners works from this description.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

// Columns of a partner's line, counted from 1. The date of creation stands behind a kind's last box and ends the line.
namespace partner {
inline constexpr int kNumber = 1;
inline constexpr int kName = 2;
inline constexpr int kStraße = 3;
inline constexpr int kPLZ = 4;
inline constexpr int kWohnort = 5;
inline constexpr int kVorwahl1 = 6;
inline constexpr int kTel = 7;
inline constexpr int kVorwahl2 = 8;
inline constexpr int kFax = 9;
inline constexpr int kVorwahl3 = 10;
inline constexpr int kMobil = 11;
inline constexpr int kEmail = 12;
inline constexpr int kHomepage = 13;
inline constexpr int kFirstContact = 14;  // five slots of name, direct line and e-mail
inline constexpr int kFreitext = 29;
inline constexpr int kAnrede = 30;
inline constexpr int kBank = 31;  // this one and the following: suppliers only
inline constexpr int kKTO = 32;
inline constexpr int kBLZ = 33;
inline constexpr int kZZiel = 34;
inline constexpr int kUKDNr = 35;
inline constexpr int kZugName = 36;
inline constexpr int kZugPW = 37;

inline constexpr int kContactSlots = 5;
inline constexpr int kColumnsOfASlot = 3;

// Columns of a contact person, slots counted from 1.
[[nodiscard]] constexpr int ContactName(int slot) { return kFirstContact + (slot - 1) * kColumnsOfASlot; }
[[nodiscard]] constexpr int ContactDirectLine(int slot) { return ContactName(slot) + 1; }
[[nodiscard]] constexpr int ContactEmail(int slot) { return ContactName(slot) + 2; }
}  // namespace partner

struct PartnerKind {
  std::string_view table;
  long firstNumber;
  std::string_view editScreen;
  std::string_view searchScreen;
  // Names of the boxes of columns 1, 2, 3 ..., the date of creation left out.
  std::vector<std::string_view> boxes;

  std::string_view numberCaption;     // header of the number column
  std::string_view nextNumberPrompt;  // in the number box after "save and begin the next one"
  std::string_view numberWord;        // in front of the number in messages
  std::string_view changesOf;
  std::string_view leaveQuestion;
  std::string_view alreadyOpen;
  std::string_view addressCaption;
  std::string_view createdOn;
  std::string_view deleteSubject;
  std::string_view deleteNumberWord;
  std::string_view deleteTitle;
  std::string_view deleted;

  [[nodiscard]] int BoxCount() const { return static_cast<int>(boxes.size()); }
  [[nodiscard]] int DateColumn() const { return BoxCount() + 1; }
  [[nodiscard]] std::string_view BoxName(int column) const { return boxes[static_cast<std::size_t>(column - 1)]; }

  [[nodiscard]] std::string SavedMessage(std::string_view name, std::string_view number) const;
  [[nodiscard]] std::string ChangesSavedMessage(std::string_view name, std::string_view number) const;
  [[nodiscard]] std::string DeleteQuestion(std::string_view name, std::string_view number) const;
};

[[nodiscard]] const PartnerKind& CustomerKind();
[[nodiscard]] const PartnerKind& SupplierKind();

}  // namespace kontorwerk
