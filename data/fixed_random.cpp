// SPDX-License-Identifier: GPL-3.0-or-later
#define OPENSSL_API_COMPAT 0x10101000L // a random source of one's own is set as in version 1.1
#include "data/fixed_random.h"

#include <openssl/rand.h>

#include <algorithm>
#include <random>

namespace {

int draw(unsigned char* bytes, int count)
{
    static std::mt19937 sequence; // its numbers are laid down by the language
    std::generate_n(bytes, count, [] { return static_cast<unsigned char>(sequence()); });
    return 1;
}

int isSeeded()
{
    return 1;
}

} // namespace

void drawFromFixedSequence()
{
    static const RAND_METHOD method{nullptr, draw, nullptr, nullptr, draw, isSeeded};
    RAND_set_rand_method(&method);
}
