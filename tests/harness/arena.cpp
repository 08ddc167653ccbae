#include "arena.h"

#include <sys/mman.h>

#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <utility>

namespace zelmtest {

Arena::Arena(Kind kind) : kind_(kind) {
  constexpr size_t sizes[] = {size_t{16} << 20, size_t{1024} * toothPitch, size_t{14} << 30, size_t{16} << 20};
  size_ = sizes[kind];
  void* memory = mmap(nullptr, size_ + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  bool ok = memory != MAP_FAILED;
  begin_ = static_cast<unsigned char*>(memory) + page;
  if (ok && kind == Comb)
    for (size_t tooth = 0; ok && tooth < size_; tooth += toothPitch)
      ok = mprotect(begin_ + tooth, page, PROT_READ | PROT_WRITE) == 0;
  else if (ok && kind == Plain)
    ok = mprotect(begin_, size_, PROT_READ | PROT_WRITE) == 0;
  if (!ok) {
    std::perror("arena");
    std::abort();
  }
}

unsigned char* Arena::runBegin(unsigned char* address) const {
  if (kind_ == Far)
    return begin_ + static_cast<size_t>(address - begin_) / page * page;
  return kind_ == Comb ? begin_ + static_cast<size_t>(address - begin_) / toothPitch * toothPitch : begin_;
}

unsigned char* Arena::runEnd(unsigned char* address) const {
  return kind_ == Comb || kind_ == Far ? runBegin(address) + page : end();
}

void Arena::open(unsigned char* address) {
  if (open_.insert(runBegin(address)).second && mprotect(runBegin(address), page, PROT_READ | PROT_WRITE) != 0)
    std::abort();
}

void Arena::close() {
  for (unsigned char* at : open_)
    if (mprotect(at, page, PROT_NONE) != 0)
      std::abort();
  open_.clear();
}

Arena& operandArena(Arena::Kind kind, size_t slot) {
  static std::map<std::pair<int, size_t>, std::unique_ptr<Arena>> arenas;
  auto& arena = arenas[{kind, slot}];
  if (!arena)
    arena = std::make_unique<Arena>(kind);
  return *arena;
}

Arena& listArena(size_t slot) {
  return operandArena(Arena::Plain, 1000 + slot);
}

const void* wildPointer() {
  return operandArena(Arena::Wild, 0).begin() + page;
}

} // namespace zelmtest
