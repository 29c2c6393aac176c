// The rule sets: what they are called, which engines play them and what is special about them.
#ifndef RULES_RULESET_H
#define RULES_RULESET_H

#include "rules/amengine.h"
#include "rules/ruletraits.h"

#include <QtGlobal>

#include <memory>
#include <new>
#include <typeinfo>

// The rows of the table below, in its order.
enum class RuleSet { International, American, Polish };

struct RuleRow {
    RuleSet id;
    const char *name; // in the settings, to be translated in the context "fsettings"
    const char *word; // for the command lines and files of the tools
    const RuleTraits &traits;
    // A new engine, null when there is no memory; arguments as AbstractEngine's constructor.
    std::unique_ptr<AbstractEngine> (*newEngine)(board *, int depth, thinkStatistic *, int size);
    // The engine is exactly of the row's class, not of one derived from it.
    bool (*isOf)(const AbstractEngine &);
};

template <class Engine>
constexpr RuleRow ruleRow(RuleSet id, const char *name, const char *word,
                          const RuleTraits &traits) {
    return {id,
            name,
            word,
            traits,
            [](board *b, int depth, thinkStatistic *stat, int size) {
                return std::unique_ptr<AbstractEngine>(new (std::nothrow)
                                                           Engine(b, depth, stat, size));
            },
            [](const AbstractEngine &engine) { return typeid(engine) == typeid(Engine); }};
}

inline constexpr RuleRow ruleRows[] = {
    ruleRow<IntEngine>(RuleSet::International, QT_TRANSLATE_NOOP("fsettings", "International"),
                       "international", internationalRules),
    ruleRow<AmEngine>(RuleSet::American, QT_TRANSLATE_NOOP("fsettings", "American"), "american",
                      americanRules),
    ruleRow<PolEngine>(RuleSet::Polish, QT_TRANSLATE_NOOP("fsettings", "Polish Traditional"),
                       "polish", polishRules),
};
inline constexpr RuleSet defaultRules = RuleSet::International;

constexpr const RuleRow &rowOf(RuleSet rules) {
    return ruleRows[static_cast<int>(rules)];
}

inline std::unique_ptr<AbstractEngine> newEngine(RuleSet rules, board *b, int depth,
                                                 thinkStatistic *stat, int size) {
    return rowOf(rules).newEngine(b, depth, stat, size);
}

#endif
