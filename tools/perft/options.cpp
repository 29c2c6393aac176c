#include "tools/perft/options.h"

#include "rules/boardsizes.h"
#include "tools/common/positionline.h"

#include <QCommandLineParser>

namespace {

constexpr int defaultDepth = 6;
constexpr int mostDepth = 30;

QString readPosition(const QCommandLineParser &parser, PerftOptions &options) {
    const QStringList positions = parser.positionalArguments();
    const QString sizeText = parser.value("size");
    if (positions.isEmpty()) {
        const int size = sizeText.toInt();
        if (!isBoardSize(size))
            return QString("the size must be %1, not \"%2\"").arg(sizeWords(), sizeText);
        options.position = board(size);
        return {};
    }
    if (parser.isSet("size"))
        return "a position has its own size; leave --size out";
    options.standardInput = positions.size() == 1 && positions.first() == "-";
    if (options.standardInput)
        return {};
    QString error;
    options.position = readPositionLine(positions.join(' '), error).value_or(board());
    return error;
}

} // namespace

void describePerft(QCommandLineParser &parser) {
    parser.setApplicationDescription(
        "Counts the positions of a move tree by depth, from the start position of a board or from "
        "a position line (size, ply, key, score, horizon, squares), given as the argument or, for "
        "\"-\", on standard input, where there may be several. Every route of a capture counts.");
    parser.addOption({{"r", "rules"},
                      QString("%1; without it %2.").arg(ruleWords(), rowOf(defaultRules).word),
                      "rules",
                      rowOf(defaultRules).word});
    parser.addOption({{"s", "size"},
                      QString("Start position of %1 squares a side; without it %2.")
                          .arg(sizeWords())
                          .arg(defaultSquares),
                      "size",
                      QString::number(defaultSquares)});
    parser.addOption({{"d", "depth"},
                      QString("Count up to so many plies, 1 to %1.").arg(mostDepth),
                      "plies",
                      QString::number(defaultDepth)});
    parser.addOption({"divide", "Show the count of each first move, at the full depth only."});
    parser.addOption({"distinct",
                      "Count captures of a piece that take the same pieces and end on the "
                      "same square once, whatever their routes."});
    parser.addOption({"last", "Count at the full depth only."});
    parser.addPositionalArgument("position", "A position line, or - for standard input.",
                                 "[position]");
}

QString readPerftOptions(const QCommandLineParser &parser, PerftOptions &options) {
    const std::optional<RuleSet> rules = ruleSetOf(parser.value("rules"));
    if (!rules.has_value())
        return QString("unknown rules \"%1\"").arg(parser.value("rules"));
    options.rules = *rules;
    options.depth = parser.value("depth").toInt();
    if (options.depth < 1 || options.depth > mostDepth) {
        return QString("the depth must be 1 to %1, not \"%2\"")
            .arg(mostDepth)
            .arg(parser.value("depth"));
    }
    options.divide = parser.isSet("divide");
    options.distinct = parser.isSet("distinct");
    options.leavesOnly = parser.isSet("last");
    return readPosition(parser, options);
}
