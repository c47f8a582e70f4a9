// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "fake/Rig.h"
#include "model/Ships.h"

// The whole system over the fakes: scene scripts (the .scene files here, their commands told
// in README.md) played and compared with the stored .transcript files.
namespace marivox {
namespace {

namespace fs = std::filesystem;
using fake::keyCode;
using fake::kMenu;
using fake::Rig;

std::pair<int, int> cellNamed(const std::string& name) {
    return std::regex_match(name, std::regex("[A-I][1-9]"))
               ? std::pair(name[0] - 'A' + 1, name[1] - '0')
               : throw std::invalid_argument("not a cell: " + name);
}

// A cell as scripts draw it: '.' open water, 'x' water fired at, a ship's letter, in lower
// case once hit.
std::int16_t codeOf(char symbol) {
    const auto ship = shipWithLetter(std::string(1, static_cast<char>(std::toupper(symbol))));
    return ship ? (std::islower(symbol) ? shipInfo(*ship).hitCode : shipInfo(*ship).intactCode)
                : static_cast<std::int16_t>(symbol == '.');
}

// The text of a line that writes a cell's text, or "".
std::string cellText(const std::vector<std::string>& lines, std::size_t i) {
    const bool cell = i < lines.size() && lines[i].starts_with("grid ") &&
                      std::isdigit(lines[i][5]) && lines[i].find(',') == 6;
    return cell ? lines[i].substr(lines[i].find(' ', 5)) : "";
}

struct Scene {
    // Each command, then what the program did in answer. Three or more cell texts written
    // one after another are one line, n of one text in a row shown as "<text>"*n.
    void command(const std::string& line) {
        out += "> " + line + "\n";
        std::istringstream words(line);
        std::string verb, rest;
        std::getline(words >> verb >> std::ws, rest);
        run(verb, rest);
        const auto& lines = rig->t.lines;
        for (std::size_t i = shown, end = i; i < lines.size(); i = end - i < 3 ? i + 1 : end) {
            std::string texts;
            for (end = i; !cellText(lines, end).empty();) {
                const std::size_t from = end;
                while (cellText(lines, end) == cellText(lines, from)) {
                    ++end;
                }
                texts += cellText(lines, from) +
                         (end - from > 1 ? "*" + std::to_string(end - from) : "");
            }
            out += "  " +
                   (end - i < 3 ? lines[i]
                                : "grid " + lines[i].substr(5, 3) + ".." +
                                      lines[end - 1].substr(5, 3) + texts) +
                   "\n";
        }
        shown = lines.size();
    }

    void run(const std::string& verb, const std::string& rest) {
        Rig& r = *rig;
        std::istringstream words(rest);
        std::string word;
        int number = 1;
        if (verb == "seed") {
            rig = std::make_unique<Rig>(std::stoull(rest));
            shown = 0;
        } else if (verb == "restart") {  // a new run of the program, with the same settings
            auto kept = std::move(r.settings.stored);
            rig = std::make_unique<Rig>();
            rig->settings.stored = std::move(kept);
            shown = 0;
        } else if (verb == "desktop") {  // desktop high contrast
            r.window.desktopAsksHighContrast = true;
        } else if (verb == "setting") {  // setting <key> "<text>"
            words >> word;
            r.settings.stored[word] = rest.substr(word.size() + 2, rest.size() - word.size() - 3);
        } else if (verb == "stored") {
            r.settings.stored.clear();
            if (rest != "nothing") {
                r.settings.stored[Rig::kReaderSetting] = rest.substr(1, rest.size() - 2);
            }
        } else if (verb == "platform") {  // platform linux|windows, before the start
            r.app.runsOn = r.system.reader.platform =
                rest == "windows" ? Platform::Windows : Platform::Linux;
        } else if (verb == "start") {
            r.system.Main();
        } else if (verb == "key") {  // key [Alt+|Ctrl+]<name>
            const std::size_t plus = rest.find('+');
            const std::string held = plus == rest.npos ? "" : rest.substr(0, plus);
            const std::string key = rest.substr(plus == rest.npos ? 0 : plus + 1);
            r.window.press(keyCode(key), held == "Alt"    ? ShiftState::Alt
                                         : held == "Ctrl" ? ShiftState::Control
                                                          : 0);
        } else if (verb == "move" || verb == "click") {
            const auto [row, col] = cellNamed(rest);
            verb == "move" ? r.window.board.playerMovesTo(row, col)
                           : r.window.board.playerClicks(row, col);
        } else if (verb == "describe") {  // as assistive technology asks for a cell's name
            const auto [row, col] = cellNamed(rest);
            r.t.record("described " + fake::quoted(r.window.board.describer(
                                          row, col, r.window.board.textMatrix(row, col))));
        } else if (verb == "menu") {
            (r.system.screen.*kMenu.at(rest))();
        } else if (verb == "close") {
            r.window.unload();
        } else if (verb == "sounds") {  // sounds late [<length in ms>], sounds begin
            rest == "begin"  ? r.wav.begin()
            : rest == "late" ? void(r.wav.late = true)
                             : void(r.wav.length = std::stoll(rest.substr(5)));
        } else if (verb == "speech") {
            rest == "late" ? void(r.readers.late = true) : r.readers.answer();
        } else if (verb == "wait") {
            r.timers.advance(std::stoll(rest));
        } else if (verb == "answer") {
            while (words >> word) {
                r.boxes.answers.push_back(word == "yes" ? MsgBoxAnswer::Yes : MsgBoxAnswer::No);
            }
        } else if (verb == "dialog") {
            while (words >> word) {
                const bool ok = word == "ok" && words >> word;
                r.dialog.steps.push_back(!ok              ? fake::FakeReaderDialog::kCloseBox
                                         : word == "none" ? ReaderDialog::kNoSelection
                                                          : std::stoi(word));
            }
        } else if (verb == "fail") {  // fail [occurrence|every] [std] <start of the line>
            const bool every = rest.starts_with("every ");
            std::string prefix =
                std::isdigit(rest[0]) || every ? rest.substr(rest.find(' ') + 1) : rest;
            const bool standard = prefix.starts_with("std ");
            r.t.armed.push_back({prefix.substr(standard ? 4 : 0),
                                 std::isdigit(rest[0]) ? std::stoi(rest) : 1, standard ? 0 : 1234,
                                 every});
        } else if (verb == "ocean") {
            layOcean(rest == "hal" ? r.state().HalOcean : r.state().MyOcean, rest == "hal");
        } else if (verb == "aim") {
            std::tie(r.state().HalRow, r.state().HalCol) = cellNamed(rest);
        } else if (verb == "set") {  // set GameInProgress|Shooting <value>, set helpFile ""
            words >> word >> number;
            std::int16_t& flag = word == "Shooting" ? r.state().Shooting : r.state().GameInProgress;
            flag = word == "helpFile" ? flag : static_cast<std::int16_t>(number);
            r.app.help = word == "helpFile" ? "" : r.app.help;
        } else if (verb == "wav") {
            r.wav.busyUntil = r.sleeper.slept + std::chrono::milliseconds(std::stoll(rest));
        } else {
            throw std::invalid_argument("unknown command: " + verb);
        }
    }

