#include "platform/programidentity.h"

#include <QDir>
#include <QGuiApplication>
#include <QIcon>

namespace {

// The desktop file's name without its suffix, and the icon's.
const QString programName = QStringLiteral("tavlora");

QIcon builtInIcon() {
    QIcon icon;
    const QDir folder(QStringLiteral(":/icons"));
    for (const QString &file : folder.entryList())
        icon.addFile(folder.filePath(file));
    return icon;
}

} // namespace

void identifyProgram() {
    QGuiApplication::setDesktopFileName(programName);
    QGuiApplication::setWindowIcon(QIcon::fromTheme(programName, builtInIcon()));
}
