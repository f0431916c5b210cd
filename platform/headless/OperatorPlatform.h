// The surroundings of a run by script: dialogs take their answers from a queue, the clock stands still until it is
// moved, timers fire as the clock passes them, and whatever would leave the program (paper, mail, sound, addresses)
// goes into the record.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "platform/headless/EventLog.h"

namespace kontorwerk {

class Timer;

// An answer of the script that waits for its dialog.
struct QueuedAnswer {
  enum class Kind { Button, Printer, Files, Folder, Colour, Cancel } kind = Kind::Button;
  Answer button = Answer::Ok;
  PrinterChoice printer;
  std::vector<std::string> paths;
  int colour = 0;
};

class OperatorPlatform final : public Platform, public DesktopObserver {
 public:
  // `programFolder` is a folder of the machine in UTF-8. `word` may be null: then no document can be opened.
  OperatorPlatform(EventLog& log, std::string_view programFolder, WordXChange* word);

  // The operator's side.
  void PushAnswer(QueuedAnswer answer) { answers_.push_back(std::move(answer)); }
  // Shorthands for the answers to a question.
  void Push(Answer button) { PushAnswer({.kind = QueuedAnswer::Kind::Button, .button = button}); }
  [[nodiscard]] bool AnswersLeft() const { return !answers_.empty(); }
  void SetNow(const DateTime& now);
  // Moves the clock on and fires each running timer as it falls due.
  void Advance(std::int64_t milliseconds);
  // The next random numbers, one after the other and from the first again.
  void SetRandom(std::vector<double> values);
  [[nodiscard]] int BoxCount() const { return boxCount_; }
  [[nodiscard]] const std::string& LastBoxText() const { return lastBoxText_; }
  [[nodiscard]] const std::string& LastBoxTitle() const { return lastBoxTitle_; }
  [[nodiscard]] bool HasQuit() const { return quit_; }
  // Runs one more step of the script inside a wait; false if there is none. Without it a wait that does not hold is a
  // fault.
  std::function<bool()> onWaiting;
  // What happens when a dialog finds no fitting answer. The dialog counts as cancelled if it returns.
  std::function<void(std::string_view message)> onFault;
  // Real events: sockets and processes of a wait.
  std::function<void()> onYield;

  // Platform
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
  WordXChange& WordProcessor() override;
  std::string ProgramFolder() const override { return programFolder_; }

  // DesktopObserver
  void OnScreen(Screen& screen, ScreenEvent event) override;
  void OnControl(const Control& control, Aspect aspect, int detail) override;
  void OnArray(Screen&, std::string_view, int) override {}

 private:
  std::optional<QueuedAnswer> TakeAnswer(QueuedAnswer::Kind kind, std::string_view dialog);
  void EmitDialog(std::string_view kind, const FileDialog& dialog, const JsonValue& answer);
  void Fault(std::string_view message);
  [[nodiscard]] std::int64_t NowMs() const;

  EventLog& log_;
  std::string programFolder_;
  WordXChange* word_;
  std::deque<QueuedAnswer> answers_;
  std::optional<std::int64_t> fixedMs_;  // the set clock, milliseconds since 1970 in local time
  std::int64_t elapsedMs_ = 0;           // all advances together; timers live on this scale
  std::map<Timer*, std::int64_t> dueMs_;
  std::vector<Timer*> timerOrder_;  // in the order of their start
  std::vector<double> random_;
  std::size_t nextRandom_ = 0;
  std::uint64_t randomState_;
  int boxCount_ = 0;
  std::string lastBoxText_;
  std::string lastBoxTitle_;
  bool quit_ = false;
};

}  // namespace kontorwerk
