// The program's texts in the user's language.
#ifndef PLATFORM_TRANSLATIONS_H
#define PLATFORM_TRANSLATIONS_H

#include <QTranslator>

// For as long as it lives, texts come from the catalogue for the toolkit's locale: the first of the
// user's languages (QLocale::uiLanguages) that has one among the built-in ":/i18n/tavlora_*.qm".
// English is a language like these; its texts are those in the code, as they are where no language
// of the user's has a catalogue. The toolkit's own texts follow, from its own catalogue where one
// is installed. Wants an application object, and before any widget.
class Translations {
public:
    Translations();
    ~Translations() = default;
    Translations(const Translations &) = delete;
    Translations &operator=(const Translations &) = delete;

private:
    QTranslator program_;
    QTranslator toolkit_;
};

#endif
