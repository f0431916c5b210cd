// A field of another screen that waits for a supplier's name, and for which the supplier search was opened.
#pragma once

#include <functional>
#include <string_view>

namespace kontorwerk {

struct SupplierTarget {
  // Puts the chosen name into the field and forgets that it waited.
  std::function<void(std::string_view supplierName)> take;
  // False once the field's screen no longer waits, because it was closed meanwhile. Without it the field always waits.
  std::function<bool()> waits = nullptr;

  [[nodiscard]] bool Waits() const { return take && (!waits || waits()); }
};

}  // namespace kontorwerk
