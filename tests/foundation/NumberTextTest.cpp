#include "foundation/NumberText.h"

#include <cfloat>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>

using millichart::FixedText;

TEST(NumberText, WritesWhatPrintfWrites) {
    for (const double value : {0.0, -0.0, 0.05, 0.15, 0.25, 0.5, 1.5, 2.5, 12.6, -12.25, 1e21, DBL_MAX,
                               1.0 / 3.0, static_cast<double>(INFINITY), static_cast<double>(NAN)}) {
        for (const int decimals : {0, 1, 2, 17}) {
            char expected[400];
            std::snprintf(expected, sizeof expected, "%.*f", decimals, value);
            EXPECT_EQ(FixedText(value, decimals), expected);
        }
    }
}
