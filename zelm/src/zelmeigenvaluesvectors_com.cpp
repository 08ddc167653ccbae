// The arithmetic of EigenValuesVectors, EigenValuesVectorsLeft and EigenValuesVectorsRight, once for all layouts.
#include "zelmeigenvectors.h"

namespace zelm {

EIGEN_VECTORS_COMPILED()

} // namespace zelm
