// The main of a program of properties where there is no fuzzer: kept cases and random ones.

#include "tests/properties/harness.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>

#include <csignal>
#include <cstdio>
#include <random>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

// So that what the sanitizers find is told with the case, too.
extern "C" const char *__asan_default_options() { // NOLINT(bugprone-reserved-identifier)
    return "abort_on_error=1:handle_abort=0";
}

namespace {

std::string running; // the arguments to see this case again

void tellCase(int signal) {
    std::fprintf(stderr, "to see it again: %s\n", running.c_str());
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void run(const std::string &input, const std::string &name) {
    running = name;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
}

// Short inputs and long ones: opening positions, late ones, full boards and nearly empty ones.
std::string randomInput(unsigned seed) {
    std::mt19937 random(seed);
    std::string input(1 + random() % (1 + random() % 250), '\0');
    std::generate(input.begin(), input.end(), [&random] { return random() % 256; });
    return input;
}

void runCases(const QString &path) {
    QFile file(path);
    want(file.open(QFile::ReadOnly), "no such file of cases", path.toStdString());
    for (int number = 1; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine();
        if (!line.startsWith('#'))
            run(QByteArray::fromHex(line).toStdString(),
                path.toStdString() + ", line " + std::to_string(number));
    }
}

} // namespace

int main(int argc, char **argv) {
    for (const int signal : {SIGABRT, SIGSEGV, SIGFPE})
        std::signal(signal, tellCase);
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions(
        {{"random", "Runs so many random cases.", "count", "0"},
         {"seed", "The seed of the first; the others have those after it.", "s", "1"}});
    parser.addPositionalArgument("file", "Cases, one a line, in hexadecimal digits.", "[file...]");
    parser.process(application);
    for (const QString &path : parser.positionalArguments())
        runCases(path);
    const unsigned seed = parser.value("seed").toUInt();
    for (unsigned i = seed; i < seed + parser.value("random").toUInt(); ++i)
        run(randomInput(i), "--random 1 --seed " + std::to_string(i));
    std::fputs(running.empty() ? "no cases\n" : "no fault\n", stderr);
    return running.empty() ? 2 : 0;
}
