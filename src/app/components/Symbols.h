#pragma once

#include <QString>
#include <QStringList>

// The screens name their icons by symbol name ("sun.max", "wifi.slash"); this is the one table
// from those names to the bundled SVG files (Lucide, ISC licence, in the Components module).
namespace quorvane::Symbols {

// The resource path of the icon for a symbol name, or an empty text for a name not in the table.
[[nodiscard]] QString file(const QString &name);

// The name of that icon's file without its folder and ".svg" ("calendar"), or an empty text.
[[nodiscard]] QString stem(const QString &name);

// Every symbol name the table knows.
[[nodiscard]] QStringList names();

} // namespace quorvane::Symbols
