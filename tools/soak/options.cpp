#include "tools/soak/options.h"

#include "search/thinkstatistic.h"

#include <QCommandLineParser>
#include <QStringList>

namespace {

constexpr int mostGames = 1000000;
constexpr int mostPlies = 100000;
constexpr int mostGrowthKb = 1 << 30;

// Reads a number option within its limits; else says what is wrong.
QString readNumber(const QCommandLineParser &parser, const QString &name, int least, int most,
                   int &value) {
    bool good = false;
    value = parser.value(name).toInt(&good);
    if (good && value >= least && value <= most)
        return {};
    return QString("%1 must be %2 to %3, not \"%4\"")
        .arg(name)
        .arg(least)
        .arg(most)
        .arg(parser.value(name));
}

QString readLevels(const QCommandLineParser &parser, SoakOptions &options) {
    const QString fallback = options.timedMoves > 0 ? "2" : "0,1";
    const QString text = parser.isSet("levels") ? parser.value("levels") : fallback;
    for (const QString &item : text.split(',')) {
        bool good = false;
        const int index = item.toInt(&good);
        const std::optional<Level> level = good ? levelChoice(index) : std::nullopt;
        if (!level.has_value() || level->seconds >= thinkStatistic::unlimitedSeconds)
            return QString("the levels are items 0 to 6 of the settings, not \"%1\"").arg(item);
        if (options.timedMoves > 0 && level->seconds == 0)
            return QString("level %1 has no time").arg(item);
        options.levels.append(*level);
    }
    return {};
}

} // namespace

void describeSoak(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        "Plays games of the computer against itself, without a window, over all rules and sizes, "
        "normal and give-away, from random openings, and checks every move against a plain twin of "
        "the rules, the search's figures, the hash table and the memory in use. Or measures the "
        "time that moves take at levels with a time.");
    parser.addOption({{"g", "games"}, "Play so many games.", "number", "240"});
    parser.addOption({{"t", "timed-moves"},
                      "Measure the time of so many moves instead, with more than one to choose "
                      "from.",
                      "number",
                      "0"});
    parser.addOption({{"l", "levels"},
                      "Play at these items of the settings' levels in turn, counted from 0 and "
                      "separated by commas; 0,1 without it, 2 for timed moves.",
                      "items"});
    parser.addOption({{"s", "seed"}, "The first game's seed; the others follow.", "number", "1"});
    parser.addOption({{"p", "plies"}, "Cut games after so many half-moves.", "number", "200"});
    parser.addOption({"growth",
                      "Kilobytes that memory may grow after the first tenth of the games.",
                      "number", "4096"});
}

QString readSoakOptions(const QCommandLineParser &parser, SoakOptions &options) {
    if (!parser.positionalArguments().isEmpty())
        return QString("unexpected argument \"%1\"").arg(parser.positionalArguments().first());
    int seed = 0;
    const struct {
        const char *name;
        int least, most;
        int &value;
    } numbers[] = {{"games", 1, mostGames, options.games},
                   {"timed-moves", 0, mostGames, options.timedMoves},
                   {"seed", 0, mostGames, seed},
                   {"plies", 1, mostPlies, options.plies},
                   {"growth", 0, mostGrowthKb, options.growthKb}};
    for (const auto &number : numbers) {
        const QString wrong =
            readNumber(parser, number.name, number.least, number.most, number.value);
        if (!wrong.isEmpty())
            return wrong;
    }
    options.seed = static_cast<unsigned>(seed);
    return readLevels(parser, options);
}
