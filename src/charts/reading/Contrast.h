#pragma once
#include "penlode/Color.h"

namespace millichart {
inline penlode::Color ReadableOn(penlode::Color c) {
    return c.R() * 3u + c.G() * 6u + c.B() > 1300u ? penlode::kBlack : penlode::kWhite;
}
} // namespace millichart
