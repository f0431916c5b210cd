// The modal boxes of the program in its own look, with German buttons.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "platform/Platform.h"

class QWidget;

namespace kontorwerk {

// Escape and the window button are Abbrechen, or OK where that is the only button; a plain question has to be answered.
[[nodiscard]] Answer ShowBox(QWidget* parent, const QString& text, const QString& title, Buttons buttons);

struct PrinterDialogChoice {
  QString printer;
  int copies = 1;
};

// `printers` with `preferred` chosen; nothing if the user cancels.
[[nodiscard]] std::optional<PrinterDialogChoice> ShowPrinterDialog(QWidget* parent, const QString& title,
                                                                   const QStringList& printers,
                                                                   const QString& preferred);

}  // namespace kontorwerk
