// The real surroundings: dialogs over the windows, the clock of the machine, the event loop, sound, mail and whatever
// else the desktop offers.
#pragma once

#include <QString>
#include <memory>
#include <random>

#include "platform/Platform.h"

class QSoundEffect;
class QWidget;

namespace kontorwerk {

class FileSystemObject;
class QtDesktop;

class QtPlatform final : public Platform {
 public:
  // `programFolder` is a path in the program's form with its closing backslash. All that is referred to must outlive
  // the object.
  QtPlatform(QtDesktop& windows, const FileSystemObject& files, std::string programFolder);
  ~QtPlatform() override;

  // The word processor comes later, since it opens its documents here. Must outlive the object.
  void SetWordProcessor(WordXChange& word) { word_ = &word; }
  // Hands a file to the program that the desktop has for it; false if that cannot be started.
  bool OpenFile(std::string_view path);

  Answer Box(std::string_view text, std::string_view title, Buttons buttons) override;
  std::optional<PrinterChoice> ChoosePrinter(std::string_view title) override;
  std::vector<std::string> ChooseFiles(const FileDialog& dialog) override;
  std::optional<std::string> ChooseFolder(const FileDialog& dialog) override;
  std::optional<Colour> ChooseColour(Colour current) override;
  DateTime Now() override;
  double Random() override;
  bool WaitUntil(const std::function<bool()>& condition) override;
  void Yield() override;
  void Quit() override;
  void Open(std::string_view target) override;
  void PlaySound(std::string_view path) override;
  void SetClipboard(std::string_view text) override;
  bool SendMail(const Mail& mail) override;
  WordXChange& WordProcessor() override { return *word_; }
  std::string ProgramFolder() const override { return programFolder_; }

 private:
  [[nodiscard]] QWidget* Parent() const;
  [[nodiscard]] QString MachinePath(std::string_view path) const;

  QtDesktop& windows_;
  const FileSystemObject& files_;
  std::string programFolder_;
  WordXChange* word_ = nullptr;
  std::unique_ptr<QSoundEffect> sound_;
  std::mt19937_64 random_;
  std::string lastPrinter_;
  bool quitting_ = false;
};

}  // namespace kontorwerk
