// The boxes are plain dialogs: a text that can be copied, buttons in the order of the answers, the first one for
// Enter.
#include "platform/qt/Dialogs.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "platform/qt/CommandWidget.h"
#include "platform/qt/Icons.h"

namespace kontorwerk {
namespace {

constexpr int kMargin = 24;
constexpr int kIconSize = 32;
constexpr int kTextColumns = 64;
constexpr int kMostCopies = 99;
constexpr int kEscaped = -1;

class BoxDialog final : public QDialog {
 public:
  BoxDialog(QWidget* parent, const QString& text, const QString& title, Buttons buttons)
      : QDialog(parent), text_(text), buttons_(buttons) {
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin - 8);
    layout->setSpacing(kMargin);
    auto* upper = new QHBoxLayout;
    upper->setSpacing(16);
    auto* icon = new QLabel;
    const bool asks = buttons == Buttons::YesNo || buttons == Buttons::YesNoCancel;
    icon->setPixmap(ThemeIcon(asks ? QStringLiteral("question") : QStringLiteral("info"), IconTone::Accent)
                        .pixmap(QSize(kIconSize, kIconSize), devicePixelRatioF()));
    upper->addWidget(icon, 0, Qt::AlignTop);
    upper->addWidget(MakeText(), 1);
    layout->addLayout(upper);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addStretch(1);
    AddButtons(*row);
    layout->addLayout(row);
  }

  [[nodiscard]] Answer Run() {
    const int result = exec();
    if (result != kEscaped && result != QDialog::Rejected) return static_cast<Answer>(result - 1);
    return buttons_ == Buttons::Ok ? Answer::Ok : Answer::Cancel;
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->matches(QKeySequence::Copy)) {
      QApplication::clipboard()->setText(text_);
    } else if (event->key() != Qt::Key_Escape || CanEscape()) {
      QDialog::keyPressEvent(event);
    }
  }

  void reject() override {
    if (CanEscape()) QDialog::reject();
  }

 private:
  [[nodiscard]] bool CanEscape() const { return buttons_ != Buttons::YesNo; }

  // A text that is too long for the screen scrolls.
  QWidget* MakeText() {
    auto* label = new QLabel(text_);
    label->setObjectName(QStringLiteral("decoBoxText"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setFocusPolicy(Qt::NoFocus);
    const QFontMetrics metrics(label->font());
    const int widest = metrics.averageCharWidth() * kTextColumns;
    const QRect needed = metrics.boundingRect(0, 0, widest, INT_MAX / 2, Qt::TextWordWrap, text_);
    label->setMinimumWidth(std::clamp(needed.width() + 8, 16 * metrics.averageCharWidth(), widest + 8));
    if (needed.height() < screen()->availableGeometry().height() / 2) return label;
    auto* area = new QScrollArea;
    area->setWidget(label);
    area->setWidgetResizable(true);
    area->setMinimumSize(label->minimumWidth() + kMargin, screen()->availableGeometry().height() / 2);
    return area;
  }

  void AddButtons(QHBoxLayout& row) {
    switch (buttons_) {
      case Buttons::Ok:
        AddButton(row, QStringLiteral("&OK"), Answer::Ok);
        break;
      case Buttons::OkCancel:
        AddButton(row, QStringLiteral("&OK"), Answer::Ok);
        AddButton(row, QStringLiteral("&Abbrechen"), Answer::Cancel);
        break;
      case Buttons::YesNo:
      case Buttons::YesNoCancel:
        AddButton(row, QStringLiteral("&Ja"), Answer::Yes);
        AddButton(row, QStringLiteral("&Nein"), Answer::No);
        if (buttons_ == Buttons::YesNoCancel) AddButton(row, QStringLiteral("&Abbrechen"), Answer::Cancel);
        break;
    }
  }

  // The first button is the one that Enter presses.
  void AddButton(QHBoxLayout& row, const QString& caption, Answer answer) {
    auto* button = new CommandWidget(this);
    button->setText(caption);
    button->setDefault(row.count() == 1);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, answer] { done(static_cast<int>(answer) + 1); });
    if (row.count() == 2) button->setFocus();
  }

  QString text_;
  Buttons buttons_;
};

}  // namespace

Answer ShowBox(QWidget* parent, const QString& text, const QString& title, Buttons buttons) {
  return BoxDialog(parent, text, title, buttons).Run();
}

std::optional<PrinterDialogChoice> ShowPrinterDialog(QWidget* parent, const QString& title, const QStringList& printers,
                                                     const QString& preferred) {
  QDialog dialog(parent);
  dialog.setWindowTitle(title.isEmpty() ? QStringLiteral("Drucken") : title);
  auto* form = new QFormLayout(&dialog);
  form->setContentsMargins(kMargin, kMargin, kMargin, kMargin - 8);
  form->setSpacing(12);
  auto* queues = new QComboBox;
  queues->addItems(printers);
  queues->setCurrentText(preferred);
  queues->setMinimumWidth(queues->fontMetrics().averageCharWidth() * kTextColumns / 2);
  auto* copies = new QSpinBox;
  copies->setRange(1, kMostCopies);
  form->addRow(QStringLiteral("&Drucker:"), queues);
  form->addRow(QStringLiteral("&Exemplare:"), copies);
  auto* row = new QHBoxLayout;
  row->addStretch(1);
  auto* print = new CommandWidget(&dialog);
  print->setText(QStringLiteral("D&rucken"));
  print->setDefault(true);
  auto* cancel = new CommandWidget(&dialog);
  cancel->setText(QStringLiteral("&Abbrechen"));
  row->addWidget(print);
  row->addWidget(cancel);
  form->addRow(row);
  QObject::connect(print, &QPushButton::clicked, &dialog, &QDialog::accept);
  QObject::connect(cancel, &QPushButton::clicked, &dialog, &QDialog::reject);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return PrinterDialogChoice{queues->currentText(), copies->value()};
}

}  // namespace kontorwerk
