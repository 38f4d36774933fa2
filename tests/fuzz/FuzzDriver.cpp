// Runs a target over the files of a folder and over seeded mutations of them, the same ones every
// time: fuzz_<name> FOLDER COUNT.

#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <span>
#include <string>
#include <vector>

namespace {

constexpr std::array<std::string_view, 16> tokens{"{",         "}",          "[",
                                                  "]",         "\"",         ":",
                                                  ",",         "null",       "true",
                                                  "-0.0",      "1e308",      "9223372036854775808",
                                                  R"(\ud83d)", R"("id":1,)", "\xEF\xBB\xBF",
                                                  "\xFF"};

class Mutator {
public:
    explicit Mutator(const std::vector<std::string>& corpus) : corpus_(corpus) {}

    std::string next() {
        std::string text = corpus_[below(corpus_.size())];
        for (std::size_t count = 1 + below(3); count > 0; --count) {
            mutate(text);
        }
        return text;
    }

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }

    void mutate(std::string& text) {
        const std::size_t place = below(text.size() + 1);
        const std::size_t length = below(std::min<std::size_t>(text.size() - place, 64) + 1);
        switch (below(10)) {
        case 0:
            text.erase(place, length);
            break;
        case 1:
            text.insert(place, text.substr(place, length));
            break;
        case 2:
            text.insert(place, tokens.at(below(tokens.size())));
            break;
        case 3:
            text.replace(place, length, tokens.at(below(tokens.size())));
            break;
        case 4:
            text.resize(place);
            break;
        case 5:
            for (char& character : std::span(text).subspan(place, length)) {
                character = static_cast<char>(character ^ (1 << below(8)));
            }
            break;
        default: // leaves the text well formed more often than not
            changeDigit(text, place);
        }
    }

    void changeDigit(std::string& text, std::size_t place) {
        const std::size_t digit = text.find_first_of("0123456789", place);
        if (digit != std::string::npos) {
            text[digit] = static_cast<char>('0' + below(10));
        }
    }

    const std::vector<std::string>& corpus_;
    std::mt19937_64 random_;
};

std::vector<std::string> read(const char* folder) {
    std::vector<std::filesystem::path> files(std::filesystem::directory_iterator(folder), {});
    std::ranges::sort(files);
    std::vector<std::string> texts;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        texts.emplace_back(std::istreambuf_iterator<char>(stream),
                           std::istreambuf_iterator<char>());
    }
    return texts;
}

void run(std::string_view text) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(text.data()), text.size());
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::span words(arguments, static_cast<std::size_t>(argumentCount));
    const std::string_view count = words.size() == 3 ? words[2] : "";
    std::size_t mutations = 0;
    if (std::from_chars(count.begin(), count.end(), mutations).ptr != count.end() ||
        count.empty()) {
        std::fputs("usage: fuzz_<name> FOLDER COUNT\n", stderr);
        return 2;
    }
    const std::vector<std::string> corpus = read(words[1]);
    std::ranges::for_each(corpus, run);
    Mutator mutator(corpus);
    while (mutations-- > 0) {
        run(mutator.next());
    }
    return corpus.empty() ? 1 : 0;
}
