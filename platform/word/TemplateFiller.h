// The two steps between a template and paper that can be done in more than one way: filling it, and setting it as PDF.
// Which filler serves a template is told by what the file is, not by its name.
#pragma once

#include "platform/word/FieldValues.h"

#include <string>
#include <string_view>

namespace kontorwerk {

struct FilledDocument {
  std::string document;  // the bytes to save
  std::string pdf;       // the same as PDF if the filler makes it on the way, else empty
  std::string error;     // why it failed, in German for the user; empty on success
};

class TemplateFiller {
 public:
  virtual ~TemplateFiller() = default;
  [[nodiscard]] virtual FilledDocument Fill(std::string_view templateBytes, const FieldValues& values) = 0;
};

struct RenderedDocument {
  std::string pdf;
  std::string error;  // as in FilledDocument
};

class DocumentRenderer {
 public:
  virtual ~DocumentRenderer() = default;
  [[nodiscard]] virtual RenderedDocument Render(std::string_view document) = 0;
};

enum class DocumentFormat {
  RichText,    // {\rtf
  WordBinary,  // .doc, .dot of old
  Package,     // a ZIP file: .docx, .dotx, .odt, .ott
  Unknown,
};

[[nodiscard]] inline DocumentFormat FormatOf(std::string_view bytes) {
  using namespace std::string_view_literals;
  if (bytes.starts_with("{\\rtf"sv)) return DocumentFormat::RichText;
  if (bytes.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"sv)) return DocumentFormat::WordBinary;
  if (bytes.starts_with("PK\x03\x04"sv)) return DocumentFormat::Package;
  return DocumentFormat::Unknown;
}

}  // namespace kontorwerk
