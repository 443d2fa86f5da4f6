#pragma once

namespace ADODB {

#if defined(__x86_64__) && defined(__GNUC__)

__attribute__((target("avx"))) inline void emptyHalvesByAvx()
{
    __builtin_ia32_vzeroupper();
}

#endif

// Empties the upper halves of the vector registers, where a processor has them. Qt's qHash (6.4) leaves them
// in use, and until they are empty, processors with AVX take longer for floating-point numbers and short
// copies. Call this before a loop over many values, in the same thread.
inline void emptyUpperRegisters()
{
#if defined(__x86_64__) && defined(__GNUC__)
    static const bool hasAvx = __builtin_cpu_supports("avx") != 0;
    if (hasAvx)
        emptyHalvesByAvx();
#endif
}

} // namespace ADODB
