#include "platform/headless/OperatorPlatform.h"

#include <algorithm>
#include <chrono>
#include <ctime>
#include <random>
#include <utility>

#include "platform/ChoiceControls.h"
#include "platform/Screen.h"
#include "platform/Timer.h"
#include "platform/headless/NoWordProcessor.h"
#include "store/CodePage.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr std::int64_t kDayMs = 86'400'000;

// The local wall clock in milliseconds since 01.01.1970 00:00 local time.
std::int64_t WallClockMs() {
  const auto now = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(now);
  std::tm local{};
  localtime_r(&seconds, &local);
  const std::int64_t days = DayNumber({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday});
  return days * kDayMs + (local.tm_hour * 3600LL + local.tm_min * 60LL + local.tm_sec) * 1000;
}

std::vector<Answer> AllowedAnswers(Buttons buttons) {
  switch (buttons) {
    case Buttons::Ok:
      return {Answer::Ok};
    case Buttons::OkCancel:
      return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo:
      return {Answer::Yes, Answer::No};
    case Buttons::YesNoCancel:
      break;
  }
  return {Answer::Yes, Answer::No, Answer::Cancel};
}

std::string_view ButtonText(Answer answer) {
  switch (answer) {
    case Answer::Ok:
      return "OK";
    case Answer::Yes:
      return "Ja";
    case Answer::No:
      return "Nein";
    case Answer::Cancel:
      break;
  }
  return "Abbrechen";
}

std::string_view ScreenEventName(ScreenEvent event) {
  switch (event) {
    case ScreenEvent::Shown:
      return "show";
    case ScreenEvent::Hidden:
      return "hide";
    case ScreenEvent::Unloaded:
      return "unload";
    default:
      return {};
  }
}

