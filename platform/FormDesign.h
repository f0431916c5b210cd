// What the form files say of a screen's controls before any handler has run: captions, texts, tool tips, what is seen
// and enabled, list columns, tab order. The table is made from the *.ui files when the program is built, so
// that captions have one home and the screenless operator knows them too.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

struct ControlDesign {
  std::string name;     // Windows-1252; "LGNr" for all elements of an array
  std::string kind;     // KindName of the control that the form expects
  std::string caption;  // without mnemonic mark
  std::string text;     // of text fields, or of an empty list
  std::string toolTip;
  bool visible = true;
  bool enabled = true;
  bool locked = false;
  bool checked = false;
  std::vector<std::string> items;    // of combo and list boxes, or the panels of a status bar
  std::vector<std::string> columns;  // headers of a list; a header that begins with "!" is hidden from use
  int value = 0;                     // of progress and scroll bars
  int minimum = 0;
  int maximum = 100;
  int tabIndex = -1;  // place in the order of work, -1 for controls outside it
  std::string group;  // name of the container: option buttons of one group exclude each other
};

struct ScreenDesign {
  std::string screen;
  std::string caption;
  std::vector<ControlDesign> controls;

  [[nodiscard]] const ControlDesign* Find(std::string_view name) const;
};

// The designs of all forms.
[[nodiscard]] const std::vector<ScreenDesign>& FormDesigns();
// Null for a screen without a form.
[[nodiscard]] const ScreenDesign* FindFormDesign(std::string_view screen);

}  // namespace kontorwerk
