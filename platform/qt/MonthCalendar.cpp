// Draws the days itself: the chosen one filled, today framed, bold ones with a dot.
#include "platform/qt/MonthCalendar.h"

#include <QEvent>
#include <QLocale>
#include <QPainter>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include "platform/qt/Icons.h"
#include "platform/qt/Theme.h"

namespace kontorwerk {
namespace {

constexpr int kCorner = 6;
constexpr int kDot = 4;

}  // namespace

MonthCalendar::MonthCalendar(QWidget* parent) : QCalendarWidget(parent) {
  setLocale(QLocale(QLocale::German, QLocale::Germany));
  setFirstDayOfWeek(Qt::Monday);
  setGridVisible(false);
  setVerticalHeaderFormat(NoVerticalHeader);
  setHorizontalHeaderFormat(ShortDayNames);
  setMinimumDate(QDate(1900, 1, 1));
  setMaximumDate(QDate(9999, 12, 31));
  ApplyTheme();
}

void MonthCalendar::ApplyTheme() {
  const ThemeColours& colours = Theme::Colours();
  QTextCharFormat weekday;
  weekday.setForeground(colours.muted);
  weekday.setBackground(colours.surface);
  setHeaderTextFormat(weekday);
  for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(day, weekday);
  if (auto* previous = findChild<QToolButton*>(QStringLiteral("qt_calendar_prevmonth")))
    previous->setIcon(ThemeIcon(QStringLiteral("arrow-left")));
  if (auto* next = findChild<QToolButton*>(QStringLiteral("qt_calendar_nextmonth")))
    next->setIcon(ThemeIcon(QStringLiteral("arrow-right")));
  if (auto* view = findChild<QTableView*>(QStringLiteral("qt_calendar_calendarview")))
    view->setFrameShape(QFrame::NoFrame);
}

void MonthCalendar::paintCell(QPainter* painter, const QRect& rect, QDate date) const {
  const ThemeColours& colours = Theme::Colours();
  const bool selected = date == selectedDate();
  const bool bold = isBold && isBold(date);
  const bool inMonth = date.month() == monthShown() && date.year() == yearShown();
  const int side = qMin(rect.width(), rect.height()) - 2;
  const QRect cell = QRect(0, 0, qMax(side, QFontMetrics(font()).horizontalAdvance(QStringLiteral("0000"))), side);
  const QRect frame = cell.translated(rect.center() - cell.center());
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  painter->fillRect(rect, colours.surface);
  painter->setPen(date == QDate::currentDate() && !selected ? QPen(colours.accent, 1.2) : QPen(Qt::NoPen));
  if (selected && focusProxy() != nullptr && focusProxy()->hasFocus()) painter->setPen(QPen(colours.text, 2));
  painter->setBrush(selected ? QBrush(isEnabled() ? colours.accent : colours.disabled) : QBrush(Qt::NoBrush));
  if (selected || date == QDate::currentDate()) painter->drawRoundedRect(frame, kCorner, kCorner);
  QFont face = font();
  face.setBold(bold);
  painter->setFont(face);
  const QColor ink = !inMonth || !isEnabled() ? colours.disabled : bold ? colours.accent : colours.text;
  painter->setPen(selected ? colours.onAccent : ink);
  painter->drawText(frame, Qt::AlignCenter, QString::number(date.day()));
  if (bold) {
    painter->setPen(Qt::NoPen);
    painter->setBrush(selected ? colours.onAccent : ink);
    painter->drawEllipse(QRectF(frame.center().x() - kDot / 2.0 + 0.5, frame.bottom() - kDot - 1.0, kDot, kDot));
  }
  painter->restore();
}

void MonthCalendar::changeEvent(QEvent* event) {
  QCalendarWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ApplyTheme();
}

}  // namespace kontorwerk
