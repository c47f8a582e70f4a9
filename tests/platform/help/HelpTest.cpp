// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>
#include <signal.h>

#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTextDocument>
#include <chrono>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <thread>

#include "platform/qt/help/HelpViewer.h"
#include "platform/qt/help/QtShell.h"
#include "support/Failure.h"

namespace marivox {
namespace {

std::string sourceFile(const std::string& relative) {
    std::ifstream file(std::string(MARIVOX_SOURCE) + "/" + relative);
    std::stringstream text;
    text << file.rdbuf();
    return text.str();
}

TEST(HelpDocument, CoversEveryKeyOfTheReadmeAndEveryLetterOfTheLegend) {
    const std::string help = sourceFile("assets/help/marvox.hlp");
    ASSERT_FALSE(help.empty());
    const std::string readme = sourceFile("README.md");
    const std::regex keyRow(R"(\n\| (Arrow keys|Enter|F2|F1|Ctrl\+N) \|)");
    int keys = 0;
    for (std::sregex_iterator it(readme.begin(), readme.end(), keyRow), end; it != end; ++it) {
        EXPECT_NE(help.find("<td>" + (*it)[1].str() + "</td>"), std::string::npos) << (*it)[1];
        ++keys;
    }
    EXPECT_EQ(keys, 5);
    for (const char* letter : {"M", "A", "B", "C", "D", "P", "S"}) {
        EXPECT_NE(help.find("<tr><td>" + std::string(letter) + "</td>"), std::string::npos)
            << letter;
    }
}

TEST(HelpViewer, ShowsTheDocumentWithTheFocusInItsText) {
    qt::HelpViewer viewer(QString(MARIVOX_SOURCE) + "/assets/help/marvox.hlp");
    EXPECT_EQ(viewer.windowTitle(), "Marivox Help");
    const QString text = viewer.browser()->document()->toPlainText();
    EXPECT_TRUE(text.contains("How a game goes"));
    EXPECT_TRUE(text.contains("Using Marivox with Orca"));
    EXPECT_TRUE(viewer.browser()->textInteractionFlags() & Qt::TextSelectableByKeyboard);
    EXPECT_EQ(viewer.focusWidget(), viewer.browser());
}

TEST(HelpViewer, SaysSoInItsOwnWindowWhenTheDocumentIsMissing) {
    qt::HelpViewer viewer("/nonexistent/marvox.hlp");
    const QString text = viewer.browser()->document()->toPlainText();
    EXPECT_TRUE(text.contains("could not be opened"));
    EXPECT_TRUE(text.contains("/nonexistent/marvox.hlp"));
}

TEST(Shell, OpensTheHelpInTheViewerBesideTheGameWithTheGamesPathAsGiven) {
    qt::QtShell shell(MARIVOX_PROGRAM_FOLDER);
    const std::string file = std::string(MARIVOX_PROGRAM_FOLDER) + "\\marvox.hlp";
    shell.ShellExecute(0, nullptr, file, nullptr, "C:\\", 1);
    const qint64 pid = shell.lastViewer();
    ASSERT_GT(pid, 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    std::ifstream commandLine("/proc/" + std::to_string(pid) + "/cmdline");
    std::string arguments((std::istreambuf_iterator<char>(commandLine)), {});
    ::kill(static_cast<pid_t>(pid), SIGKILL);
    EXPECT_NE(arguments.find("marivox-help"), std::string::npos);
    EXPECT_NE(arguments.find(std::string(MARIVOX_PROGRAM_FOLDER) + "/marvox.hlp"),
              std::string::npos);
}

TEST(Shell, AViewerThatCannotStartIsAShellFailure) {
    QTemporaryDir empty;
    qt::QtShell shell(empty.path().toStdString());
    try {
        shell.ShellExecute(0, nullptr, "/x\\marvox.hlp", nullptr, "C:\\", 1);
        ADD_FAILURE() << "started a viewer that does not exist";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number(), static_cast<int>(FailureNumber::Shell));
    }
}

}  // namespace
}  // namespace marivox
