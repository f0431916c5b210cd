// The look of all windows: one set of colours for a light and one for a dark desktop, the sheet of rules that uses
// them, and the style beneath. It follows the desktop while the program runs; KONTORWERK_THEME=light or dark fixes it.
#pragma once

#include <QColor>
#include <QObject>
#include <functional>
#include <vector>

#include "platform/Colour.h"

class QApplication;

namespace kontorwerk {

struct ThemeColours {
  QColor window;   // behind everything
  QColor surface;  // fields, lists, cards
  QColor raised;   // buttons, headers
  QColor hover;
  QColor pressed;
  QColor alternate;  // every second row
  QColor border;
  QColor strongBorder;  // of fields and buttons
  QColor text;
  QColor muted;  // help, hints
  QColor disabled;
  QColor accent;
  QColor accentHover;
  QColor accentPressed;
  QColor onAccent;    // text on the accent
  QColor accentSoft;  // selected rows, the open centre
  QColor danger;
  QColor dangerSoft;
  QColor warning;
  QColor warningSoft;
};

class Theme final : public QObject {
  Q_OBJECT

 public:
  enum class Tone { Light, Dark };

  // Sets style, palette and sheet of the application, and goes on following the desktop.
  explicit Theme(QApplication& application);
  ~Theme() override;

  [[nodiscard]] static Tone CurrentTone();
  [[nodiscard]] static const ThemeColours& Colours();
  // A colour of the program as it is shown: black and white are text and surface; a dark text is made lighter on a
  // dark surface, so that it can be read.
  [[nodiscard]] static QColor ShownText(Colour colour);
  [[nodiscard]] static QColor ShownBackground(Colour colour);

 signals:
  // The colours are others now; whoever has drawn with the old ones draws anew.
  void Changed();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private slots:
  void OnDesktopSetting(const QString& group, const QString& key);

 private:
  void Apply();
  [[nodiscard]] Tone DesktopTone() const;

  QApplication& application_;
  Tone startTone_ = Tone::Light;  // of the palette that the desktop gave
};

}  // namespace kontorwerk
