#include "rules/capturelimit.h"

#include "base/host.h"

#include <utility>

namespace {

int openScopes = 0;
const char *exceededIn = nullptr;

} // namespace

CaptureLimitScope::CaptureLimitScope() {
    ++openScopes;
}

CaptureLimitScope::~CaptureLimitScope() {
    if (--openScopes > 0 || exceededIn == nullptr)
        return;
    host().messageBox(BoxKind::Warning, std::exchange(exceededIn, nullptr), "level too high");
}

void CaptureLimitScope::exceeded(const char *operation) {
    if (exceededIn == nullptr)
        exceededIn = operation;
}
