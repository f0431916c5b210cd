// What the program asks of its surroundings beside screens: boxes and dialogs, clock, waiting, printing, mail, sound.
// Texts and paths are Windows-1252, paths in the program's form. Every call that opens a dialog returns its answer.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Colour.h"
#include "platform/WordXChange.h"
#include "store/Dates.h"

namespace kontorwerk {

inline constexpr std::string_view kProgramName = "Kontorwerk";

enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Yes, No, Cancel };

struct PrinterChoice {
  std::string printer;
  int copies = 1;
};

struct FileDialog {
  std::string title;
  std::string filter;  // "Verzeichnis|*.~~~"
  std::string folder;
  std::string name;
  bool save = false;
  bool multiple = false;
};

struct Mail {
  std::vector<std::string> to;
  std::vector<std::string> bcc;
  std::string subject;
  std::string text;
  std::vector<std::string> attachments;
};

class Platform {
 public:
  virtual ~Platform() = default;

  // A modal box. An empty title becomes the program's name.
  virtual Answer Box(std::string_view text, std::string_view title, Buttons buttons) = 0;
  // A box with OK alone.
  void Tell(std::string_view text, std::string_view title = {}) { Box(text, title, Buttons::Ok); }
  // True for Ja.
  [[nodiscard]] bool Ask(std::string_view text, std::string_view title) {
    return Box(text, title, Buttons::YesNo) == Answer::Yes;
  }

  // Dialogs; nothing (or no file) if the user has cancelled.
  virtual std::optional<PrinterChoice> ChoosePrinter(std::string_view title) = 0;
  virtual std::vector<std::string> ChooseFiles(const FileDialog& dialog) = 0;
  // The chosen folder, as the dialog gives it: the caller adds a closing backslash where it needs one.
  virtual std::optional<std::string> ChooseFolder(const FileDialog& dialog) = 0;
  virtual std::optional<Colour> ChooseColour(Colour current) = 0;

  [[nodiscard]] virtual DateTime Now() = 0;
  [[nodiscard]] Date Today() { return Now().date; }
  // dd.mm.yyyy
  [[nodiscard]] std::string TodayText() { return DateText(Today()); }
  // Uniform in [0, 1).
  virtual double Random() = 0;

  // Lets the user go on until the condition holds. False if the program ends before: the caller then returns at once.
  virtual bool WaitUntil(const std::function<bool()>& condition) = 0;
  // Lets waiting events run.
  virtual void Yield() = 0;
  // Ends the program once the running handler is through.
  virtual void Quit() = 0;

  // A document, an address or a program handed to the surroundings. Addresses are opened only with the schemes
  // http, https and mailto; nothing ever reaches a shell.
  virtual void Open(std::string_view target) = 0;
  // A wave file, by its path; a missing file is silent.
  virtual void PlaySound(std::string_view path) = 0;
  virtual void SetClipboard(std::string_view text) = 0;
  // Opens the mail program's window with the message; false if there is none.
  virtual bool SendMail(const Mail& mail) = 0;
  [[nodiscard]] virtual WordXChange& WordProcessor() = 0;

  // The program's own folder in the program's form, with a closing backslash.
  [[nodiscard]] virtual std::string ProgramFolder() const = 0;
};

}  // namespace kontorwerk
