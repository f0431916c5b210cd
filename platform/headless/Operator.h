// Runs a script over the screens of the program: each step is checked as a person would meet it (seen, enabled,
// answered), carried out by the driver, and recorded. The first fault of the script itself ends the run.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Context.h"
#include "platform/headless/Driver.h"
#include "platform/headless/EventLog.h"
#include "platform/headless/OperatorPlatform.h"
#include "platform/headless/Script.h"

namespace kontorwerk {

class Operator {
 public:
  struct Options {
    std::string shotFolder;  // of the machine, UTF-8; empty: no pictures
  };

  Operator(Desktop& desktop, OperatorPlatform& platform, const FileSystemObject& files, Driver& driver, EventLog& log,
           Options options);

  // What the verb `start` does.
  std::function<void()> onStart;
  // Ends the process with the exit status of the run: 0 all expectations held, 1 some failed, 2 a fault of the script.
  // The operator calls it from the depth of a handler, so it must not return.
  std::function<void(int status)> onEnd;

  // Runs all steps and ends through onEnd.
  void Run(std::string_view scriptUtf8);

 private:
  using Verb = void (Operator::*)(const Step& step);
  [[nodiscard]] static const std::map<std::string, Verb, std::less<>>& Verbs();

  bool RunNextStep();
  void Execute(const Step& step);
  [[noreturn]] void Fault(std::string_view message);
  [[noreturn]] void Finish();
  [[noreturn]] void End(int status);

  // Finding what a step names; each is a fault if it is not there.
  const std::string& ArgumentAt(const Step& step, std::size_t index);
  void NeedArguments(const Step& step, std::size_t least, std::size_t most);
  int NumberAt(const Step& step, std::size_t index);
  // True for a place in a list, false for the text of an entry: whatever is quoted or no number.
  bool IsPosition(const Step& step, std::size_t index);
  Screen& ScreenNamed(std::string_view name);
  Control* FindControl(std::string_view name);
  Control& ControlNamed(std::string_view name);
  // The control, checked for use.
  Control& UsableControl(const Step& step);
  template <typename ControlType>
  ControlType& UsableAs(const Step& step) {
    auto* control = dynamic_cast<ControlType*>(&UsableControl(step));
    if (!control) Fault("a control of another kind is needed here");
    return *control;
  }
  // The row of a list or the entry of a box, counted from 1 with `firstPosition` 1, from 0 with 0; by its place or
  // text.
  int EntryAt(const Step& step, std::size_t index, const Control& list, int firstPosition);
  // Clicks the row of a list or chooses the entry of a box.
  void ClickEntry(Control& list, int row);
  // Moves the focus to the control; false if a handler wanted it elsewhere: the step then ends.
  bool TakeFocus(Control& control);
  // Goes to another screen without a control in mind, as a click on a label or a menu does: what had the focus is left.
  // False if a handler wanted to stay.
  bool GoTo(const Screen& screen);

  struct Value {
    std::string name;
    std::string text;
  };
  Value ReadValue(const Step& step);
  void Expect(std::string_view name, std::string_view value, std::string_view wanted, bool ok);
  void Expect(std::string_view name, std::string_view value, std::string_view wanted) {
    Expect(name, value, wanted, value == wanted);
  }

  void DoNow(const Step& step);
  void DoAdvance(const Step& step);
  void DoRandom(const Step& step);
  void DoStart(const Step& step);
  void DoShow(const Step& step);
  void DoClose(const Step& step);
  void DoClick(const Step& step);
  void DoDoubleClick(const Step& step);
  void DoSet(const Step& step);
  void DoType(const Step& step);
  void DoChoose(const Step& step);
  void DoTick(const Step& step);
  void DoSelect(const Step& step);
  void DoSort(const Step& step);
  void DoDate(const Step& step);
  void DoKey(const Step& step);
  void DoFocus(const Step& step);
  void DoWheel(const Step& step);
  void DoAnswer(const Step& step);
  void DoGet(const Step& step);
  void DoExpect(const Step& step);
  void DoExpectBox(const Step& step);
  void DoExpectTitle(const Step& step);
  void DoExpectBoxes(const Step& step);
  void DoExpectFile(const Step& step);
  void DoExpectRow(const Step& step);
  void DoExpectAbsent(const Step& step);
  void DoWrite(const Step& step);
  void DoWait(const Step& step);
  void DoShot(const Step& step);
  void DoEnd(const Step& step);

  Desktop& desktop_;
  OperatorPlatform& platform_;
  const FileSystemObject& files_;
  Driver& driver_;
  EventLog& log_;
  Options options_;
  std::vector<Step> steps_;
  std::size_t next_ = 0;
  int depth_ = 0;  // steps in work, one inside the wait of the other
  bool started_ = false;
  int passed_ = 0;
  int failed_ = 0;
};

}  // namespace kontorwerk
