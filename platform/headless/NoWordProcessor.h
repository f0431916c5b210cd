// Stands where no word processor is there: every step fails and says so.
#pragma once

#include <string>
#include <string_view>

#include "platform/WordXChange.h"
#include "store/Text.h"

namespace kontorwerk {

class NoWordProcessor final : public WordXChange {
 public:
  bool OpenTemplate(std::string_view) override { return false; }
  void CloseDocument() override {}
  void SetField(std::string_view, std::string_view) override {}
  void SetFieldArea2(std::string_view, std::string_view) override {}
  void SetFieldArea3(std::string_view, std::string_view) override {}
  bool SaveDocument(std::string_view) override { return false; }
  bool PrintDocument(std::string_view, int, std::string_view) override { return false; }
  void Reset() override {}
  bool ShowDocument() override { return false; }
  std::string ErrorText() const override { return std::string("Es ist keine Textverarbeitung verfügbar."_t); }
};

}  // namespace kontorwerk
