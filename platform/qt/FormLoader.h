// Builds the widgets of a form, in the classes of this program where the toolkit's own do not do.
#pragma once

#include <QByteArray>
#include <QUiLoader>
#include <memory>

class QWidget;

namespace kontorwerk {

class FormLoader final : public QUiLoader {
 public:
  FormLoader();

  // The widgets of a form text; null if it cannot be read.
  [[nodiscard]] std::unique_ptr<QWidget> Build(const QByteArray& xml);

  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;
};

}  // namespace kontorwerk
