// Sound inputs to broken ones: bits and bytes changed, pieces cut out, doubled or moved, numbers put in that a reader
// may not foresee. Must not know what an input means.
#pragma once

#include <random>
#include <string>

namespace tarvane::fuzz {

using Random = std::mt19937_64;

/// A number from 0 to `end` - 1; 0 for an `end` of 0.
std::size_t below(Random& random, std::size_t end);

/// One to eight changes of bytes; at times a text of the same or any length that is noise from end to end.
std::string mutatedbytes(std::string input, Random& random);

/// The same for a text of lines and numbers: fields, lines and figures are changed as well.
std::string mutatedtext(std::string input, Random& random);

}  // namespace tarvane::fuzz
