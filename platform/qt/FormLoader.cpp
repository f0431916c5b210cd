// Names the class of our own for each class of a form that has one.
#include "platform/qt/FormLoader.h"

#include <QBuffer>
#include <QWidget>

#include "platform/qt/CaptionLabel.h"
#include "platform/qt/CommandWidget.h"
#include "platform/qt/MonthCalendar.h"
#include "platform/qt/RowsView.h"
#include "platform/qt/TextWidgets.h"

namespace kontorwerk {

FormLoader::FormLoader() {
  setLanguageChangeEnabled(false);
  setTranslationEnabled(false);
}

std::unique_ptr<QWidget> FormLoader::Build(const QByteArray& xml) {
  QBuffer buffer;
  buffer.setData(xml);
  buffer.open(QIODevice::ReadOnly);
  return std::unique_ptr<QWidget>(load(&buffer));
}

QWidget* FormLoader::createWidget(const QString& className, QWidget* parent, const QString& name) {
  QWidget* widget = nullptr;
  if (className == QLatin1String("QPushButton")) widget = new CommandWidget(parent);
  if (className == QLatin1String("QLabel")) widget = new CaptionLabel(parent);
  if (className == QLatin1String("QTreeView")) widget = new RowsView(parent);
  if (className == QLatin1String("QCalendarWidget")) widget = new MonthCalendar(parent);
  if (className == QLatin1String("QLineEdit")) widget = new LineField(parent);
  if (className == QLatin1String("QPlainTextEdit")) widget = new TextArea(parent);
  if (className == QLatin1String("QTextEdit")) widget = new DocumentArea(parent);
  if (widget == nullptr) return QUiLoader::createWidget(className, parent, name);
  widget->setObjectName(name);
  return widget;
}

}  // namespace kontorwerk
