// Entry reports: the linker sends every reference to a kernel or front `name` to `__wrap_name` (its option --wrap),
// which tells zelmtestEntered and goes on to the function. The library is the one that is shipped, to the instruction.
//
// Arguments are in registers and on the stack; the stack stays as it is, the registers are saved around the report.
asm(R"(
        .text
        .type zelmtestReport, @function
zelmtestReport:                                 # the name is in rax; the stack is a multiple of 16 here
        .cfi_startproc
        .cfi_def_cfa_offset 16
        push %rdi
        push %rsi
        push %rdx
        push %rcx
        push %r8
        push %r9
        sub $128, %rsp
        .cfi_def_cfa_offset 192
        movups %xmm0, (%rsp)
        movups %xmm1, 16(%rsp)
        movups %xmm2, 32(%rsp)
        movups %xmm3, 48(%rsp)
        movups %xmm4, 64(%rsp)
        movups %xmm5, 80(%rsp)
        movups %xmm6, 96(%rsp)
        movups %xmm7, 112(%rsp)
        mov %rax, %rdi
        call zelmtestEntered
        movups (%rsp), %xmm0
        movups 16(%rsp), %xmm1
        movups 32(%rsp), %xmm2
        movups 48(%rsp), %xmm3
        movups 64(%rsp), %xmm4
        movups 80(%rsp), %xmm5
        movups 96(%rsp), %xmm6
        movups 112(%rsp), %xmm7
        add $128, %rsp
        pop %r9
        pop %r8
        pop %rcx
        pop %rdx
        pop %rsi
        pop %rdi
        .cfi_def_cfa_offset 16
        ret
        .cfi_endproc

        .macro ENTRY name
        .globl __wrap_\name
        .type __wrap_\name, @function
        .pushsection .rodata
1:      .asciz "\name"
        .popsection
__wrap_\name:
        .cfi_startproc
        lea 1b(%rip), %rax
        call zelmtestReport
        jmp __real_\name
        .cfi_endproc
        .endm

        .include "entries.inc"
)");

// The query of the cache size and the choice of a team, replaced in the same way.
#include "paths.h"

extern "C" void __real_zelGetMaxCacheSizeB(int32_t* bytes);
extern "C" void __wrap_zelGetMaxCacheSizeB(int32_t* bytes);
extern "C" void __wrap_zelGetMaxCacheSizeB(int32_t* bytes) {
  ++zelmtest::cacheQueries;
  if (zelmtest::cacheSize == zelmtest::systemsCache)
    __real_zelGetMaxCacheSizeB(bytes);
  else if (zelmtest::cacheSize != 0) // as a system that cannot tell
    *bytes = zelmtest::cacheSize;
}

extern "C" int32_t __real_ownGetTeamSize(int32_t threads, double additions);
extern "C" int32_t __wrap_ownGetTeamSize(int32_t threads, double additions);
extern "C" int32_t __wrap_ownGetTeamSize(int32_t threads, double additions) {
  const int32_t chosen = __real_ownGetTeamSize(threads, additions);
  if (zelmtest::teamSize == zelmtest::librarysChoice)
    return chosen;
  return threads < zelmtest::teamSize ? threads : zelmtest::teamSize;
}
