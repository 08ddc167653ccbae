/* The least that shows which library a program is linked with. */
#include <stdio.h>
#include <zelm.h>

int main(void) {
  const ZelLibVersion* version = zelmGetLibVersion();
  printf("%s\n", version->version);
  return version->major != 6 || version->minor != 1;
}
