// What the tests of this folder share: the shipped templates, tools of the system, and programs that behave badly.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/word/Processes.h"
#include "store/FileSystem.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::testing_support {

inline std::filesystem::path TemplatesFolder() {
  return std::filesystem::path(__FILE__).parent_path().parent_path().parent_path() / "resources" / "templates";
}

// The bytes of a shipped template by its UTF-8 name.
inline std::string Template(const std::string& name) {
  return ReadWholeFile((TemplatesFolder() / name).string()).value_or("");
}

// The pages of a PDF file as text in UTF-8, in the order in which they are written.
inline std::string TextOfPdf(const std::string& path) {
  ProcessCall call;
  call.arguments = {FindProgram("pdftotext"), "-raw", "-enc", "UTF-8", path, "-"};
  return RunProcess(call).output;
}

inline int PagesOfPdf(const std::string& path) {
  ProcessCall call;
  call.arguments = {FindProgram("pdfinfo"), path};
  const std::string output = RunProcess(call).output;
  const std::size_t found = output.find("Pages:");
  return found == std::string::npos ? -1 : std::stoi(output.substr(found + 6));
}

// A shell script in `folder` that can be run.
inline std::string Script(const TestFolder& folder, const std::string& name, std::string_view body) {
  folder.Put(name, "#!/bin/sh\n" + std::string(body) + "\n");
  std::filesystem::permissions(folder.Path() / name, std::filesystem::perms::owner_all);
  return (folder.Path() / name).string();
}

}  // namespace kontorwerk::testing_support

// Ends the test as skipped where a program is not installed.
#define NEEDS_PROGRAM(name) \
  if (kontorwerk::FindProgram(name, {"/usr/sbin"}).empty()) GTEST_SKIP() << name << " is not installed"
