// Ties of text fields, one line or many, and of boxes that show a document.
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "platform/qt/Binding.h"

namespace kontorwerk {

class LineBinding final : public Binding {
 public:
  LineBinding(QLineEdit* field, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;
  void ShowEnabled() override;

 private:
  void ShowText();
  QLineEdit* field_;
  const Control* shown_ = nullptr;
};

class AreaBinding final : public Binding {
 public:
  AreaBinding(QPlainTextEdit* area, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;
  void ShowEnabled() override;

 private:
  void ShowText();
  QPlainTextEdit* area_;
};

// Shows the plain text until the pages of the document are drawn, and where they cannot be drawn.
class DocumentBinding final : public Binding {
 public:
  DocumentBinding(QTextEdit* area, BindingHost& host);

 protected:
  void ShowState(Aspect aspect, int detail) override;
  void ShowAll() override;
  void ShowEnabled() override;

 private:
  void ShowText();
  void ShowDocument();
  void ShowPages(const QList<QImage>& pages);

  QTextEdit* area_;
  bool showsPages_ = false;
  quint64 request_ = 0;  // the pages asked for last
};

}  // namespace kontorwerk
