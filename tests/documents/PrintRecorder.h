// A word processor that writes down every step and fails on demand, and a document to print with it.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "documents/PrintFields.h"
#include "platform/WordXChange.h"
#include "store/Text.h"

namespace kontorwerk::testing_support {

class PrintRecorder final : public WordXChange {
 public:
  // All steps but the setting of fields, as "SaveDocument C:\Belege\RG....doc".
  std::vector<std::string> steps;
  // The fields of each document that was opened, by name; behind "2:" and "3:" those of the other two areas.
  std::vector<std::map<std::string, std::string>> documents;
  std::vector<std::string> fieldOrder;  // of the last document, body only
  // Steps for which this holds give false.
  std::function<bool(std::string_view step)> fails = [](std::string_view) { return false; };
  std::string reason;

  bool OpenTemplate(std::string_view path) override {
    documents.emplace_back();
    fieldOrder.clear();
    return Note(Concat("OpenTemplate ", path));
  }
  void CloseDocument() override { Note("CloseDocument"); }
  void SetField(std::string_view name, std::string_view text) override {
    Set("", name, text);
    fieldOrder.emplace_back(name);
  }
  void SetFieldArea2(std::string_view name, std::string_view text) override { Set("2:", name, text); }
  void SetFieldArea3(std::string_view name, std::string_view text) override { Set("3:", name, text); }
  bool SaveDocument(std::string_view path) override { return Note(Concat("SaveDocument ", path)); }
  bool PrintDocument(std::string_view printer, int copies, std::string_view title) override {
    return Note(Concat("PrintDocument ", printer, " x", std::to_string(copies), " ", title));
  }
  void Reset() override { Note("Reset"); }
  bool ShowDocument() override { return Note("ShowDocument"); }
  std::string ErrorText() const override { return reason; }

  // Nothing for a field that was never set.
  [[nodiscard]] std::string Field(std::size_t document, const std::string& name) const {
    const auto found = documents.at(document).find(name);
    return found == documents.at(document).end() ? "(not set)" : found->second;
  }

 private:
  bool Note(const std::string& step) {
    steps.push_back(step);
    return !fails(step);
  }
  void Set(std::string_view area, std::string_view name, std::string_view text) {
    if (!documents.empty()) documents.back()[Concat(area, name)] = text;
  }
};

// An invoice to Max Mustermann with so many filled rows of 1,50 each in a grid of whole pages.
inline PaperDocument InvoiceOf(int filledRows) {
  PaperDocument paper;
  paper.kind = DocumentKind::Invoice;
  paper.record.number = "0150/2007";
  paper.record.Datum = "29.06.2007";
  paper.record.KDNr = "10023";
  paper.record.KDName = "Max Mustermann";
  paper.record.Anrede = "Herr";
  paper.record.Gesamt = "100,00";
  paper.record.MWST = "19,00";
  paper.record.MWST2 = "0,00";
  paper.record.Betrag = "119,00";
  paper.record.Zahlungsweise = "sofort";
  paper.record.rows.resize(static_cast<std::size_t>(RowsOfWholePages(filledRows)));
  for (int i = 0; i < filledRows; ++i)
    paper.record.rows[static_cast<std::size_t>(i)] = {"",     "",     "1",  "Ware " + std::to_string(i + 1),
                                                      "1,50", "1,50", false};
  paper.storedRows = filledRows;
  paper.rateLabel1 = "19%";
  paper.rateLabel2 = "7%";
  return paper;
}

}  // namespace kontorwerk::testing_support
