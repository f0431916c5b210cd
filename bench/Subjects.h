// The subjects by area, one function a file.
#pragma once

namespace kontorwerk::bench {

void AddPartnerSubjects();
void AddStockSubjects();
void AddStartSubjects();
void AddScreenSubjects();
void AddMemorySubjects();
void AddDocumentSubjects();
void AddPaperSubjects();

// The work of a process of its own whose memory is asked for; see MemoryBench.cpp.
int RunMemoryJob(int argc, char** argv);

}  // namespace kontorwerk::bench
