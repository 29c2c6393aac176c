// tavlora-monkey: random users on the real window, and a model that says what must be seen.

#include "platform/qpeapplication.h"
#include "tests/monkey/monkey.h"
#include "tools/common/commandline.h"

#include <QCommandLineParser>

#include <algorithm>
#include <iostream>
#include <iterator>

namespace {

std::string complaints; // the toolkit's

// What the toolkit complains of is a fault, but for what the offscreen platform cannot do.
void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text) {
    if (!text.startsWith("This plugin does not support") && type != QtDebugMsg && type != QtInfoMsg)
        complaints += text.toStdString() + '\n';
}

// The toolkit as every machine has it: no display, no scale, no other language.
void prepareToolkit() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_FONT_DPI", "72");
    for (const char *language : {"LANGUAGE", "LC_ALL", "LANG"})
        qputenv(language, "C");
}

// All rules on all sizes, and all levels.
bool playedEverything(const Tally &tally) {
    const auto isZero = [](int n) { return n == 0; };
    return std::ranges::none_of(tally.searches, isZero) &&
           std::all_of(std::begin(tally.moves), std::end(tally.moves),
                       [&](const auto &bySize) { return std::ranges::none_of(bySize, isZero); });
}

bool runSeed(unsigned seed, int events, const QCommandLineParser &options, Tally &tally) {
    const std::uint64_t hash = Monkey(seed, events, options.isSet("trace"), tally).run();
    std::cout << "seed " << seed << ": " << std::hex << hash << std::dec << std::endl;
    if (!complaints.empty()) {
        std::cerr << "the toolkit complains:\n" << complaints;
        return false;
    }
    Tally ignored;
    if (!options.isSet("twice") || Monkey(seed, events, false, ignored).run() == hash)
        return true;
    std::cerr << "it went another way the second time\n";
    return false;
}

} // namespace

int main(int argc, char **argv) {
    prepareToolkit();
    const QPEApplication application(argc, argv);
    qInstallMessageHandler(takeMessage);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser options;
    options.setApplicationDescription(
        "Works the game's window like random users, and compares the whole state of the game with\n"
        "what it must be after every event. At the first difference it tells the last events and\n"
        "what is broken, and exits with status 1. Equal seeds and events, equal runs.");
    options.addOptions({{"seed", "The first seed.", "n", "1"},
                        {"seeds", "Run so many seeds from there on.", "n", "1"},
                        {"events", "Events a seed.", "n", "2000"},
                        {"all", "Fail unless all rules, sizes and levels were played."},
                        {"twice", "Run each seed twice; it has to go the same way."},
                        {"trace", "Tell every event."}});
    if (const std::optional<int> status = parseCommandLine(options))
        return *status;
    const unsigned first = options.value("seed").toUInt();
    const unsigned seeds = options.value("seeds").toUInt();
    const int events = options.value("events").toInt();
    if (seeds < 1 || events < 1)
        return fail("--seeds and --events want numbers from 1 up");
    Tally tally;
    for (unsigned seed = first; seed < first + seeds; ++seed) {
        if (!runSeed(seed, events, options, tally))
            return 1;
    }
    std::cout << "games over: " << tally.gamesOver << ", begun again: " << tally.newGames
              << ", BREAK: " << tally.breaks << ", boxes: " << tally.boxes
              << ", window closed and opened: " << tally.restarts << std::endl;
    if (options.isSet("all") && !playedEverything(tally))
        return fail("too few events to play everything");
    return 0;
}
