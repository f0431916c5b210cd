// One test for all ways into a field: keys, input methods, the clipboard, drag and drop.
#include "platform/qt/TextWidgets.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyle>
#include <QTimer>
#include <QToolTip>
#include <limits>

#include "platform/qt/QtText.h"

namespace kontorwerk {
namespace {

constexpr int kFlashMs = 600;
constexpr int kHintMs = 4000;

void Repolish(QWidget& widget) {
  widget.style()->unpolish(&widget);
  widget.style()->polish(&widget);
}

// True if the text may go into the field; otherwise the user has been told.
bool Accept(QWidget& field, const QString& text) {
  const QString foreign = ForeignCharacters(text);
  if (foreign.isEmpty()) return true;
  ShowRefusal(field, foreign);
  return false;
}

// True for a key that would type a text.
bool Types(const QKeyEvent& event) {
  return !event.text().isEmpty() && event.text().at(0).isPrint() &&
         (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
}

}  // namespace

void ShowRefusal(QWidget& field, const QString& characters) {
  QApplication::beep();
  field.setProperty("refused", true);
  Repolish(field);
  QTimer::singleShot(kFlashMs, &field, [&field] {
    field.setProperty("refused", false);
    Repolish(field);
  });
  QToolTip::showText(field.mapToGlobal(QPoint(0, field.height())),
                     QStringLiteral("%1 kann nicht gespeichert werden und wurde nicht übernommen.").arg(characters),
                     &field, {}, kHintMs);
}

QValidator::State CodePageValidator::validate(QString& input, int&) const {
  const QString foreign = ForeignCharacters(input);
  if (foreign.isEmpty()) return Acceptable;
  refused_ = foreign;
  return Invalid;
}

void GuardCharacters(QLineEdit& field) {
  auto* validator = new CodePageValidator(&field);
  field.setValidator(validator);
  QObject::connect(&field, &QLineEdit::inputRejected, &field, [&field, validator] {
    // A full field rejects as well: only what cannot be kept needs a word.
    if (!validator->Refused().isEmpty()) ShowRefusal(field, validator->Refused());
  });
}

LineField::LineField(QWidget* parent) : QLineEdit(parent) {
  setMaxLength(std::numeric_limits<int>::max());
  GuardCharacters(*this);
}

TextArea::TextArea(QWidget* parent) : QPlainTextEdit(parent) {}

void TextArea::keyPressEvent(QKeyEvent* event) {
  if (!Types(*event) || Accept(*this, event->text())) QPlainTextEdit::keyPressEvent(event);
}

void TextArea::inputMethodEvent(QInputMethodEvent* event) {
  if (Accept(*this, event->commitString())) QPlainTextEdit::inputMethodEvent(event);
}

void TextArea::insertFromMimeData(const QMimeData* source) {
  if (Accept(*this, source->text())) QPlainTextEdit::insertFromMimeData(source);
}

DocumentArea::DocumentArea(QWidget* parent) : QTextEdit(parent) { setAcceptRichText(false); }

void DocumentArea::keyPressEvent(QKeyEvent* event) {
  if (!Types(*event) || Accept(*this, event->text())) QTextEdit::keyPressEvent(event);
}

void DocumentArea::inputMethodEvent(QInputMethodEvent* event) {
  if (Accept(*this, event->commitString())) QTextEdit::inputMethodEvent(event);
}

void DocumentArea::insertFromMimeData(const QMimeData* source) {
  if (Accept(*this, source->text())) QTextEdit::insertFromMimeData(source);
}

}  // namespace kontorwerk
