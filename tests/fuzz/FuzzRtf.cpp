// Any bytes as a rich-text template: finding and filling marks neither crashes nor hangs, a template without values
// stays byte for byte.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/word/RtfTemplate.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kontorwerk;
  const std::string rtf(reinterpret_cast<const char*>(data), size);
  const RtfTemplate form(rtf);
  if (form.Fill(FieldValues()) != rtf) std::abort();
  FieldValues values;
  for (const TextArea area : {TextArea::Body, TextArea::Header, TextArea::Footer})
    for (const std::string& name : form.Names(area)) values.Set(area, name, "a{b}\\c\xE4\r\n1");
  const std::string filled = form.Fill(values);
  (void)PlainTextOf(filled);
  (void)RtfTemplate(filled);
  return 0;
}
