// SPDX-FileCopyrightText: 2026 Marivox Developers
// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the game's sound effects into the folder named on the command line.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

#include "Recipes.h"
#include "speech/SoundFiles.h"

namespace {

// Near full scale for loudness, with room left for the resampling a sound server may do.
constexpr double kPeak = 0.89;

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: soundgen <output folder>\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    for (const marivox::sound::File& sound : marivox::sound::kFiles) {
        const std::string_view name = marivox::sound::fileName(sound.sound);
        const soundgen::Recipe* recipe = soundgen::recipeFor(name);
        if (recipe == nullptr) {
            std::cerr << "soundgen: no recipe for " << name << "\n";
            return 1;
        }
        const auto image = soundgen::wavImage(soundgen::normalise(recipe->make(), kPeak));
        const auto path = folder / name;
        std::ofstream file(path, std::ios::binary | std::ios::trunc);
        file.write(image.data(), static_cast<std::streamsize>(image.size()));
        if (!file.flush()) {
            std::cerr << "soundgen: cannot write " << path << "\n";
            return 1;
        }
    }
    return 0;
}
