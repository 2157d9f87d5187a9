// SPDX-License-Identifier: GPL-3.0-or-later
// SPDX-FileCopyrightText: 2026 The Quindar developers
#pragma once

// A seeded mutation loop for the fuzz programs: each run starts from seed inputs, changes them
// at random (bytes flipped, inserted, deleted, pieces of a dictionary and of other inputs
// spliced in), and hands every result to the target, for a number of rounds or a time. The same
// seed gives the same inputs, so a failure found in CI can be run again.
//   PROGRAM [--seconds N] [--rounds N] [--seed N]
// A crash, a sanitizer report or a hang (the CI step's time limit) is the finding; the target
// itself checks what it can and returns false on a broken promise, which ends the run with 1.

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace quindar::fuzz {

struct Settings {
    double seconds = 0;
    long rounds = 2000;
    unsigned seed = 1;
};

inline Settings parse_settings(int argc, char **argv) {
    Settings settings;
    for (int i = 1; i + 1 < argc; i += 2) {
        if (std::strcmp(argv[i], "--seconds") == 0) {
            settings.seconds = std::atof(argv[i + 1]);
            settings.rounds = 0;
        } else if (std::strcmp(argv[i], "--rounds") == 0) {
            settings.rounds = std::atol(argv[i + 1]);
        } else if (std::strcmp(argv[i], "--seed") == 0) {
            settings.seed = static_cast<unsigned>(std::strtoul(argv[i + 1], nullptr, 10));
        }
    }
    return settings;
}

class Mutator {
public:
    Mutator(unsigned seed, std::vector<std::string> seeds, std::vector<std::string> dictionary)
        : random(seed), corpus(std::move(seeds)), words(std::move(dictionary)) {}

    // A new input: a seed or an earlier input, changed one to eight times.
    std::string next() {
        std::string text = corpus[pick(corpus.size())];
        const int changes = 1 + static_cast<int>(pick(8));
        for (int k = 0; k < changes; ++k) change(text);
        // Interesting inputs are kept to grow from, within a bound.
        if (corpus.size() < 512 && pick(4) == 0) corpus.push_back(text);
        return text;
    }

private:
    std::size_t pick(std::size_t n) {
        return n == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    }

    char any_byte() {
        static constexpr std::string_view kLikely = "0123456789.+-*/^%!()[]{},=<>ie \t\r\n#;\"";
        if (pick(3) == 0) return static_cast<char>(pick(256));
        return kLikely[pick(kLikely.size())];
    }

    void change(std::string &text) {
        const std::size_t at = pick(text.size() + 1);
        switch (pick(7)) {
            case 0:
                if (!text.empty()) text[pick(text.size())] = any_byte();
                break;
            case 1:
                text.insert(at, 1, any_byte());
                break;
            case 2:
                if (!text.empty()) text.erase(pick(text.size()), 1 + pick(8));
                break;
            case 3:
                text.insert(at, words[pick(words.size())]);
                break;
            case 4: {
                const std::string &other = corpus[pick(corpus.size())];
                const std::size_t from = pick(other.size() + 1);
                text.insert(at, other.substr(from, pick(64)));
                break;
            }
            case 5:
                // Long runs find fixed buffers.
                text.insert(at, std::string(1 + pick(2048), any_byte()));
                break;
            default:
                if (!text.empty()) {
                    const std::size_t from = pick(text.size());
                    text.insert(at, text.substr(from, pick(32)));
                }
                break;
        }
        if (text.size() > 65536) text.resize(65536);
    }

    std::mt19937 random;
    std::vector<std::string> corpus;
    std::vector<std::string> words;
};

// Runs target over mutated inputs; 0 when every call kept its promises.
inline int run(int argc, char **argv, const char *name, std::vector<std::string> seeds,
               std::vector<std::string> dictionary,
               const std::function<bool(const std::string &)> &target) {
    const Settings settings = parse_settings(argc, argv);
    Mutator mutator(settings.seed, seeds, std::move(dictionary));
    for (const std::string &seed : seeds)
        if (!target(seed)) {
            std::fprintf(stderr, "%s: a seed input broke a promise\n", name);
            return 1;
        }
    const auto start = std::chrono::steady_clock::now();
    long round = 0;
    for (;; ++round) {
        if (settings.rounds > 0 && round >= settings.rounds) break;
        if (settings.rounds == 0 && (round % 16) == 0) {
            const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
            if (elapsed.count() >= settings.seconds) break;
        }
        const std::string input = mutator.next();
        if (!target(input)) {
            std::fprintf(stderr, "%s: round %ld (seed %u) broke a promise\n", name, round,
                         settings.seed);
            return 1;
        }
    }
    std::printf("%s: %ld inputs, seed %u\n", name, round, settings.seed);
    return 0;
}

}  // namespace quindar::fuzz
