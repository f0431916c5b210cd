// Fields that take only characters that the record files can keep. Anything else, typed or pasted, is refused where the
// user sees it and the field stays as it was.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QValidator>

namespace kontorwerk {

// Tells the user at `field` that the characters were refused: a sound, a red frame for a moment, a hint with them.
void ShowRefusal(QWidget& field, const QString& characters);

// Refuses an input with foreign characters as a whole.
class CodePageValidator final : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& input, int& position) const override;
  // What the last refused input had that cannot be kept.
  [[nodiscard]] const QString& Refused() const { return refused_; }

 private:
  mutable QString refused_;
};

// Sets up a field or the field of an editable combo box.
void GuardCharacters(QLineEdit& field);

class LineField final : public QLineEdit {
 public:
  explicit LineField(QWidget* parent);
};

class TextArea final : public QPlainTextEdit {
 public:
  explicit TextArea(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
};

// Also shows documents, as pictures of their pages.
class DocumentArea final : public QTextEdit {
 public:
  explicit DocumentArea(QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
};

}  // namespace kontorwerk
