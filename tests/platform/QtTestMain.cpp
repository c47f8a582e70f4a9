#include <gtest/gtest.h>

#include <QApplication>

// Adapter tests run inside a real application object, on whatever platform the
// environment names (offscreen unless a test sets up a display of its own).
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
