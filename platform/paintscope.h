// PaintScope: tells whether the program is inside a paint event.
#ifndef PLATFORM_PAINTSCOPE_H
#define PLATFORM_PAINTSCOPE_H

// One lives on the stack for as long as a widget paints itself; scopes may nest. Whoever would open
// a window or run an event loop asks active() first, for neither may happen while painting.
class PaintScope {
public:
    PaintScope() { ++depth_; }
    ~PaintScope() { --depth_; }
    PaintScope(const PaintScope &) = delete;
    PaintScope &operator=(const PaintScope &) = delete;

    static bool active() { return depth_ > 0; }

private:
    inline static int depth_ = 0;
};

#endif
