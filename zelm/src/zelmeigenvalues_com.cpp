// The arithmetic of EigenValues, once for all layouts.
#include "zelmeigenvalues.h"

namespace zelm {

template ZelStatus valuesOfOne(const Cells<float>&, int32_t, const Cells<float>&, const Cells<float>&);
template ZelStatus valuesOfOne(const Cells<double>&, int32_t, const Cells<double>&, const Cells<double>&);
template void valuesOfBlock(EigenBlock<float>&, int32_t);
template void valuesOfBlock(EigenBlock<double>&, int32_t);

} // namespace zelm
