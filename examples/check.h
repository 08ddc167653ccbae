// Calls of the library that have no reason to fail.
#ifndef CHECK_H
#define CHECK_H

#include <stdexcept>
#include <string>
#include <zelm.h>

inline void check(ZelStatus status, const char* function) {
  if (status != zelStatusOk)
    throw std::runtime_error(std::string(function) + ": status " + std::to_string(status));
}

#endif
