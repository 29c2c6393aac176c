// WFlags: the name under which the forms take their window flags.
#ifndef PLATFORM_WFLAGS_H
#define PLATFORM_WFLAGS_H

#include <Qt>

using WFlags = Qt::WindowFlags;

#endif
