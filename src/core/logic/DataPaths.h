#pragma once

#include <QString>

// Where the app keeps its files, for the app and for the terminal companion alike.
namespace quorvane::DataPaths {

// The app's data folder for this user, under XDG_DATA_HOME.
[[nodiscard]] QString defaultDirectory();
// The saved snapshot in a data folder.
[[nodiscard]] QString cacheIn(const QString &dataDirectory);

} // namespace quorvane::DataPaths
