// The longest capture sequence that is listed, and how reaching it is reported.
#ifndef RULES_CAPTURELIMIT_H
#define RULES_CAPTURELIMIT_H

// Jump number 26 of a sequence is not looked for; the sequence is dropped.
inline constexpr int maxCaptureLevel = 25;

// Collects "level too high" while moves are listed or a search runs, and shows it once when the
// outermost scope ends: a message box must not interrupt a listing, nor the search around it.
class CaptureLimitScope {
public:
    CaptureLimitScope();
    ~CaptureLimitScope();
    CaptureLimitScope(const CaptureLimitScope &) = delete;
    CaptureLimitScope &operator=(const CaptureLimitScope &) = delete;

    // Notes that the operation of this name (a literal) gave up a sequence.
    static void exceeded(const char *operation);
};

#endif
