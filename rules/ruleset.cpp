#include "rules/ruleset.h"

#include "rules/amengine.h"

#include <new>

AbstractEngine *newEngine(RuleSet rules, board *b, int depth, thinkStatistic *stat, int size) {
    switch (rules) {
    case RuleSet::American:
        return new (std::nothrow) AmEngine(b, depth, stat, size);
    case RuleSet::Polish:
        return new (std::nothrow) PolEngine(b, depth, stat, size);
    case RuleSet::International:
        break;
    }
    return new (std::nothrow) IntEngine(b, depth, stat, size);
}
