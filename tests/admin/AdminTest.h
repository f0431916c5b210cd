// The settings dialog over a program folder of its own, with a control centre that reads the settings as the real one
// does.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>

#include "admin/AdminScreens.h"
#include "platform/headless/OperatorPlatform.h"
#include "store/Text.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk::test {

class ReadingCentre final : public ControlCentre {
 public:
  explicit ReadingCentre(Context& context) : context_(context) {}
  void ReadConfig() override {
    ++reads;
    ReadConfigText(context_.files.Read(Concat(context_.platform.ProgramFolder(), "config.txt")).text,
                   context_.settings);
  }
  void CountStockItems() override {}
  void OpenDocumentReminder() override {}
  void RefreshAppointments() override {}

  int reads = 0;

 private:
  Context& context_;
};

class AdminTest : public ::testing::Test {
 protected:
  AdminTest() {
    desktop.AddObserver(platform);
    platform.onFault = [](std::string_view message) { ADD_FAILURE() << message; };
  }
  ~AdminTest() override { EXPECT_FALSE(platform.AnswersLeft()); }

  void PutConfig(std::string_view text) {
    folder.Put("config.txt", text);
    centre.ReadConfig();
    centre.reads = 0;
  }
  [[nodiscard]] std::string Config() const { return folder.Content("config.txt").value_or("(missing)"); }
  [[nodiscard]] bool ConfigHas(std::string_view line) const { return InStr(Config(), Concat(line, "\r\n")) > 0; }
  [[nodiscard]] Einstellungen& Dialog() { return screens.einstellungen; }
  [[nodiscard]] Verzeichniswahl& Chooser() { return screens.verzeichniswahl; }
  void AnswerFolder(std::string path) {
    platform.PushAnswer({.kind = QueuedAnswer::Kind::Folder, .paths = {std::move(path)}});
  }

  testing_support::TestFolder folder;
  std::unique_ptr<Disk> disk = MakeSystemDisk();
  FileSystemObject files{*disk};
  Settings settings;
  RecordStore store{files, settings};
  std::ostringstream record;
  EventLog log{record};
  Desktop desktop;
  OperatorPlatform platform{log, folder.Path().string(), nullptr};
  Context context{desktop, platform, files, store, settings};
  ReadingCentre centre{context};
  AdminScreens screens{context, centre};
};

}  // namespace kontorwerk::test
