// German for what the toolkit writes into dialogs and menus by itself, where its own translation is not installed.
#pragma once

#include <QTranslator>

namespace kontorwerk {

class GermanTexts final : public QTranslator {
 public:
  using QTranslator::QTranslator;
  [[nodiscard]] bool isEmpty() const override { return false; }
  [[nodiscard]] QString translate(const char* context, const char* source, const char* disambiguation,
                                  int number) const override;
};

}  // namespace kontorwerk
