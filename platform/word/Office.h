// LibreOffice as a tool without windows: sets documents as PDF and fills templates that are not rich text.
// Each job is one process with a copy of a prepared profile of its own, so that jobs of several programs at once, and
// the user's own LibreOffice, do not meet. A job that takes too long is killed. Nothing is left behind.
#pragma once

#include "platform/word/TemplateFiller.h"

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

struct OfficeSetup {
  std::string cacheFolder = {};            // of this user, UTF-8; the profile and the jobs' folders are made in it
  std::string program = {};                // the path of soffice; empty: from PATH and the usual places
  std::chrono::milliseconds limit{30000};  // for a whole job
};

class Office final : public TemplateFiller, public DocumentRenderer {
 public:
  explicit Office(OfficeSetup setup);

  [[nodiscard]] bool IsInstalled() const;
  // Fills a Word or OpenDocument template; gives it in Word's binary format, and as PDF.
  [[nodiscard]] FilledDocument Fill(std::string_view templateBytes, const FieldValues& values) override;
  [[nodiscard]] RenderedDocument Render(std::string_view document) override;
  // Opens a file (UTF-8 path) in a window for editing, a template as itself and not as a new document.
  // False if LibreOffice is not installed.
  [[nodiscard]] bool Edit(const std::string& path) const;

 private:
  struct Programs {
    std::string wrapper;  // soffice
    std::string binary;   // soffice.bin beside it, or again the wrapper
  };
  using Deadline = std::chrono::steady_clock::time_point;

  [[nodiscard]] Programs FindPrograms() const;
  [[nodiscard]] std::string PrepareProfile(const Programs& programs, const std::string& target,
                                           Deadline deadline) const;
  [[nodiscard]] std::string SeedProfile(const Programs& programs, const std::string& folder, Deadline deadline) const;
  [[nodiscard]] std::string RunJob(const std::string& jobFolder, const std::vector<std::string>& arguments) const;

  OfficeSetup setup_;
};

}  // namespace kontorwerk
