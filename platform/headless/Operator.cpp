#include "platform/headless/Operator.h"

#include <charconv>
#include <cstdlib>
#include <utility>

#include "platform/ChoiceControls.h"
#include "platform/ListView.h"
#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/headless/Properties.h"
#include "store/Text.h"

namespace kontorwerk {

Operator::Operator(Desktop& desktop, OperatorPlatform& platform, const FileSystemObject& files, Driver& driver,
                   EventLog& log, Options options)
    : desktop_(desktop), platform_(platform), files_(files), driver_(driver), log_(log), options_(std::move(options)) {
  platform_.onFault = [this](std::string_view message) { Fault(message); };
  platform_.onWaiting = [this] {
    driver_.RunEvents();
    return RunNextStep();
  };
  platform_.onYield = [this] { driver_.RunEvents(); };
}

const std::map<std::string, Operator::Verb, std::less<>>& Operator::Verbs() {
  static const std::map<std::string, Verb, std::less<>> kVerbs = {
      {"now", &Operator::DoNow},
      {"advance", &Operator::DoAdvance},
      {"random", &Operator::DoRandom},
      {"start", &Operator::DoStart},
      {"show", &Operator::DoShow},
      {"close", &Operator::DoClose},
      {"click", &Operator::DoClick},
      {"dblclick", &Operator::DoDoubleClick},
      {"set", &Operator::DoSet},
      {"type", &Operator::DoType},
      {"choose", &Operator::DoChoose},
      {"tick", &Operator::DoTick},
      {"select", &Operator::DoSelect},
      {"sort", &Operator::DoSort},
      {"date", &Operator::DoDate},
      {"key", &Operator::DoKey},
      {"focus", &Operator::DoFocus},
      {"wheel", &Operator::DoWheel},
      {"answer", &Operator::DoAnswer},
      {"get", &Operator::DoGet},
      {"expect", &Operator::DoExpect},
      {"expect-box", &Operator::DoExpectBox},
      {"expect-title", &Operator::DoExpectTitle},
      {"expect-boxes", &Operator::DoExpectBoxes},
      {"expect-file", &Operator::DoExpectFile},
      {"expect-row", &Operator::DoExpectRow},
      {"expect-absent", &Operator::DoExpectAbsent},
      {"write", &Operator::DoWrite},
      {"wait", &Operator::DoWait},
      {"shot", &Operator::DoShot},
      {"end", &Operator::DoEnd},
  };
  return kVerbs;
}

void Operator::Run(std::string_view scriptUtf8) {
  auto parsed = ParseScript(scriptUtf8);
  if (const auto* fault = std::get_if<ScriptFault>(&parsed)) {
    log_.SetLine(fault->line);
    Fault(fault->message);
  }
  steps_ = std::move(std::get<std::vector<Step>>(parsed));
  while (RunNextStep()) {
  }
  Finish();
}

bool Operator::RunNextStep() {
  if (next_ >= steps_.size()) return false;
  const Step& step = steps_[next_++];
  const int outerLine = log_.Line();
  log_.SetLine(step.line);
  ++depth_;
  Execute(step);
  --depth_;
  // What the outer step does behind its wait is told as that step's.
  if (depth_ > 0) log_.SetLine(outerLine);
  return true;
}

void Operator::Execute(const Step& step) {
  const auto verb = Verbs().find(step.verb);
  if (verb == Verbs().end()) Fault(Concat("unknown verb: ", step.verb));
  const bool reads = step.verb.starts_with("expect") || step.verb == "get" || step.verb == "wait" || step.verb == "end";
  if (platform_.HasQuit() && !reads) Fault(Concat("the program has ended before: ", step.verb));
  (this->*verb->second)(step);
}

void Operator::Fault(std::string_view message) {
  log_.Emit("error", {{"text", message}});
  End(2);
}

void Operator::Finish() {
  if (platform_.AnswersLeft()) Fault("answers are left over at the end of the script");
  End(failed_ > 0 ? 1 : 0);
}

void Operator::End(int status) {
  log_.Plain(Concat(std::to_string(passed_), " passed, ", std::to_string(failed_), " failed"));
  if (onEnd) onEnd(status);
  std::abort();
}

const std::string& Operator::ArgumentAt(const Step& step, std::size_t index) {
  if (index >= step.arguments.size()) Fault(Concat("an argument is missing behind: ", step.verb));
  return step.arguments[index].text;
}

void Operator::NeedArguments(const Step& step, std::size_t least, std::size_t most) {
  if (step.arguments.size() < least || step.arguments.size() > most)
    Fault(Concat("wrong number of arguments behind: ", step.verb));
}

int Operator::NumberAt(const Step& step, std::size_t index) {
  const std::string& text = ArgumentAt(step, index);
  int number = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
  if (result.ec != std::errc() || result.ptr != text.data() + text.size()) Fault(Concat("no whole number: ", text));
  return number;
}

bool Operator::IsPosition(const Step& step, std::size_t index) {
  const std::string& text = ArgumentAt(step, index);
  return !step.arguments[index].quoted && text.find_first_not_of("-0123456789") == std::string::npos;
}

Screen& Operator::ScreenNamed(std::string_view name) {
  Screen* screen = desktop_.Find(name);
  if (!screen) Fault(Concat("unknown screen: ", name));
  return *screen;
}

Control* Operator::FindControl(std::string_view name) {
  const TargetName target = ParseTargetName(name);
  Screen* screen = desktop_.Find(target.screen);
  if (!screen || target.parts.empty()) return nullptr;
  const BracketedName part = ParseBracketedName(target.parts.front());
  int index = Control::kNoIndex;
  if (part.hasArgument) {
    const auto* end = part.argument.data() + part.argument.size();
    if (part.argument.empty() || std::from_chars(part.argument.data(), end, index).ptr != end || index < 0)
      return nullptr;
  }
  Control* control = screen->Find(part.name, index);
  return control && control->Kind() != ControlKind::Timer ? control : nullptr;
}

Control& Operator::ControlNamed(std::string_view name) {
  const TargetName target = ParseTargetName(name);
  ScreenNamed(target.screen);
  Control* control = FindControl(name);
  if (!control || target.parts.size() != 1) Fault(Concat("unknown control: ", name));
  return *control;
}

Control& Operator::UsableControl(const Step& step) {
  const std::string& name = ArgumentAt(step, 0);
  Control& control = ControlNamed(name);
  if (!control.Owner().Visible()) Fault(Concat("the screen is not visible: ", name));
  if (!control.Visible()) Fault(Concat("the control is not visible: ", name));
  if (!control.Usable()) Fault(Concat("the control is disabled: ", name));
  return control;
}

bool Operator::GoTo(const Screen& screen) {
  const Control* held = desktop_.Focus();
  if (!held || &held->Owner() == &screen) return true;
  Control* next = screen.FocusedControl();
  if (!next || !next->TakesFocus() || !next->Usable()) return true;
  driver_.MoveFocus(*next);
  return !desktop_.Focus() || &desktop_.Focus()->Owner() == &screen;
}

bool Operator::TakeFocus(Control& control) {
  if (!control.TakesFocus() && !GoTo(control.Owner())) return false;
  // A handler on the way may have disabled or hidden the control, or closed its screen.
  return driver_.MoveFocus(control) && control.Usable();
}

int Operator::EntryAt(const Step& step, std::size_t index, const Control& list, int firstPosition) {
  const std::optional<std::vector<std::string>> entries = EntriesOf(list);
  if (!entries) Fault("a control of another kind is needed here");
  const auto count = static_cast<int>(entries->size());
  const std::string& text = ArgumentAt(step, index);
  int entry = 0;
  if (IsPosition(step, index)) {
    entry = NumberAt(step, index) - firstPosition;
  } else {
    while (entry < count && (*entries)[static_cast<std::size_t>(entry)] != text) ++entry;
  }
  if (entry < 0 || entry >= count) Fault(Concat(firstPosition == 1 ? "unknown row: " : "unknown entry: ", text));
  return entry + firstPosition;
}

void Operator::ClickEntry(Control& list, int row) {
  if (list.Kind() == ControlKind::ListView) {
    driver_.Select(static_cast<ListView&>(list), row);
  } else {
    driver_.Choose(static_cast<ChoiceControl&>(list), row - 1);
  }
}

Operator::Value Operator::ReadValue(const Step& step) {
  const std::string& name = ArgumentAt(step, 0);
  const TargetName target = ParseTargetName(name);
  const Screen& screen = ScreenNamed(target.screen);
  if (const Control* control = FindControl(name)) {
    if (target.parts.size() > 2) Fault(Concat("unknown property: ", name));
    const std::string_view property =
        target.parts.size() == 2 ? std::string_view(target.parts[1]) : DefaultProperty(*control);
    const auto value = PropertyOf(*control, property);
    if (!value) Fault(Concat("unknown property: ", name));
    return {name, *value};
  }
  const auto value = target.parts.size() == 1 ? PropertyOf(screen, target.parts.front()) : std::nullopt;
  if (!value) Fault(Concat("unknown control: ", name));
  // With the program every window is gone, also one that a closing screen has opened on the way.
  if (platform_.HasQuit() && target.parts.front() == "visible") return {name, "false"};
  return {name, *value};
}

void Operator::Expect(std::string_view name, std::string_view value, std::string_view wanted, bool ok) {
  ++(ok ? passed_ : failed_);
  log_.Emit("expect", {{"name", name}, {"ok", ok}, {"value", value}, {"wanted", wanted}});
}

}  // namespace kontorwerk