    // The script's next nine lines are the ocean's rows; that side's tallies follow the hits.
    void layOcean(Ocean& ocean, bool computers) {
        GameState& s = rig->state();
        std::string line;
        for (int row = 1; row <= 9 && std::getline(script, line); ++row) {
            out += "  " + line + "\n";
            for (int col = 1; col <= 9; ++col) {
                ocean.set(row, col, codeOf(line.at(static_cast<std::size_t>(col - 1))));
            }
        }
        auto [hits, sunk, sunkCount] = computers ? std::tie(s.MyHits, s.MySunk, s.MySunkCount)
                                                 : std::tie(s.HalHits, s.HalSunk, s.HalSunkCount);
        sunkCount = 0;
        for (const ShipInfo& ship : kShips) {
            hits[ship.type] = 0;
            for (int cell = 0; cell < 81; ++cell) {
                hits[ship.type] += ocean(cell / 9 + 1, cell % 9 + 1) == ship.hitCode;
            }
            sunk[ship.type] = hits[ship.type] == ship.length ? kTrue : kFalse;
            sunkCount += hits[ship.type] == ship.length;
        }
    }

    std::istream& script;
    std::unique_ptr<Rig> rig = std::make_unique<Rig>();
    std::string out;
    std::size_t shown = 0;
};

// Plays every scene of a script, each on a program of its own; `unused` gets the title of
// each scene that left a failure, answer or dialog step unused.
std::string play(std::istream& script, std::string& unused) {
    std::string transcript, title;
    std::unique_ptr<Scene> scene;
    const auto finish = [&] {
        const Rig* r = scene ? scene->rig.get() : nullptr;
        const bool armed = r && std::any_of(r->t.armed.begin(), r->t.armed.end(),
                                            [](auto& failure) { return !failure.met; });
        if (armed || (r && (!r->boxes.answers.empty() || !r->dialog.steps.empty()))) {
            unused += title + "; ";
        }
        transcript += scene ? scene->out : "";
    };
    for (std::string line; std::getline(script, line);) {
        if (line.starts_with("== ")) {
            finish();
            title = line.substr(3);
            scene.reset(new Scene{script, std::make_unique<Rig>(), line + "\n"});
        } else if (!line.empty() && !line.starts_with("#")) {
            scene->command(line);
        }
    }
    finish();
    return transcript;
}

const fs::path kFolder = MARIVOX_GOLDEN_DIR;

std::set<std::string> sceneFiles() {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(kFolder)) {
        names.insert(entry.path().extension() == ".scene" ? entry.path().stem().string() : "");
    }
    names.erase("");
    return names;
}

class Golden : public ::testing::TestWithParam<std::string> {};

// Every scene must sound as stored, and use every failure and answer it arms. After a
// deliberate change, MARIVOX_UPDATE_GOLDEN=1 rewrites the transcripts.
TEST_P(Golden, PlaysAsStored) {
    const fs::path stored = kFolder / (GetParam() + ".transcript");
    std::ifstream script(kFolder / (GetParam() + ".scene"));
    std::string unused;
    const std::string transcript = play(script, unused);
    EXPECT_EQ(unused, "") << "scenes with failures or answers unused";
    if (std::getenv("MARIVOX_UPDATE_GOLDEN") != nullptr) {
        std::ofstream(stored, std::ios::binary) << transcript;
    }
    std::ifstream file(stored, std::ios::binary);
    if (std::string{std::istreambuf_iterator<char>(file), {}} != transcript) {
        const fs::path actual = fs::absolute(GetParam() + ".actual");
        std::ofstream(actual, std::ios::binary) << transcript;
        const std::string diff = "diff -u '" + stored.string() + "' '" + actual.string() + "'";
        ASSERT_NE(std::system((diff + " | head -n 300").c_str()), -1);
        FAIL() << "the scenes no longer play as stored (diff above): " << diff;
    }
}

INSTANTIATE_TEST_SUITE_P(Scenes, Golden, ::testing::ValuesIn(sceneFiles()),
                         [](const auto& info) { return info.param; });

}  // namespace
}  // namespace marivox
