// A form as the windows read it: which widgets it binds, and its text made ready for the loader. Compares a form with
// the controls of its screen; building the widgets is the loader's part.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

namespace kontorwerk {

class Screen;

// A widget or action of a form that must have its control.
struct FormWidget {
  QString name;        // as it stands in the form
  QString control;     // without the index of a fixed array
  int index = -1;      // in a fixed array
  QString kind;        // KindName of the control
  bool inRow = false;  // in a row template: one for each element of the array
};

// The row of growing arrays that a form repeats.
struct RowTemplate {
  QString name;
  QByteArray form;    // a form of its own, with nothing but the row
  QString scrollBar;  // the control whose value is the first row in view
  int rows = 0;       // in view
};

class FormFile {
 public:
  // `xml` is a whole form; `source` names it in messages.
  FormFile(const QByteArray& xml, const QString& source);
  // The form of a screen from the program's resources.
  [[nodiscard]] static FormFile Of(const Screen& screen);

  // Why the form cannot be used at all; empty if it can.
  [[nodiscard]] const QString& Error() const { return error_; }
  [[nodiscard]] const std::vector<FormWidget>& Widgets() const { return widgets_; }
  [[nodiscard]] const std::vector<RowTemplate>& Rows() const { return rows_; }
  // For the loader: row templates stand as empty containers in it.
  [[nodiscard]] const QByteArray& Xml() const { return xml_; }
  // Names of pictures that the form uses, and names of controls that its decoration follows.
  [[nodiscard]] const QStringList& Icons() const { return icons_; }
  [[nodiscard]] const QStringList& Followed() const { return followed_; }

 private:
  friend class FormScan;

  QString source_;
  QString error_;
  QByteArray xml_;
  std::vector<FormWidget> widgets_;
  std::vector<RowTemplate> rows_;
  QStringList icons_;
  QStringList followed_;
};

// All that keeps the form from being the screen's, one readable line each: controls without a widget, widgets without
// a control, kinds that differ, double names, unknown pictures. Empty for a form that fits.
[[nodiscard]] std::vector<std::string> CheckForm(const Screen& screen, const FormFile& form);
// The same with the screen's own form.
[[nodiscard]] std::vector<std::string> CheckForm(const Screen& screen);

}  // namespace kontorwerk
