// The fields of a record line, split once; empty outside the line. For readers that need many columns of one line.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/RecordLine.h"

namespace kontorwerk {

// The line must outlive the object.
class LineFields {
 public:
  explicit LineFields(std::string_view line) : fields_(RecordFields(line)) {}

  // Counted from 1, as RecordField counts.
  [[nodiscard]] std::string operator[](int index) const {
    return index >= 1 && index <= Count() ? std::string(fields_[static_cast<std::size_t>(index) - 1]) : std::string();
  }
  [[nodiscard]] int Count() const { return static_cast<int>(fields_.size()); }

 private:
  std::vector<std::string_view> fields_;
};

}  // namespace kontorwerk
