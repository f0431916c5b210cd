// The document goes through the renderer and pdftoppm in a thread of its own, one at a time; newer requests drop
// those that wait.
#include "platform/qt/RtfPreview.h"

#include <QDir>
#include <QPointer>
#include <QTemporaryDir>
#include <QThreadPool>

#include "platform/word/Processes.h"
#include "platform/word/TemplateFiller.h"

namespace kontorwerk {
namespace {

constexpr int kDotsPerInch = 160;
constexpr int kMostPages = 20;

RtfPreview* currentPreview = nullptr;

// The pages of a PDF, drawn by pdftoppm into a folder of their own.
QList<QImage> DrawPages(const std::string& pdf) {
  const std::string program = FindProgram("pdftoppm");
  const QTemporaryDir folder;
  const std::string file = folder.filePath(QStringLiteral("pages.pdf")).toStdString();
  if (program.empty() || !folder.isValid() || !WriteWholeFile(file, pdf)) return {};
  const std::string target = folder.filePath(QStringLiteral("page")).toStdString();
  const ProcessResult result = RunProcess({.arguments = {program, "-png", "-r", std::to_string(kDotsPerInch), "-l",
                                                         std::to_string(kMostPages), file, target},
                                           .environment = {},
                                           .folder = {}});
  if (result.end != ProcessEnd::Exited || result.exitCode != 0) return {};
  QList<QImage> pages;
  for (const QString& name : QDir(folder.path()).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name))
    if (const QImage page(folder.filePath(name)); !page.isNull()) pages.append(page);
  return pages;
}

class PdfPreview final : public RtfPreview {
 public:
  explicit PdfPreview(DocumentRenderer& renderer) : renderer_(renderer) { pool_.setMaxThreadCount(1); }
  ~PdfPreview() override { Stop(); }

  void Draw(const std::string& rtf, QObject* receiver, std::function<void(QList<QImage>)> done) override {
    pool_.clear();
    pool_.start([this, rtf, guard = QPointer<QObject>(receiver), done = std::move(done)] {
      const RenderedDocument rendered = renderer_.Render(rtf);
      const QList<QImage> pages = rendered.pdf.empty() ? QList<QImage>() : DrawPages(rendered.pdf);
      QMetaObject::invokeMethod(
          &home_,
          [guard, done, pages] {
            if (guard) done(pages);
          },
          Qt::QueuedConnection);
    });
  }

  void Stop() override {
    pool_.clear();
    pool_.waitForDone();
  }

 private:
  DocumentRenderer& renderer_;
  QObject home_;  // lives in the thread of the windows
  QThreadPool pool_;
};

}  // namespace

std::unique_ptr<RtfPreview> MakePdfPreview(DocumentRenderer& renderer) {
  return std::make_unique<PdfPreview>(renderer);
}

void SetRtfPreview(RtfPreview* preview) { currentPreview = preview; }

RtfPreview* CurrentRtfPreview() { return currentPreview; }

}  // namespace kontorwerk
