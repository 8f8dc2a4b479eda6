#include "charts/reading/Surroundings.h"

#include "support/Rects.h"

#include <gtest/gtest.h>

using penlode::RectF;

TEST(Surroundings, NothingFindsAPlaceBetweenWhatIsOne) {
    const RectF plot{10, 0, 20, 20};
    const RectF longLabel{2, 0, 7, 2};
    const RectF shortLabel{7, 18, 2, 2};
    millichart::Surroundings apart;
    millichart::Surroundings together;
    apart.Add(plot);
    apart.Add(longLabel);
    apart.Add(shortLabel);
    together.Add(plot);
    together.AddAsOne({longLabel, shortLabel});
    together.AddAsOne({});
    EXPECT_EQ(apart.PlaceLeft({3, 4}, 10, 1), (RectF{6, 8, 3, 4})) << "between them, at the plot";
    EXPECT_EQ(together.PlaceLeft({3, 4}, 10, 1), (RectF{-2, 8, 3, 4})) << "beside them";
    EXPECT_EQ(together.All(), (RectF{2, 0, 28, 20}));
}
