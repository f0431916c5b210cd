// Where finished pages go: to a printer of the system (CUPS), or into a folder as a PDF file.
#pragma once

#include "store/FileSystem.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

struct PrintJob {
  std::string_view pdf;      // the pages
  std::string_view printer;  // empty: the system's own printer
  int copies = 1;
  std::string_view title;
};

class PrintSink {
 public:
  virtual ~PrintSink() = default;
  // Hands the job over; gives why that failed, in German for the user, empty on success.
  [[nodiscard]] virtual std::string Print(const PrintJob& job) = 0;
};

struct CupsSetup {
  std::string workFolder = {};             // of this user, UTF-8
  std::string printProgram = "lp";         // by name or path
  std::chrono::milliseconds limit{30000};  // for handing a job over
};

// Prints through CUPS. A job that has been taken is printed by the system, also if the printer is busy or off.
class CupsSink final : public PrintSink {
 public:
  explicit CupsSink(CupsSetup setup);
  [[nodiscard]] std::string Print(const PrintJob& job) override;

 private:
  CupsSetup setup_;
};

// The names of the system's printers in Windows-1252, in the system's order; empty if there are none or no CUPS.
[[nodiscard]] std::vector<std::string> PrinterNames();

// Writes the pages as one PDF file; printer and copies mean nothing here.
class PdfFileSink final : public PrintSink {
 public:
  // The file: `folder` (with its closing backslash), the title with an underscore for each character that no file name
  // may hold, ".pdf". With `keepOthers` a file of that name stays and a number is put behind the new one's.
  PdfFileSink(const FileSystemObject& files, std::string folder, bool keepOthers);
  [[nodiscard]] std::string Print(const PrintJob& job) override;
  // The path of the file last written.
  [[nodiscard]] const std::string& LastPath() const { return lastPath_; }

 private:
  const FileSystemObject& files_;
  std::string folder_;
  bool keepOthers_;
  std::string lastPath_;
};

}  // namespace kontorwerk
