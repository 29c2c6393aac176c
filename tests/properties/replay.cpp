// The main of a program of properties where there is no fuzzer: kept cases and random ones.

#include "tests/properties/harness.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// So that what the sanitizers find is told with the case, too.
extern "C" const char *__asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "abort_on_error=1:handle_abort=0";
}

namespace {

std::string running; // the arguments to see this case again
int done = 0;

void tellCase(int signal) {
    std::fprintf(stderr, "to see it again: %s\n", running.c_str());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

[[noreturn]] void misused(const std::string &what) {
    std::fprintf(stderr,
                 "%s\nusage: PROGRAM [--only PROPERTY] [--seed S] [--random N] [FILE...]\n"
                 "N cases of random bytes, the first of seed S, the others of those that follow, "
                 "and the cases in files:\nFILE.cases has one a line, in hexadecimal digits, any "
                 "other file is one. The properties:",
                 what.c_str());
    for (const Property &p : properties())
        std::fprintf(stderr, " %s", p.name);
    std::fprintf(stderr, "\n");
    std::exit(2);
}

void run(const std::vector<std::uint8_t> &input, const std::string &name) {
    running = name;
    ++done;
    LLVMFuzzerTestOneInput(input.data(), input.size());
}

// Short inputs and long ones: opening positions, late ones, full boards and nearly empty ones.
std::vector<std::uint8_t> randomInput(unsigned seed, int property) {
    std::mt19937 random(seed);
    std::vector<std::uint8_t> input(1 + random() % (1 + random() % 250));
    std::generate(input.begin(), input.end(), [&random] { return random() % 256; });
    if (property >= 0)
        input.front() = static_cast<std::uint8_t>(property);
    return input;
}

std::vector<std::uint8_t> fromHexadecimal(const std::string &digits) {
    std::vector<std::uint8_t> input;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2)
        input.push_back(static_cast<std::uint8_t>(std::stoi(digits.substr(i, 2), nullptr, 16)));
    return input;
}

void runFile(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    if (!file)
        misused("cannot read " + path);
    if (!path.ends_with(".cases")) {
        run({std::istreambuf_iterator<char>(file), {}}, path);
        return;
    }
    int number = 0;
    for (std::string line; std::getline(file, line);) {
        ++number;
        if (!line.empty() && line.front() != '#')
            run(fromHexadecimal(line), path + ", line " + std::to_string(number));
    }
}

struct Plan {
    int only = -1; // the property, when not all take turns
    unsigned seed = 1;
    int random = 0;
    std::vector<std::string> files;
};

int propertyNamed(const std::string &name) {
    const std::span<const Property> all = properties();
    const auto found =
        std::find_if(all.begin(), all.end(), [&name](const Property &p) { return p.name == name; });
    if (found == all.end())
        misused("no property " + name);
    return static_cast<int>(found - all.begin());
}

Plan readPlan(const std::vector<std::string> &arguments) {
    Plan plan;
    for (auto at = arguments.begin(); at != arguments.end(); ++at) {
        const std::string &option = *at;
        if (!option.starts_with("--")) {
            plan.files.push_back(option);
            continue;
        }
        if (++at == arguments.end())
            misused(option + " needs a value");
        if (option == "--only")
            plan.only = propertyNamed(*at);
        else if (option == "--seed")
            plan.seed = static_cast<unsigned>(std::atoi(at->c_str()));
        else if (option == "--random")
            plan.random = std::atoi(at->c_str());
        else
            misused("no option " + option);
    }
    return plan;
}

} // namespace

int main(int argc, char **argv) {
    for (const int signal : {SIGABRT, SIGSEGV, SIGFPE})
        std::signal(signal, tellCase);
    const Plan plan = readPlan({argv + 1, argv + argc});
    for (const std::string &file : plan.files)
        runFile(file);
    std::string arguments = "--random 1";
    if (plan.only >= 0)
        arguments +=
            std::string(" --only ") + properties()[static_cast<std::size_t>(plan.only)].name;
    for (int i = 0; i < plan.random; ++i) {
        const unsigned seed = plan.seed + static_cast<unsigned>(i);
        run(randomInput(seed, plan.only), arguments + " --seed " + std::to_string(seed));
    }
    if (done == 0)
        misused("nothing to run");
    std::fprintf(stderr, "%d cases, no fault\n", done);
    return 0;
}
