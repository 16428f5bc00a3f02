#include "model/polar.h"

#include <gtest/gtest.h>

using namespace bosquel;

TEST(Polar, ACeroGradosNoEntraTrigonometria) {
    EXPECT_EQ(PolarX(1000, 0, 100), 1100.0F);
    EXPECT_EQ(PolarY(1000, 0, 100), 1000.0F);
}

TEST(Polar, LosAngulosPositivosSubenEnLaPantalla) {
    EXPECT_EQ(PolarY(1000, 90, 100), 900.0F);
    EXPECT_EQ(PolarY(1000, -90, 100), 1100.0F);
}

TEST(Polar, ANoventaGradosElCosenoDejaSuResto) {
    EXPECT_NE(PolarX(0, 90, 100), 0.0F);
    EXPECT_LT(PolarX(0, 90, 100), 1e-10F);
}
