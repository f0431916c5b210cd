// A month calendar that asks which days are bold while it draws them, in German, weeks beginning on Monday.
#pragma once

#include <QCalendarWidget>
#include <functional>

namespace kontorwerk {

class MonthCalendar final : public QCalendarWidget {
 public:
  explicit MonthCalendar(QWidget* parent);

  std::function<bool(QDate)> isBold;
  // The widgets that the toolkit's class is made of take their look from the theme.
  void ApplyTheme();
  void Redraw() { updateCells(); }

 protected:
  void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
  void changeEvent(QEvent* event) override;
};

}  // namespace kontorwerk
