// What a fuzz target claims of every input: a claim that fails stops the run, and libFuzzer keeps the input.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace brevant {

inline void MustHold(bool claim, const char* words) {
  if (claim) return;
  std::fprintf(stderr, "does not hold: %s\n", words);
  std::abort();
}

}  // namespace brevant
