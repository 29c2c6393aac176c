// RuleTraits: in what the rule sets differ, for code that is compiled once for each.
#ifndef RULES_RULETRAITS_H
#define RULES_RULETRAITS_H

struct RuleTraits {
    bool menCaptureBackwards;
    bool flyingKings;
    bool maximumCapture;     // only the captures that take the most pieces are legal
    const char *manCapture;  // the operation that reports a man's capture beyond the limit
    const char *kingCapture; // the same for a king's; flying kings have no limit
};

inline constexpr RuleTraits internationalRules{true, true, true, "IntEngine::genCapManMove",
                                               nullptr};
inline constexpr RuleTraits polishRules{true, true, false, "IntEngine::genCapManMove", nullptr};
inline constexpr RuleTraits americanRules{false, false, false, "AmEngine::genCapManMove",
                                          "AmEngine::genCapKingMove"};

#endif
