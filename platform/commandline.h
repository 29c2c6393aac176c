// What the program is asked for where it is started.
#ifndef PLATFORM_COMMANDLINE_H
#define PLATFORM_COMMANDLINE_H

#include <optional>

// Obeys the program's own options; the toolkit's are known and left to it. To be called before
// there is an application object; needs no display except for a scale that depends on it.
// The exit status when the program shall end at once: 0 after the answer to --help or --version,
// 2 after one line on standard error about an argument that is not understood.
std::optional<int> obeyCommandLine(int argc, char **argv);

#endif
