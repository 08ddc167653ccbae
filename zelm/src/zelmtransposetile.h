// The kernels that transpose a matrix of any size whose rows are contiguous. Steps are bytes between rows, sizes those
// of the source.
#pragma once

#include "zelmoperand.h"

extern "C" {

// 32f and 64f: 4-byte and 8-byte units. The first streams the result past the caches where `streams` says so or the
// matrix alone is larger than the largest cache.
void ownm_Transpose_32s(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width, int32_t height,
                        bool streams);
void ownm_iTranspose_16u_C4R_M7(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width,
                                int32_t height);

// One tile of `rows` rows, with ordinary stores and past the caches.
void owniTranspose_32s_asm(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width, int32_t rows);
void owniTranspose_32s_NT(const char* src, int64_t srcStep, char* dst, int64_t dstStep, int32_t width, int32_t rows);

} // extern "C"

namespace zelm {

// In bytes; 0 if the system does not tell.
int32_t largestCache();

} // namespace zelm
