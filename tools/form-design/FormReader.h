// Reads a form file of Qt Designer into the facts that the design table keeps: docs/forms.md tells what counts.
// Texts are turned into Windows-1252 here; whatever a form may not say is reported with file and line.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <string>
#include <vector>

#include "platform/FormDesign.h"

namespace kontorwerk {

// All complaints of a run, "file:line: text" each.
struct FormErrors {
  QStringList lines;

  void Add(const QString& file, qint64 line, const QString& text) {
    lines.append(QStringLiteral("%1:%2: error: %3").arg(file).arg(line).arg(text));
  }
};

// Nothing if the file cannot be read or is no well-formed form; what else is wrong with it is added to `errors` and
// left out of the design.
[[nodiscard]] std::optional<ScreenDesign> ReadForm(const QString& path, FormErrors& errors);

}  // namespace kontorwerk
