#pragma once

#include <QString>
#include <QStringList>

namespace quorvane::Translations {

// The program's English plural forms ("1 vote", "2 votes") and, for any other language, its
// translation, installed into the running application. `language` is a locale name ("de",
// "pt_BR"), "pseudo" for the lengthened test translation, or empty for the desktop's languages.
// Each call replaces what an earlier one installed. Returns the translation's file name, or
// empty when the texts stay English.
QString install(const QString &language = {});

// Where translations are looked for, first to last: QUORVANE_TRANSLATIONS, the share folder
// beside the program (/usr/bin/quorvane reads /usr/share/quorvane/translations), and the ones
// built into the program.
[[nodiscard]] QStringList folders();

// The language asked for: QUORVANE_LANGUAGE, else empty (the desktop's).
[[nodiscard]] QString requested();

} // namespace quorvane::Translations
