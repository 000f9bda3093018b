// One attempt of the fuzzer, which the suite also makes with random bytes.
#pragma once

#include <cstddef>
#include <cstdint>

/// Ends the process if the solver breaks a promise on the term that the bytes stand for.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
