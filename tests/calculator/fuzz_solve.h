// One attempt of the fuzzer, which the suite also makes with random terms and bytes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace dorvalin {

/// Ends the process if the solver breaks a promise on the term or differs from the plain solver.
/// Returns the term's status.
int TryTerm(std::u16string_view term);

}  // namespace dorvalin

/// Tries the term that the bytes stand for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
