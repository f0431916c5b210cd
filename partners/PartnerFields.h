// The boxes of a partner as they stand on a screen: one for each column of his line, under the kind's names.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

#include "partners/PartnerKind.h"
#include "partners/PartnerReceiver.h"
#include "partners/PartnerTable.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class PartnerFields {
 public:
  PartnerFields(Screen& owner, const PartnerKind& kind);

  [[nodiscard]] TextBox& Box(int column) { return boxes_[static_cast<std::size_t>(column - 1)]; }
  [[nodiscard]] const TextBox& Box(int column) const { return boxes_[static_cast<std::size_t>(column - 1)]; }
  [[nodiscard]] const std::string& Text(int column) const { return Box(column).Text(); }
  [[nodiscard]] std::deque<TextBox>& Boxes() { return boxes_; }

  // All boxes as a partner without a date of creation.
  [[nodiscard]] Partner Read() const;
  void Fill(const Partner& partner);
  void Clear();
  // All boxes but the name's, which is the search box while the others are hidden.
  void SetRecordVisible(bool visible);

  [[nodiscard]] PartnerAddress Address() const;
  // True if one of the five contact persons has a name.
  [[nodiscard]] bool HasContact() const;

 private:
  std::deque<TextBox> boxes_;
};

}  // namespace kontorwerk
