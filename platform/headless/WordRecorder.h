// Writes every call of the word processor into the operator's record and hands it on. Paper goes into the record alone,
// unless the run was told to print or to keep the papers.
#pragma once

#include <string>
#include <string_view>

#include "platform/WordXChange.h"
#include "platform/headless/EventLog.h"

namespace kontorwerk {

enum class PaperRoute { Record, Print };

class WordRecorder final : public WordXChange {
 public:
  // `inner` does the work; both must outlive the recorder.
  WordRecorder(EventLog& log, WordXChange& inner, PaperRoute route) : log_(log), inner_(inner), route_(route) {}

  bool OpenTemplate(std::string_view path) override;
  void CloseDocument() override;
  void SetField(std::string_view name, std::string_view text) override;
  void SetFieldArea2(std::string_view name, std::string_view text) override;
  void SetFieldArea3(std::string_view name, std::string_view text) override;
  bool SaveDocument(std::string_view path) override;
  bool PrintDocument(std::string_view printer, int copies, std::string_view title) override;
  void Reset() override;
  bool ShowDocument() override;
  std::string ErrorText() const override { return inner_.ErrorText(); }

 private:
  EventLog& log_;
  WordXChange& inner_;
  PaperRoute route_;
  bool open_ = false;
};

}  // namespace kontorwerk
