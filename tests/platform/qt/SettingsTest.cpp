// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "platform/qt/QtSettingsStore.h"
#include "support/Failure.h"

namespace marivox {
namespace {

class SettingsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(home.isValid());
        ::setenv("XDG_CONFIG_HOME", home.path().toUtf8().constData(), 1);
    }
    std::string file() const { return home.path().toStdString() + "/Marivox/Marivox.conf"; }

    QTemporaryDir home;
    qt::QtSettingsStore store;
};

TEST_F(SettingsTest, ValuesRoundTripExactlyAndMissingOnesReadAsTheDefault) {
    EXPECT_EQ(store.GetSetting("Marivox", "StartUp", "Reader", "None"), "None");
    for (const char* value : {"JFW", " WE ", "", "we;=\"[x]\" \xc3\xa9"}) {
        store.SaveSetting("Marivox", "StartUp", "Reader", value);
        EXPECT_EQ(store.GetSetting("Marivox", "StartUp", "Reader", "None"), value);
    }
    std::ifstream written(file());
    EXPECT_TRUE(written.good());
}

TEST_F(SettingsTest, UnwritableStoreIsAFailureNotASilentLoss) {
    // A file where the settings folder should be: nothing can be written below it.
    std::ofstream(home.path().toStdString() + "/Marivox") << "not a folder";
    try {
        store.SaveSetting("Marivox", "StartUp", "Reader", "WE");
        ADD_FAILURE() << "saved into a store that cannot hold it";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), static_cast<int>(FailureNumber::SettingsStore));
        EXPECT_NE(failure.description().find("Marivox.conf"), std::string::npos);
    }
}

TEST_F(SettingsTest, DamagedFileReadsAsNoChoiceAndIsSetAsideWholeOnSaving) {
    std::string garbage;
    for (int i = 0; i < 4096; ++i) {
        garbage += static_cast<char>(i % 256);
    }
    QDir().mkpath(home.path() + "/Marivox");
    std::ofstream(file(), std::ios::binary) << garbage;

    EXPECT_EQ(store.GetSetting("Marivox", "StartUp", "Reader", "none"), "none");

    store.SaveSetting("Marivox", "StartUp", "Reader", "WE");
    EXPECT_EQ(store.GetSetting("Marivox", "StartUp", "Reader", ""), "WE");
    std::ifstream aside(file() + ".damaged", std::ios::binary);
    const std::string kept((std::istreambuf_iterator<char>(aside)), {});
    EXPECT_EQ(kept, garbage);
}

}  // namespace
}  // namespace marivox
