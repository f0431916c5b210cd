// Controls that hold a text: fields, multi-line boxes, labels, buttons, pictures.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/Control.h"

namespace kontorwerk {

// A field for one or more lines (line breaks are CR LF). OnChange comes when the text becomes another one, by the
// user or by the program, and at every typing.
class TextBox : public Control {
 public:
  TextBox(Screen& owner, std::string_view name, int index = kNoIndex)
      : TextBox(owner, ControlKind::TextBox, name, index) {}

  [[nodiscard]] const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  void Clear() { SetText({}); }
  // A locked field shows its text but takes no typing.
  [[nodiscard]] bool Locked() const { return locked_; }
  void SetLocked(bool locked);
  // Marks the whole text, so that typing replaces it.
  void SelectAll() { Notify(Aspect::TextSelection); }

  // The user has typed: the field holds `text` now.
  void UserText(std::string_view text);

  [[nodiscard]] bool Usable() const override;
  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnChange;
  std::function<void()> OnDoubleClick;
  std::function<void()> OnClick;

 protected:
  TextBox(Screen& owner, ControlKind kind, std::string_view name, int index) : Control(owner, kind, name, index) {}

 private:
  std::string text_;
  bool locked_ = false;
};

// A multi-line box that can also show a document in rich text.
class RichTextBox final : public TextBox {
 public:
  RichTextBox(Screen& owner, std::string_view name, int index = kNoIndex)
      : TextBox(owner, ControlKind::RichTextBox, name, index) {}

  // The document shown, as RTF bytes; empty while the box shows its plain text.
  [[nodiscard]] const std::string& Rtf() const { return rtf_; }
  void SetRtf(std::string_view rtf);
  void ResetToDesign(const ControlDesign* design) override;

 private:
  std::string rtf_;
};

// Anything that shows a caption and can be clicked.
class CaptionControl : public Control {
 public:
  [[nodiscard]] const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  void UserClick() { Raise(OnClick); }
  void ResetToDesign(const ControlDesign* design) override;

  std::function<void()> OnClick;
  std::function<void()> OnDoubleClick;

 protected:
  using Control::Control;

 private:
  std::string caption_;
};

class Label final : public CaptionControl {
 public:
  Label(Screen& owner, std::string_view name, int index = kNoIndex)
      : CaptionControl(owner, ControlKind::Label, name, index) {}
};

class CommandButton final : public CaptionControl {
 public:
  CommandButton(Screen& owner, std::string_view name, int index = kNoIndex)
      : CaptionControl(owner, ControlKind::CommandButton, name, index) {}
  void UseKey(Key& key) override;  // Enter and Space press it
};

// A picture that can be clicked.
class Image final : public CaptionControl {
 public:
  Image(Screen& owner, std::string_view name, int index = kNoIndex)
      : CaptionControl(owner, ControlKind::Image, name, index) {}
};

// An entry of a screen's menu bar, of a submenu, or a submenu itself. One that can be ticked shows `Checked`.
class MenuEntry final : public CaptionControl {
 public:
  MenuEntry(Screen& owner, std::string_view name, int index = kNoIndex)
      : CaptionControl(owner, ControlKind::MenuEntry, name, index) {}
  [[nodiscard]] bool Checked() const { return checked_; }
  void SetChecked(bool checked);
  void ResetToDesign(const ControlDesign* design) override;

 private:
  bool checked_ = false;
};

}  // namespace kontorwerk
