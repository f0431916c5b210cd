// Pages of a document in rich text as pictures. Drawing them takes a moment and happens beside the windows; where no
// means to draw them is installed, there are no pages.
#pragma once

#include <QImage>
#include <QList>
#include <functional>
#include <memory>
#include <string>

class QObject;

namespace kontorwerk {

class DocumentRenderer;

class RtfPreview {
 public:
  virtual ~RtfPreview() = default;
  // Calls `done` in the thread of the windows with the pages, none if they cannot be drawn; never after `receiver`
  // is gone.
  virtual void Draw(const std::string& rtf, QObject* receiver, std::function<void(QList<QImage>)> done) = 0;
  // Keeps every call of Draw from coming through and waits for those at work.
  virtual void Stop() = 0;
};

// Sets the document as PDF with `renderer` (which must outlive the preview) and draws its pages with pdftoppm.
[[nodiscard]] std::unique_ptr<RtfPreview> MakePdfPreview(DocumentRenderer& renderer);

// The preview that boxes ask; null while there is none.
void SetRtfPreview(RtfPreview* preview);
[[nodiscard]] RtfPreview* CurrentRtfPreview();

}  // namespace kontorwerk
