// Which class of a form stands for which control; docs/forms.md has the same table for people.
#pragma once

#include <QHash>
#include <QString>

namespace kontorwerk {

// The control's kind by the widget's class; classes that are not in it only decorate. A QLabel with the property
// `kind` = Image is an Image, a QAction a MenuEntry.
[[nodiscard]] inline const QHash<QString, QString>& KindOfClass() {
  static const QHash<QString, QString> kinds = {
      {"QLineEdit", "TextBox"},    {"QPlainTextEdit", "TextBox"},    {"QTextEdit", "RichTextBox"},
      {"QLabel", "Label"},         {"QPushButton", "CommandButton"}, {"QToolButton", "CommandButton"},
      {"QCheckBox", "CheckBox"},   {"QRadioButton", "OptionButton"}, {"QComboBox", "ComboBox"},
      {"QListWidget", "ListBox"},  {"QTreeView", "ListView"},        {"QCalendarWidget", "MonthView"},
      {"QStatusBar", "StatusBar"}, {"QProgressBar", "ProgressBar"},  {"QScrollBar", "ScrollBar"},
      {"QTabWidget", "TabStrip"},  {"QMenu", "MenuEntry"},
  };
  return kinds;
}

// "Name_3" in a form is element 3 of the fixed array Name; any other name stands for itself, with index -1.
struct FormName {
  QString name;
  int index = -1;
};

[[nodiscard]] inline FormName ParseFormName(const QString& name) {
  const qsizetype mark = name.lastIndexOf('_');
  bool isNumber = false;
  const int index = name.mid(mark + 1).toInt(&isNumber);
  return mark > 0 && isNumber ? FormName{name.left(mark), index} : FormName{name};
}

// "&Neu" is shown as "Neu" with an underlined letter, "&&" as "&".
[[nodiscard]] inline QString WithoutMnemonic(const QString& text) {
  QString caption;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) ++i;
    caption += text[i];
  }
  return caption;
}

}  // namespace kontorwerk
