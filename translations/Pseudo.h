#pragma once

#include <QIODevice>
#include <QString>

namespace quorvane::Pseudo {

// A text as the pseudo translation shows it: letters accented, lengthened by about a third and
// bracketed, so a cut-off end or an English text left over shows at a glance. Placeholders
// (%1, %n, %L2), markup, entities, mnemonic letters and line breaks stay as they are.
[[nodiscard]] QString text(const QString &source);

// Writes the pseudo translation of a Qt Linguist file: every message translated by text(),
// every plural form too. False (with the reason in `error`) when the input isn't one.
bool translate(QIODevice &ts, QIODevice &out, QString *error);

} // namespace quorvane::Pseudo
