// Documents.
#include "bench/Subjects.h"

namespace kontorwerk::bench {

void AddDocumentSubjects() {}

}  // namespace kontorwerk::bench
