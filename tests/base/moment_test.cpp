#include "base/moment.h"

#include <gtest/gtest.h>

namespace base {
namespace {

TEST(Moment, IsWrittenWithLeadingZerosAndExactToTheHundredthAtTheEndOfTheDay) {
    const Moment moment{2007, 3, 4, 5, 6, 7, 80};
    EXPECT_EQ(moment.stamp(), "070304050607");
    EXPECT_EQ(moment.dateAndTime(), "04.03.2007 05:06:07");
    const Moment before{2007, 3, 4, 23, 59, 59, 980}, after{2007, 3, 4, 23, 59, 59, 990};
    EXPECT_LT(before.sinceMidnight(), after.sinceMidnight());
    EXPECT_LT(after.sinceMidnight(), 86400.0F);
}

}  // namespace
}  // namespace base
