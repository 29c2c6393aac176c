// What the search is asked to think about while its manners are measured.
#ifndef TOOLS_RESPONSIVENESS_SCENARIOS_H
#define TOOLS_RESPONSIVENESS_SCENARIOS_H

#include <QString>
#include <QStringList>

#include <vector>

struct Scenario {
    QString name;
    int rules;        // item of the settings
    int level;        // item of the settings
    QString position; // a position line
    QStringList arguments() const;
};

// Every rule set and level from "2 sec/move" on, on the start positions of 10 and 12 squares, on
// boards full of flying kings, in an ending with kings, and where captures branch without end.
std::vector<Scenario> allScenarios();
// A few of them, the worst among them.
std::vector<Scenario> fewScenarios();
// A game that is over: white has nothing to move.
QString lostPosition();

#endif
