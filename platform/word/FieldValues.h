// The values collected for one document, by area of the page and name of the field. Names are compared without
// regard to upper and lower case.
#pragma once

#include <array>
#include <map>
#include <string>
#include <string_view>

namespace kontorwerk {

enum class TextArea { Body, Header, Footer };
inline constexpr int kTextAreaCount = 3;

class FieldValues {
 public:
  // The form under which a name is kept and looked up.
  [[nodiscard]] static std::string KeyOf(std::string_view name);

  // A later value of the same name takes the place of the earlier one.
  void Set(TextArea area, std::string_view name, std::string_view text);
  // The same value in all three areas, for forms that know no areas.
  void SetEverywhere(std::string_view name, std::string_view text);
  // The value by KeyOf(name), or nullptr if it was never set; valid until the next change.
  [[nodiscard]] const std::string* Find(TextArea area, const std::string& key) const;
  [[nodiscard]] const std::map<std::string, std::string>& Of(TextArea area) const;
  [[nodiscard]] bool Empty() const;

 private:
  std::array<std::map<std::string, std::string>, kTextAreaCount> values_;
};

}  // namespace kontorwerk
