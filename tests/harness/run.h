// One call beside its reference: placement of the operands, the call, and every byte that may or may not change.
#ifndef ZELMTEST_RUN_H
#define ZELMTEST_RUN_H

#include "arena.h"
#include "job.h"
#include "paths.h"

namespace zelmtest {

// Layout classes. In the list and pointer layouts objects or element positions are scattered besides, but for Packed.
enum class Spread {
  Packed,
  PaddedRows,
  PaddedObjects,
  Interleaved, // stride2 greater than stride1
  Double,      // stride2, in the pointer layout stride0, of two elements
  Triple,
  ObjectsInside, // stride0 is the element size
  Pitch16,       // stride0 and stride1 multiples of 16; in the pointer layout neighbours, positions at one distance
  CombObjects,   // every object on a page of its own, between guards
  CombRows,      // every row
  Random,
  Count_,
  Columns // column-major without gaps, where a family asks for it
};

struct Plan {
  Spread spread = Spread::Packed;
  bool atEnd = true; // flush with the guard behind, else with the one before
  int offset = -1;   // of the first element from a multiple of 16; -1 leaves it flush
  char far = 0;      // the axis whose strides are of more than a GiB: k objects, i rows, j columns
  int shiftElements = 0;
};

enum class Team { Plain, Serialised, Dynamic };

struct CaseSpec {
  std::string id; // "R12": replays with ZELM_REPLAY=<member>#R12
  Sizes sizes;
  std::vector<Plan> plans; // by operand
  int inPlace = -1;        // the source that dst is
  int dataKind = 0;
  int threads = 1;
  int team = allThreads; // those that run the threads' shares; all of them if there are not so many
  Team kind = Team::Plain;
  uint64_t seed = 0;
  uint64_t* steps = nullptr; // takes the instructions of the call
};

// Empty if all is well, else one line that tells what is wrong and how to replay it.
std::string runCase(const Member& m, const CaseSpec& spec);

// Slots of a call that passes every test, with all pointers wild: for probes and for calls that fail.
std::vector<Slot> wildSlots(const Member& m, const Sizes& sizes);

// What such a call enters first: all sizes n, one argument changed.
std::string entered(const char* name, int n, int32_t count, const char* argument = "", int32_t value = 0);

// Sets the line that is printed if a call crashes.
void announce(const std::string& line);
void installCrashReport();

// For families that test something of their own: the first difference between two dense results, bitwise but for NaN.
bool sameElement(const unsigned char* a, const unsigned char* b, size_t elem, bool integer, bool exactNaN);

} // namespace zelmtest

#endif
