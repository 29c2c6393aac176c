#include "platform/translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace {

// Button texts of every dialog's row, in our catalogues too: a row is in one language also where
// the toolkit's catalogues are not installed.
[[maybe_unused]] constexpr const char *rowTexts[] = {QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),
                                                     QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel")};

// The program's catalogue goes in last, where it is asked first.
void install(QTranslator &program, QTranslator &toolkit, const QString &language) {
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    if (toolkit.load(QStringLiteral("qtbase_") + language, folder))
        QCoreApplication::installTranslator(&toolkit);
    QCoreApplication::installTranslator(&program);
}

} // namespace

Translations::Translations() {
    const QStringList names = QLocale().uiLanguages();
    for (QString name : names) {
        if (QLocale(name).language() == QLocale::English)
            return;
        name.replace(QLatin1Char('-'), QLatin1Char('_'));
        if (program_.load(QStringLiteral("tavlora_") + name, QStringLiteral(":/i18n"))) {
            install(program_, toolkit_, name);
            return;
        }
    }
}
