#include "suite/application.h"
#include "suite/look.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    suite::Application application(argc, argv);
    suite::apply();
    return RUN_ALL_TESTS();
}
