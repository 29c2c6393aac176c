// What the tools' command lines have in common.
#ifndef TOOLS_COMMON_COMMANDLINE_H
#define TOOLS_COMMON_COMMANDLINE_H

#include <QString>

#include <optional>

class QCommandLineParser;

// Says on standard error what is wrong, with the program's name in front; the exit status for it.
int fail(const QString &message);

// Parses the application's arguments, --help included. The exit status when there is nothing more
// to do: 0 after the help text, another after an error.
std::optional<int> parseCommandLine(QCommandLineParser &parser);

#endif
