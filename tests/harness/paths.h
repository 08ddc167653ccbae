// The entries of kernels and fronts.
#ifndef ZELMTEST_PATHS_H
#define ZELMTEST_PATHS_H

#include "member.h"

namespace zelmtest {

extern const bool countedBuild; // the program's library reports entries (main.cpp)

// How often such a library has asked for the size of the largest cache, and what it is told.
constexpr int32_t systemsCache = -1;
extern int cacheQueries;
extern int32_t cacheSize;
// How many threads run the shares of its fronts, at most all of them.
constexpr int librarysChoice = 0;
constexpr int allThreads = 1 << 30;
extern int teamSize;

void clearEntries();
std::vector<std::string> entries(); // names in the order of entry, all threads

// Makes the call only as far as the first kernel or front, and gives the name of that; empty if none was entered, and
// then the status is in *status. No operand is touched, so pointers and sizes may be anything.
std::string probe(const Member& m, const std::vector<Slot>& slots, ZelStatus* status = nullptr);

} // namespace zelmtest

#endif
