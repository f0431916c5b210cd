#include "platform/Screen.h"

#include <algorithm>
#include <tuple>

#include "platform/ControlArray.h"
#include "platform/Desktop.h"
#include "platform/FormDesign.h"
#include "platform/Timer.h"

namespace kontorwerk {

Screen::Screen(Desktop& desktop, std::string_view name)
    : desktop_(desktop), name_(name), design_(FindFormDesign(name)) {}

Screen::~Screen() { desktop_.Remove(*this); }

void Screen::Unregister(Control& control) {
  desktop_.ForgetControl(control);
  if (focused_ == &control) focused_ = nullptr;
  std::erase(controls_, &control);
}

void Screen::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  desktop_.NotifyScreen(*this, ScreenEvent::Caption);
}

void Screen::ResetToDesign() {
  SetCaption(design_ ? std::string_view(design_->caption) : std::string_view());
  focused_ = nullptr;
  for (Control* control : controls_) {
    const ControlDesign* design = design_ ? design_->Find(control->Name()) : nullptr;
    if (control->Index() != Control::kNoIndex && design_) {
      const std::string element = control->Name() + "(" + std::to_string(control->Index()) + ")";
      if (const ControlDesign* own = design_->Find(element)) design = own;
    }
    control->ResetToDesign(design);
  }
}

void Screen::Load() {
  if (loaded_) return;
  loaded_ = true;
  ResetToDesign();
  desktop_.NotifyScreen(*this, ScreenEvent::Loaded);
  OnLoad();
}

void Screen::Show() {
  Load();
  if (!loaded_) return;
  if (!visible_) {
    visible_ = true;
    desktop_.Activate(*this);
    desktop_.NotifyScreen(*this, ScreenEvent::Shown);
    OnActivate();
    if (visible_ && !focused_) focused_ = FirstInTabOrder();
  } else {
    BringToFront();
  }
}

void Screen::Hide() {
  if (!visible_) return;
  visible_ = false;
  desktop_.ForgetFocus(*this);
  desktop_.NotifyScreen(*this, ScreenEvent::Hidden);
}

void Screen::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  OnUnload();
  for (Control* control : controls_)
    if (control->Kind() == ControlKind::Timer) static_cast<Timer*>(control)->SetRunning(false);
  visible_ = false;
  desktop_.ForgetFocus(*this);
  desktop_.NotifyScreen(*this, ScreenEvent::Unloaded);
  OnUnloaded();
}

void Screen::Close() {
  if (loaded_) OnCloseRequest();
}

void Screen::BringToFront() {
  if (!visible_) return;
  desktop_.Activate(*this);
  desktop_.NotifyScreen(*this, ScreenEvent::Front);
}

Control* Screen::Find(std::string_view name, int index) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const Control* control) {
    return control->Index() == index && control->Name() == name;
  });
  return found == controls_.end() ? nullptr : *found;
}

bool Screen::IsArray(std::string_view name) const {
  return std::find(arrays_.begin(), arrays_.end(), name) != arrays_.end() ||
         std::any_of(controls_.begin(), controls_.end(), [&](const Control* control) {
           return control->Name() == name && control->Index() != Control::kNoIndex;
         });
}

namespace {

// A control in the order of work. Elements of arrays come row by row, all of them where the first array of the form
// stands.
struct Stop {
  int block;
  int element;
  int place;
  Control* control;
};

// The reachable controls in the order of work, `always` among them whether it is reachable or not.
std::vector<Stop> TabOrder(const Screen& screen, const Control* always) {
  std::vector<Stop> stops;
  int firstArrayPlace = -1;
  for (Control* control : screen.Controls()) {
    const ControlDesign* design = screen.Design() ? screen.Design()->Find(control->Name()) : nullptr;
    const int place = design ? design->tabIndex : -1;
    const bool reachable = control == always || (control->TakesFocus() && control->Usable());
    if (!reachable || place < 0) continue;
    if (control->Index() >= 0 && (firstArrayPlace < 0 || place < firstArrayPlace)) firstArrayPlace = place;
    stops.push_back({place, control->Index(), place, control});
  }
  for (Stop& stop : stops)
    if (stop.element >= 0) stop.block = firstArrayPlace;
  std::stable_sort(stops.begin(), stops.end(), [](const Stop& a, const Stop& b) {
    return std::tie(a.block, a.element, a.place) < std::tie(b.block, b.element, b.place);
  });
  return stops;
}

}  // namespace

Control* Screen::NextInTabOrder(const Control& control, bool backwards) const {
  const std::vector<Stop> stops = TabOrder(*this, &control);
  const auto here =
      std::find_if(stops.begin(), stops.end(), [&](const Stop& stop) { return stop.control == &control; });
  if (here == stops.end() || stops.size() < 2) return nullptr;
  const auto count = static_cast<long>(stops.size());
  const long next = (here - stops.begin() + (backwards ? count - 1 : 1)) % count;
  return stops[static_cast<std::size_t>(next)].control;
}

Control* Screen::FirstInTabOrder() const {
  const std::vector<Stop> stops = TabOrder(*this, nullptr);
  return stops.empty() ? nullptr : stops.front().control;
}

void ControlArrayBase::Reset(Control& control) const {
  const ScreenDesign* design = owner_.Design();
  control.ResetToDesign(design ? design->Find(name_) : nullptr);
}

}  // namespace kontorwerk
