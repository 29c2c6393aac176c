// The main of a program of properties where there is no fuzzer: kept cases and random ones.

#include "tests/properties/harness.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// So that what the sanitizers find is told with the case, too.
extern "C" const char *__asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "abort_on_error=1:handle_abort=0";
}

namespace {

constexpr char usage[] =
    "usage: PROGRAM [--seed S] [--random N] [CASES...]\n"
    "Runs N cases of random bytes, the first of seed S, the others of those that follow, and the\n"
    "cases in files, which have one a line, in hexadecimal digits.\n";

std::string running; // the arguments to see this case again

void tellCase(int signal) {
    std::fprintf(stderr, "to see it again: %s\n", running.c_str());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

using Input = std::vector<std::uint8_t>;

void run(const Input &input, const std::string &name) {
    running = name;
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

// Short inputs and long ones: opening positions, late ones, full boards and nearly empty ones.
Input randomInput(unsigned seed) {
    std::mt19937 random(seed);
    Input input(1 + random() % (1 + random() % 250));
    std::generate(input.begin(), input.end(), [&random] { return random() % 256; });
    return input;
}

Input fromHexadecimal(const std::string &digits) {
    Input input;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        input.push_back(static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    return input;
}

bool runCases(const std::string &path) {
    std::ifstream file(path);
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (!line.starts_with('#'))
            run(fromHexadecimal(line), path + ", line " + std::to_string(number));
    }
    return number > 0;
}

} // namespace

int main(int argc, char **argv) {
    for (const int signal : {SIGABRT, SIGSEGV, SIGFPE})
        std::signal(signal, tellCase);
    unsigned seed = 1;
    bool good = argc > 1;
    for (int i = 1; i < argc && good; ++i) {
        const std::string option = argv[i];
        if (!option.starts_with("--")) {
            good = runCases(option);
            continue;
        }
        const int value = ++i < argc ? std::atoi(argv[i]) : 0;
        good = value > 0 && (option == "--seed" || option == "--random");
        if (option == "--seed")
            seed = static_cast<unsigned>(value);
        for (int left = option == "--random" ? value : 0; left > 0; --left, ++seed)
            run(randomInput(seed), "--seed " + std::to_string(seed) + " --random 1");
    }
    std::fputs(good ? "no fault\n" : usage, stderr);
    return good ? 0 : 2;
}
