// Memory whose neighbourhood faults: an operand lies flush with a page that cannot be touched.
#ifndef ZELMTEST_ARENA_H
#define ZELMTEST_ARENA_H

#include <cstddef>
#include <cstdint>
#include <set>

namespace zelmtest {

constexpr size_t page = 4096;
constexpr size_t toothPitch = 2 * page;

class Arena {
public:
  enum Kind {
    Plain, // one accessible run between two guards
    Comb,  // accessible pages, each followed by a guard
    Far,   // many GiB of which only what is opened is accessible, so that a wrapped address faults
    Wild   // nothing accessible
  };
  explicit Arena(Kind kind);
  Arena(const Arena&) = delete;
  Arena& operator=(const Arena&) = delete;
  unsigned char* begin() const { return begin_; }
  unsigned char* end() const { return begin_ + size_; }
  size_t size() const { return size_; }
  // The accessible run that holds this address.
  unsigned char* runBegin(unsigned char* address) const;
  unsigned char* runEnd(unsigned char* address) const;
  // Makes the page of an address in a Far arena accessible, and all that were inaccessible again.
  void open(unsigned char* address);
  void close();

private:
  Kind kind_;
  unsigned char* begin_;
  size_t size_;
  std::set<unsigned char*> open_;
};

// Arenas are made once and used again; slot is the operand's index.
Arena& operandArena(Arena::Kind kind, size_t slot);
Arena& listArena(size_t slot);
const void* wildPointer();

} // namespace zelmtest

#endif
