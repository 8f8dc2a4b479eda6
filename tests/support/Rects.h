#pragma once

#include "penlode/Geometry.h"

#include <gtest/gtest.h>

/// Equal but for what sines and cosines round away.
inline void ExpectNear(const penlode::RectF& actual, const penlode::RectF& expected) {
    EXPECT_NEAR(actual.X, expected.X, 1e-4F);
    EXPECT_NEAR(actual.Y, expected.Y, 1e-4F);
    EXPECT_NEAR(actual.Width, expected.Width, 1e-4F);
    EXPECT_NEAR(actual.Height, expected.Height, 1e-4F);
}
