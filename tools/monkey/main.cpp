// tavlora-monkey: random users on the real window, and a referee who watches.

#include "platform/qpeapplication.h"
#include "tools/common/commandline.h"
#include "tools/monkey/monkey.h"

#include <QCommandLineParser>
#include <QTextStream>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {

constexpr const char *rulesNames[] = {"international", "american", "polish"};
constexpr int sizes[] = {6, 8, 10, 12};

QString complaints; // the toolkit's, in the present run

QTextStream &out() {
    static QTextStream stream(stdout);
    return stream;
}

// What the toolkit complains of is a fault, but for what the offscreen platform cannot do.
void takeMessage(QtMsgType type, const QMessageLogContext &, const QString &text) {
    if (text.startsWith("This plugin does not support") || type == QtDebugMsg || type == QtInfoMsg)
        return;
    complaints += text + '\n';
}

// The toolkit as every machine has it: no display, no scale, no other language.
void prepareToolkit() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_FONT_DPI", "72");
    qInstallMessageHandler(takeMessage);
    for (const char *language : {"LANGUAGE", "LC_ALL", "LANG"})
        qputenv(language, "C");
}

void addOptions(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        "Works the game's window like random users: taps, clicks, keys, settings, resizes, "
        "closes,\n"
        "in searches, flights and dialogs too, and compares the whole state of the game with what\n"
        "it must be after every event. At the first difference it tells the last events, what is\n"
        "broken and the seed, and exits with status 1. Equal seeds and numbers of events, equal\n"
        "runs.");
    parser.addOptions({{"seed", "The first seed, 1 if not given.", "n", "1"},
                       {"seeds", "Run so many seeds from there on, 1 if not given.", "n", "1"},
                       {"events", "Events a seed, 2000 if not given.", "n", "2000"},
                       {"all", "Fail unless all rules, sizes and levels were played."},
                       {"twice", "Run each seed twice; it has to go the same way."},
                       {"trace", "Tell every event."}});
}

// The option's value from 1 up, or nothing after a message.
std::optional<int> numberOf(const QCommandLineParser &parser, const char *option) {
    bool good = false;
    const int number = parser.value(option).toInt(&good);
    if (good && number >= 1)
        return number;
    fail(QString("--%1 wants a number from 1 up").arg(option));
    return {};
}

void tell(const Tally &tally) {
    for (int rules = 0; rules < 3; ++rules) {
        out() << rulesNames[rules] << ":";
        for (int size = 0; size < 4; ++size)
            out() << "  " << tally.moves[rules][size] << " moves on " << sizes[size];
        out() << "\n";
    }
    out() << "searches by level:";
    for (const int searches : tally.searches)
        out() << " " << searches;
    out() << "\ngames over: " << tally.gamesOver << ", begun again: " << tally.newGames
          << ", BREAK: " << tally.breaks << ", boxes: " << tally.boxes
          << ", window closed and opened: " << tally.restarts << "\n";
}

bool playedEverything(const Tally &tally) {
    bool played = true;
    for (const auto &moves : tally.moves)
        played = played && std::find(std::begin(moves), std::end(moves), 0) == std::end(moves);
    const auto &searches = tally.searches;
    return played && std::find(std::begin(searches), std::end(searches), 0) == std::end(searches);
}

bool runSeed(unsigned seed, int events, bool twice, bool trace, Tally &tally) {
    complaints.clear();
    const std::uint64_t hash = Monkey(seed, events, trace, tally).run();
    out() << "seed " << seed << ": " << events << " events, " << QString::number(hash, 16) << "\n";
    out().flush();
    Tally ignored;
    if (!complaints.isEmpty()) {
        fail(QString("seed %1: the toolkit complains:\n%2").arg(seed).arg(complaints));
        return false;
    }
    if (!twice || Monkey(seed, events, false, ignored).run() == hash)
        return true;
    fail(QString("seed %1 went another way the second time").arg(seed));
    return false;
}

} // namespace

int main(int argc, char **argv) {
    prepareToolkit();
    QPEApplication application(argc, argv, QPEApplication::GuiClient);
    QCoreApplication::setApplicationName("tavlora-monkey");
    QGuiApplication::setQuitOnLastWindowClosed(false);
    QCommandLineParser parser;
    addOptions(parser);
    if (const std::optional<int> status = parseCommandLine(parser))
        return *status;
    const std::optional<int> first = numberOf(parser, "seed");
    const std::optional<int> seeds = numberOf(parser, "seeds");
    const std::optional<int> events = numberOf(parser, "events");
    if (!first || !seeds || !events)
        return 2;
    Tally tally;
    for (int seed = *first; seed < *first + *seeds; ++seed) {
        if (!runSeed(static_cast<unsigned>(seed), *events, parser.isSet("twice"),
                     parser.isSet("trace"), tally))
            return 1;
    }
    tell(tally);
    if (parser.isSet("all") && !playedEverything(tally))
        return fail("too few events to play everything");
    return 0;
}
