#include "rules/ruleset.h"

#include "rules/amengine.h"

AbstractEngine *newEngine(RuleSet rules, board *b, int depth, thinkStatistic *stat, int size) {
    switch (rules) {
    case RuleSet::American:
        return new AmEngine(b, depth, stat, size);
    case RuleSet::Polish:
        return new PolEngine(b, depth, stat, size);
    case RuleSet::International:
        break;
    }
    return new IntEngine(b, depth, stat, size);
}
