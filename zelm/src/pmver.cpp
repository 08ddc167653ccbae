// The version record.
#include <zelm.h>

static const ZelLibVersion version = {
    6, 1, 137, 778, {'n', '8', '\0', '\0'}, "libzelmn8.so.6.1", "6.1 build 137.56", "Mar 17 2010"};

extern "C" const ZelLibVersion* zelmGetLibVersion(void) {
  return &version;
}