std::string_view FileNameOf(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace

OperatorPlatform::OperatorPlatform(EventLog& log, std::string_view programFolder, WordXChange* word)
    : log_(log),
      programFolder_(FromUtf8(programFolder).value_or(std::string(programFolder))),
      word_(word),
      randomState_(std::random_device{}()) {
  while (programFolder_.ends_with('/')) programFolder_.pop_back();
  if (!programFolder_.ends_with('\\')) programFolder_ += '\\';
}

void OperatorPlatform::Fault(std::string_view message) {
  if (onFault) onFault(message);
}

std::optional<QueuedAnswer> OperatorPlatform::TakeAnswer(QueuedAnswer::Kind kind, std::string_view dialog) {
  if (answers_.empty()) {
    Fault(Concat("no answer is waiting for: ", dialog));
    return std::nullopt;
  }
  QueuedAnswer answer = std::move(answers_.front());
  answers_.pop_front();
  const bool cancelled = answer.kind == QueuedAnswer::Kind::Cancel && kind != QueuedAnswer::Kind::Button;
  if (cancelled) return std::nullopt;
  if (answer.kind == kind) return answer;
  Fault(Concat("the next answer is of the wrong kind for: ", dialog));
  return std::nullopt;
}

Answer OperatorPlatform::Box(std::string_view text, std::string_view title, Buttons buttons) {
  if (title.empty()) title = kProgramName;
  const std::vector<Answer> allowed = AllowedAnswers(buttons);
  ++boxCount_;
  lastBoxText_ = text;
  lastBoxTitle_ = title;
  Answer answer = allowed.back();
  if (buttons != Buttons::Ok) {
    const auto queued = TakeAnswer(QueuedAnswer::Kind::Button, text);
    if (queued && std::find(allowed.begin(), allowed.end(), queued->button) == allowed.end())
      Fault(Concat("the next answer is no button of: ", text));
    else if (queued)
      answer = queued->button;
  }
  std::vector<std::string> captions;
  for (const Answer button : allowed) captions.emplace_back(ButtonText(button));
  log_.Emit("box", {{"title", title}, {"text", text}, {"buttons", captions}, {"answer", ButtonText(answer)}});
  return answer;
}

void OperatorPlatform::EmitDialog(std::string_view kind, const FileDialog& dialog, const JsonValue& answer) {
  log_.Emit("dialog", {{"kind", kind},
                       {"title", dialog.title},
                       {"filter", dialog.filter},
                       {"folder", dialog.folder},
                       {"name", dialog.name},
                       {"answer", answer}});
}

std::optional<PrinterChoice> OperatorPlatform::ChoosePrinter(std::string_view title) {
  const auto answer = TakeAnswer(QueuedAnswer::Kind::Printer, "printer");
  const FileDialog dialog{.title = std::string(title)};
  EmitDialog("printer", dialog, answer ? JsonValue(answer->printer.printer) : JsonValue("cancel"));
  if (!answer) return std::nullopt;
  return answer->printer;
}

std::vector<std::string> OperatorPlatform::ChooseFiles(const FileDialog& dialog) {
  const auto answer = TakeAnswer(QueuedAnswer::Kind::Files, "file");
  EmitDialog("file", dialog, answer ? JsonValue(answer->paths) : JsonValue("cancel"));
  return answer ? answer->paths : std::vector<std::string>();
}

std::optional<std::string> OperatorPlatform::ChooseFolder(const FileDialog& dialog) {
  const auto answer = TakeAnswer(QueuedAnswer::Kind::Folder, "folder");
  EmitDialog("folder", dialog, answer ? JsonValue(answer->paths.front()) : JsonValue("cancel"));
  if (!answer) return std::nullopt;
  return answer->paths.front();
}

std::optional<Colour> OperatorPlatform::ChooseColour(Colour current) {
  (void)current;
  const auto answer = TakeAnswer(QueuedAnswer::Kind::Colour, "colour");
  EmitDialog("colour", {}, answer ? JsonValue(answer->colour) : JsonValue("cancel"));
  if (!answer) return std::nullopt;
  return Colour{answer->colour};
}

std::int64_t OperatorPlatform::NowMs() const { return fixedMs_ ? *fixedMs_ : WallClockMs() + elapsedMs_; }

void OperatorPlatform::SetNow(const DateTime& now) {
  fixedMs_ = DayNumber(now.date) * kDayMs + (now.time.hour * 3600LL + now.time.minute * 60LL + now.time.second) * 1000;
}

DateTime OperatorPlatform::Now() {
  const std::int64_t now = NowMs();
  std::int64_t days = now / kDayMs;
  if (now % kDayMs < 0) --days;
  const auto second = static_cast<int>((now - days * kDayMs) / 1000);
  return {DateOfDayNumber(static_cast<long>(days)), {second / 3600, second / 60 % 60, second % 60}};
}

void OperatorPlatform::Advance(std::int64_t milliseconds) {
  const std::int64_t end = elapsedMs_ + milliseconds;
  const auto moveTo = [this](std::int64_t time) {
    if (fixedMs_) *fixedMs_ += time - elapsedMs_;
    elapsedMs_ = time;
  };
  while (!quit_) {
    Timer* next = nullptr;
    for (Timer* timer : timerOrder_)
      if (dueMs_[timer] <= end && (!next || dueMs_[timer] < dueMs_[next])) next = timer;
    if (!next) break;
    moveTo(std::max(elapsedMs_, dueMs_[next]));
    dueMs_[next] = elapsedMs_ + std::max(1, next->IntervalMs());
    next->Fire();
  }
  if (elapsedMs_ < end) moveTo(end);
}

void OperatorPlatform::SetRandom(std::vector<double> values) {
  random_ = std::move(values);
  nextRandom_ = 0;
}

double OperatorPlatform::Random() {
  if (!random_.empty()) return random_[nextRandom_++ % random_.size()];
  // xorshift; good enough for pauses and marks
  randomState_ ^= randomState_ << 13U;
  randomState_ ^= randomState_ >> 7U;
  randomState_ ^= randomState_ << 17U;
  return static_cast<double>(randomState_ >> 11U) / 9007199254740992.0;
}

bool OperatorPlatform::WaitUntil(const std::function<bool()>& condition) {
  while (!condition()) {
    if (quit_) return false;
    if (!onWaiting || !onWaiting()) {
      Fault("the script has ended inside a wait");
      return false;
    }
  }
  return !quit_;
}

void OperatorPlatform::Yield() {
  if (onYield) onYield();
}

void OperatorPlatform::Quit() {
  if (quit_) return;
  quit_ = true;
  log_.Emit("quit", {});
}

void OperatorPlatform::Open(std::string_view target) { log_.Emit("open", {{"target", target}}); }

void OperatorPlatform::PlaySound(std::string_view path) { log_.Emit("sound", {{"file", FileNameOf(path)}}); }

void OperatorPlatform::SetClipboard(std::string_view text) { log_.Emit("clipboard", {{"text", text}}); }

bool OperatorPlatform::SendMail(const Mail& mail) {
  log_.Emit("mail", {{"to", mail.to}, {"bcc", mail.bcc}, {"subject", mail.subject}});
  return true;
}

WordXChange& OperatorPlatform::WordProcessor() {
  static NoWordProcessor none;
  return word_ ? *word_ : none;
}

void OperatorPlatform::OnScreen(Screen& screen, ScreenEvent event) {
  if (const std::string_view name = ScreenEventName(event); !name.empty()) log_.Emit(name, {{"screen", screen.Name()}});
}

void OperatorPlatform::OnControl(const Control& control, Aspect aspect, int detail) {
  if (aspect == Aspect::Panel && detail > 0) {
    const auto& bar = static_cast<const StatusBar&>(control);
    log_.Emit("panel", {{"screen", control.Owner().Name()},
                        {"control", control.Name()},
                        {"panel", detail},
                        {"text", bar.Panel(detail)}});
  }
  if (aspect != Aspect::TimerState) return;
  auto* timer = const_cast<Timer*>(static_cast<const Timer*>(&control));
  std::erase(timerOrder_, timer);
  dueMs_.erase(timer);
  if (!timer->Running()) return;
  timerOrder_.push_back(timer);
  dueMs_[timer] = elapsedMs_ + std::max(1, timer->IntervalMs());
}

}  // namespace kontorwerk
