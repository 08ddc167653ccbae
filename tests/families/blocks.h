// Batches of every count up to some blocks of objects, for families that put one object into a lane.
#ifndef ZELMTEST_BLOCKS_H
#define ZELMTEST_BLOCKS_H

#include "../harness/run.h"

#include <gtest/gtest.h>

namespace zelmtest {

// By rows, by columns with and without gaps, and side by side; sides with and without code of their own.
inline void checkBlocks() {
  constexpr Spread spreads[] = {Spread::Packed, Spread::Columns, Spread::Interleaved, Spread::ObjectsInside};
  for (const Member& m : members())
    for (int32_t count = 1; m.hasCount && count <= 40; ++count)
      for (Spread spread : spreads)
        for (int side : {2, 3 + count % 4, 7 + count % 6}) {
          CaseSpec spec;
          spec.id = "blocks";
          spec.sizes = m.square(side, count);
          spec.plans.assign(m.operands.size(), Plan{});
          for (Plan& plan : spec.plans)
            plan.spread = spread;
          spec.dataKind = m.family->dataKinds[static_cast<size_t>(count + side) % m.family->dataKinds.size()];
          spec.seed = static_cast<uint64_t>(count);
          ASSERT_EQ(runCase(m, spec), "") << m.name << " side " << side << " count " << count;
        }
}

} // namespace zelmtest

#endif
