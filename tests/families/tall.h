// Sizes of matrices that are at least as high as wide.
#ifndef ZELMTEST_TALL_H
#define ZELMTEST_TALL_H

#include "../harness/member.h"

namespace zelmtest {

// Those with code of their own, those beside them, and larger ones.
inline std::vector<Sizes> tallShapes(const Member&) {
  constexpr int pairs[][2] = {{1, 1},   {2, 2},   {3, 3},  {4, 4},   {5, 5},  {6, 6}, {7, 7},  {8, 8},
                              {11, 11}, {12, 12}, {1, 2},  {1, 5},   {3, 4},  {3, 5}, {3, 6},  {2, 6},
                              {4, 6},   {5, 6},   {3, 7},  {6, 7},   {6, 8},  {4, 8}, {4, 17}, {6, 12},
                              {1, 128}, {1, 129}, {8, 16}, {10, 13}, {20, 25}};
  std::vector<Sizes> all;
  for (const auto& [width, height] : pairs) {
    all.emplace_back();
    all.back().set("width", width);
    all.back().set("height", height);
  }
  return all;
}

} // namespace zelmtest

#endif
