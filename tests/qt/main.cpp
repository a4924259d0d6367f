#include "look/application.h"
#include "look/look.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    look::Application application(argc, argv);
    look::apply(application);
    return RUN_ALL_TESTS();
}
