// The entries of kernels and fronts.
#ifndef ZELMTEST_PATHS_H
#define ZELMTEST_PATHS_H

#include "member.h"

namespace zelmtest {

extern const bool countedBuild; // the program's library reports entries (main.cpp)

void clearEntries();
std::vector<std::string> entries(); // names in the order of entry, all threads

// Makes the call only as far as the first kernel or front, and gives the name of that; empty if none was entered, and
// then the status is in *status. No operand is touched, so pointers and sizes may be anything.
std::string probe(const Member& m, const std::vector<Slot>& slots, ZelStatus* status = nullptr);

} // namespace zelmtest

#endif
