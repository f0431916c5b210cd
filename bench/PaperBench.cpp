// Paper.
#include "bench/Subjects.h"

namespace kontorwerk::bench {

void AddPaperSubjects() {}

}  // namespace kontorwerk::bench
