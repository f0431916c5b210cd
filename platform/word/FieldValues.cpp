// The collected values of a document, one map an area.
#include "platform/word/FieldValues.h"

#include "store/Text.h"

#include <algorithm>

namespace kontorwerk {

std::string FieldValues::KeyOf(std::string_view name) { return LCase(name); }

void FieldValues::Set(TextArea area, std::string_view name, std::string_view text) {
  values_[static_cast<std::size_t>(area)].insert_or_assign(KeyOf(name), std::string(text));
}

void FieldValues::SetEverywhere(std::string_view name, std::string_view text) {
  for (const TextArea area : {TextArea::Body, TextArea::Header, TextArea::Footer}) Set(area, name, text);
}

const std::string* FieldValues::Find(TextArea area, const std::string& key) const {
  const auto& values = Of(area);
  const auto found = values.find(key);
  return found == values.end() ? nullptr : &found->second;
}

const std::map<std::string, std::string>& FieldValues::Of(TextArea area) const {
  return values_[static_cast<std::size_t>(area)];
}

bool FieldValues::Empty() const {
  return std::all_of(values_.begin(), values_.end(), [](const auto& values) { return values.empty(); });
}

}  // namespace kontorwerk
