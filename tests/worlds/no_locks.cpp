// To be loaded in front of the C library: folders that can't be locked, as on many network shares.

#include <cerrno>

extern "C" int flock(int, int) {
  errno = ENOLCK;
  return -1;
}
