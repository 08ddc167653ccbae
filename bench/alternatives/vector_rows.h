// The rows of the vector alternatives: WHO does dotBoth, dotSingle, norm, scaledSum, combination, sum, difference,
// crossBoth and crossSingle.
using bench::repeat;
using bench::Role;

// clang-format off
#define LENGTHS(form, type, pass, T)                                            \
    {form "/" type "/3",   WHO, Role::alternative, repeat<pass<T, 3>>},         \
    {form "/" type "/4",   WHO, Role::alternative, repeat<pass<T, 4>>},         \
    {form "/" type "/5",   WHO, Role::alternative, repeat<pass<T, 5>>},         \
    {form "/" type "/6",   WHO, Role::alternative, repeat<pass<T, 6>>},         \
    {form "/" type "/16",  WHO, Role::alternative, repeat<pass<T, 16>>},        \
    {form "/" type "/100", WHO, Role::alternative, repeat<pass<T, 100>>},       \
    {form "/" type "/1000", WHO, Role::alternative, repeat<pass<T, 1000>>}
#define SINGLES(form, type, pass, T)                                            \
    {form "/" type "/3",      WHO, Role::alternative, repeat<pass<T, 3>>},      \
    {form "/" type "/1000",   WHO, Role::alternative, repeat<pass<T, 1000>>},   \
    {form "/" type "/100000", WHO, Role::alternative, repeat<pass<T, 100000>>}

const bench::Row rows[] = {
    LENGTHS("DotProduct/vava", "32f", dotBoth,   float),
#ifndef BENCH_FEW
    LENGTHS("DotProduct/vava", "64f", dotBoth,   double),
    LENGTHS("DotProduct/vav",  "32f", dotSingle, float),
    LENGTHS("DotProduct/vav",  "64f", dotSingle, double),
    LENGTHS("L2Norm/va",       "32f", norm,      float),
    LENGTHS("L2Norm/va",       "64f", norm,      double),
    LENGTHS("Saxpy/vava",      "32f", scaledSum, float),
    LENGTHS("Saxpy/vava",      "64f", scaledSum, double),
    LENGTHS("LComb/vava",      "32f", combination, float),
    LENGTHS("LComb/vava",      "64f", combination, double),
    LENGTHS("Add/vava",        "32f", sum,         float),
    LENGTHS("Add/vava",        "64f", sum,         double),
    LENGTHS("Sub/vav",         "32f", difference,  float),
    LENGTHS("Sub/vav",         "64f", difference,  double),
    SINGLES("DotProduct/vv",   "32f", dotBoth,   float),
    SINGLES("DotProduct/vv",   "64f", dotBoth,   double),
    SINGLES("L2Norm/v",        "32f", norm,      float),
    SINGLES("L2Norm/v",        "64f", norm,      double),
    SINGLES("Saxpy/vv",        "32f", scaledSum, float),
    SINGLES("Saxpy/vv",        "64f", scaledSum, double),
    {"CrossProduct/vava/32f/3", WHO, Role::alternative, repeat<crossBoth<float>>},
    {"CrossProduct/vava/64f/3", WHO, Role::alternative, repeat<crossBoth<double>>},
    {"CrossProduct/vav/32f/3",  WHO, Role::alternative, repeat<crossSingle<float>>},
    {"CrossProduct/vav/64f/3",  WHO, Role::alternative, repeat<crossSingle<double>>},
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
