// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/qt/Desktop.h"

// Adapter tests run inside a real application object, on whatever platform the
// environment names (offscreen unless a test sets up a display of its own).
int main(int argc, char** argv) {
    // Listing the tests at build time happens with no display at all.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    marivox::qt::Desktop application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
