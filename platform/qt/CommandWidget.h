// A command button; in the roles `card` and `centre` it draws itself as a panel with picture, caption and line of help.
#pragma once

#include <QPushButton>

namespace kontorwerk {

class CommandWidget final : public QPushButton {
 public:
  explicit CommandWidget(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  enum class Look { Button, Card, Centre };
  [[nodiscard]] Look CurrentLook() const;
  [[nodiscard]] QFont CaptionFont(Look look) const;
  [[nodiscard]] QSize PanelSize(Look look) const;
};

}  // namespace kontorwerk
