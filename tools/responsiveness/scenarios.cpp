#include "tools/responsiveness/scenarios.h"

#include "tools/bench/benchrun.h"

#include <QTextStream>

namespace {

enum LevelItem {
    easyTwo = 1,
    twoSeconds,
    fiveSeconds,
    tenSeconds,
    twentySeconds,
    minute,
    infinite
};

QString lineOf(const board &position) {
    QString line;
    QTextStream stream(&line);
    position.toStream(stream);
    return line.trimmed();
}

QString start(int squares) {
    return lineOf(board(squares));
}

// The start position with kings in place of the men.
QString kingsOnly() {
    board position(12);
    for (auto &column : position.squares) {
        for (unsigned char &code : column) {
            if (code != 0)
                code = static_cast<unsigned char>((code & ~codeMan) | codeKing);
        }
    }
    return lineOf(position);
}

QString benchPosition(const QString &name) {
    QString error;
    for (const BenchTask &task : readTasks(builtInTasks(), error)) {
        if (task.name == name)
            return lineOf(task.position);
    }
    return {};
}

// Black's four kings can go round among white's men in hundreds of thousands of ways, which the
// search has to list as soon as it has made a move for white.
QString branchingCaptures() {
    board position(12);
    position.clear();
    for (int x = 1; x < 10; x += 2) {
        for (int y = 1; y < 10; y += 2)
            position.squares[x][y] = whiteMan;
    }
    position.squares[5][5] = 0;
    for (const XY &corner : {XY(0, 0), XY(0, 10), XY(10, 0), XY(11, 11)})
        position.Get(corner) = blackKing;
    return lineOf(position);
}

} // namespace

QStringList Scenario::arguments() const {
    return {"--rules", QString::number(rules), "--level", QString::number(level), position};
}

std::vector<Scenario> allScenarios() {
    std::vector<Scenario> all;
    for (int rules = 0; rules < 3; ++rules) {
        all.push_back({"start, 10 x 10", rules, fiveSeconds, start(10)});
        all.push_back({"start, 12 x 12", rules, twoSeconds + rules, start(12)});
        all.push_back({"all kings, 12 x 12", rules, infinite, kingsOnly()});
        all.push_back({"all kings, 12 x 12", rules, twentySeconds - rules, kingsOnly()});
        all.push_back({"captures, 12 x 12", rules, minute, branchingCaptures()});
    }
    all.push_back({"ending, 12 x 12", 0, infinite, benchPosition("international-12-ending")});
    all.push_back({"ending, 12 x 12", 2, minute, benchPosition("polish-12-ending")});
    all.push_back({"captures, 12 x 12", 0, easyTwo, branchingCaptures()});
    return all;
}

std::vector<Scenario> fewScenarios() {
    return {{"all kings, 12 x 12", 0, infinite, kingsOnly()},
            {"captures, 12 x 12", 0, minute, branchingCaptures()}};
}

QString lostPosition() {
    board position(8);
    position.clear();
    position.squares[0][6] = whiteMan;
    position.squares[1][7] = blackMan;
    return lineOf(position);
}
