// A label or picture that tells its clicks; its text is plain, and a picture is drawn in the colours of the theme.
#pragma once

#include <QLabel>
#include <functional>

namespace kontorwerk {

class CaptionLabel final : public QLabel {
 public:
  explicit CaptionLabel(QWidget* parent);

  std::function<void()> onClick;
  std::function<void()> onDoubleClick;
  // Whether it is worth a pointing hand.
  std::function<bool()> isClickable;
  // Takes the picture of the form's property anew, after the theme has changed or before the first show.
  void LoadPicture();

 protected:
  void enterEvent(QEnterEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
};

}  // namespace kontorwerk
