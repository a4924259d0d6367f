#include "look/look.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    look::apply(application);
    return RUN_ALL_TESTS();
}
