#include "tools/common/commandline.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

int fail(const QString &message) {
    constexpr int wrongUse = 2;
    QTextStream(stderr) << QCoreApplication::applicationName() << ": " << message << '\n';
    return wrongUse;
}

std::optional<int> parseCommandLine(QCommandLineParser &parser) {
    parser.addHelpOption();
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(parser.errorText());
    if (!parser.isSet("help"))
        return {};
    QTextStream(stdout) << parser.helpText();
    return 0;
}
