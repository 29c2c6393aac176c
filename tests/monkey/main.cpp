// tavlora-monkey: random users on the real window, and a model that says what must be seen.

#include "platform/qpeapplication.h"
#include "tests/monkey/monkey.h"
#include "tools/common/commandline.h"

#include <QCommandLineParser>

#include <iostream>

namespace {

// All rules on all sizes, all levels, and the ends of a game and a window.
constexpr std::size_t everything = 3 * 4 + 8 + 2;

QString complaints; // the toolkit's

// What the toolkit complains of is a fault, but for what the offscreen platform cannot do.
void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text) {
    if (!text.startsWith("This plugin does not support") && type != QtDebugMsg && type != QtInfoMsg)
        complaints += text + '\n';
}

// The toolkit as every machine has it: no display, no scale, no other language.
void prepareToolkit() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_FONT_DPI", "72");
    for (const char *language : {"LANGUAGE", "LC_ALL", "LANG"})
        qputenv(language, "C");
}

int runSeeds(const QCommandLineParser &options) {
    Tally tally;
    const unsigned first = options.value("seed").toUInt();
    for (unsigned seed = first; seed < first + options.value("seeds").toUInt(); ++seed) {
        const auto run = [&] {
            const int events = options.value("events").toInt();
            return Monkey(seed, events, options.isSet("trace"), tally).run();
        };
        const std::size_t hash = run();
        std::cout << "seed " << seed << ": " << std::hex << hash << std::dec << std::endl;
        if (options.isSet("twice") && run() != hash)
            return fail("it went another way the second time");
        if (!complaints.isEmpty())
            return fail("the toolkit complains: " + complaints);
    }
    for (const auto &[what, times] : tally)
        std::cout << what << ": " << times << std::endl;
    if (tally.empty())
        return fail("--seeds and --events want numbers from 1 up");
    return options.isSet("all") && tally.size() != everything ? fail("something was not played")
                                                              : 0;
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
    const std::optional<int> status = parseCommandLine(options);
    return status.has_value() ? *status : runSeeds(options);
}
