#include "platform/headless/WordRecorder.h"

namespace kontorwerk {

bool WordRecorder::OpenTemplate(std::string_view path) {
  open_ = inner_.OpenTemplate(path);
  log_.Emit("word", {{"op", "OpenTemplate"}, {"path", path}, {"ok", open_}});
  return open_;
}

void WordRecorder::CloseDocument() {
  log_.Emit("word", {{"op", "CloseDocument"}});
  open_ = false;
  inner_.CloseDocument();
}

void WordRecorder::SetField(std::string_view name, std::string_view text) {
  log_.Emit("word", {{"op", "SetField"}, {"name", name}, {"text", text}});
  inner_.SetField(name, text);
}

void WordRecorder::SetFieldArea2(std::string_view name, std::string_view text) {
  log_.Emit("word", {{"op", "SetFieldArea2"}, {"name", name}, {"text", text}});
  inner_.SetFieldArea2(name, text);
}

void WordRecorder::SetFieldArea3(std::string_view name, std::string_view text) {
  log_.Emit("word", {{"op", "SetFieldArea3"}, {"name", name}, {"text", text}});
  inner_.SetFieldArea3(name, text);
}

bool WordRecorder::SaveDocument(std::string_view path) {
  const bool ok = inner_.SaveDocument(path);
  log_.Emit("word", {{"op", "SaveDocument"}, {"path", path}, {"ok", ok}});
  return ok;
}

bool WordRecorder::PrintDocument(std::string_view printer, int copies, std::string_view title) {
  const bool ok = route_ == PaperRoute::Record ? open_ : inner_.PrintDocument(printer, copies, title);
  log_.Emit("word", {{"op", "PrintDocument"}, {"name", title}, {"ok", ok}, {"copies", copies}, {"printer", printer}});
  return ok;
}

void WordRecorder::Reset() {
  log_.Emit("word", {{"op", "Reset"}});
  open_ = false;
  inner_.Reset();
}

bool WordRecorder::ShowDocument() {
  log_.Emit("word", {{"op", "ShowDocument"}, {"ok", open_}});
  return open_;
}

}  // namespace kontorwerk
