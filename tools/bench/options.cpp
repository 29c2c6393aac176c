#include "tools/bench/options.h"

#include "search/levels.h"
#include "tools/bench/benchrun.h"
#include "tools/common/positionline.h"

#include <QCommandLineParser>
#include <QFile>

#include <iterator>

namespace {

constexpr qint64 mostFileBytes = 16 << 20;

bool readLevel(const QString &text, int &item) {
    bool good = false;
    item = text.toInt(&good);
    if (!good || item < 0 || item >= static_cast<int>(std::size(levels)))
        return false;
    const int seconds = levels[item].seconds;
    return seconds > 0 && seconds < thinkStatistic::unlimitedSeconds;
}

} // namespace

void describeBench(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        "Searches a list of positions to fixed depths, without the random term, and prints move, "
        "score, nodes and time of each, the totals, and one signature over everything the searches "
        "reported but time. The signature changes when, and only when, the search does.");
    parser.addOption({{"d", "depth"},
                      QString("Search all positions so many plies deep (1 to %1), instead of each "
                              "to its own depth.")
                          .arg(mostDepth),
                      "plies"});
    parser.addOption({{"t", "time"},
                      "Search each position so many seconds, as the game's levels do, "
                      "and tell the depth reached.",
                      "seconds"});
    parser.addOption(
        {{"p", "positions"},
         QString("Read the positions from a file: on each line a name, the rules (%1), "
                 "normal or giveaway, the depth in plies, and a position line.")
             .arg(ruleWords()),
         "file",
         BenchOptions().file});
    parser.addOption({{"o", "only"},
                      "Only the position of this name or, where there is none, those "
                      "whose names contain it.",
                      "name"});
    parser.addOption({{"m", "machine"},
                      "One tab-separated line a position, with all counters and "
                      "the best line; totals and signature follow."});
    parser.addOption({{"s", "straightforward"},
                      "Search over engines and boards only, without the "
                      "bit sets: slow, with the same results."});
    parser.addOption(
        {"move-times",
         "Instead of all that: let the computer play against itself and tell how long "
         "so many of its moves took, in milliseconds and as a share of what they might.",
         "moves"});
    parser.addOption({"level",
                      "The playing level of these games: an item of the settings that has a time, "
                      "from 0 on; without it 2, for 2 seconds a move.",
                      "item", "2"});
}

QString readBenchOptions(const QCommandLineParser &parser, BenchOptions &options) {
    options.depth = parser.value("depth").toInt();
    if (parser.isSet("depth") && (options.depth < 1 || options.depth > mostDepth)) {
        return QString("the depth must be 1 to %1, not \"%2\"")
            .arg(mostDepth)
            .arg(parser.value("depth"));
    }
    options.seconds = parser.value("time").toInt();
    if (parser.isSet("time") && options.seconds < 1)
        return QString("the time must be a number of seconds, not \"%1\"")
            .arg(parser.value("time"));
    if (!parser.positionalArguments().isEmpty())
        return QString("unexpected argument \"%1\"").arg(parser.positionalArguments().first());
    options.file = parser.value("positions");
    if (options.file.isEmpty())
        return "the positions file has no name";
    options.moveTimes = parser.value("move-times").toInt();
    if (parser.isSet("move-times") && options.moveTimes < 1)
        return QString("the number of moves must be 1 or more, not \"%1\"")
            .arg(parser.value("move-times"));
    if (!readLevel(parser.value("level"), options.level))
        return QString("the level must be an item that has a time, not \"%1\"")
            .arg(parser.value("level"));
    options.only = parser.value("only");
    options.machine = parser.isSet("machine");
    options.straightforward = parser.isSet("straightforward");
    return {};
}

QString tasksText(const BenchOptions &options, QString &error) {
    QFile file(options.file);
    if (!file.open(QIODevice::ReadOnly)) {
        error = QString("cannot read %1: %2").arg(options.file, file.errorString());
        return {};
    }
    const QByteArray content = file.read(mostFileBytes + 1);
    if (content.size() > mostFileBytes) {
        error = QString("%1 has more than %2 bytes").arg(options.file).arg(mostFileBytes);
        return {};
    }
    return QString::fromUtf8(content);
}
