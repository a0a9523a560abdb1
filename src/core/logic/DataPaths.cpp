#include "DataPaths.h"

#include <QDir>
#include <QStandardPaths>

namespace quorvane::DataPaths {

QString defaultDirectory()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation))
        .filePath(QStringLiteral("Quorvane"));
}

QString cacheIn(const QString &dataDirectory)
{
    return QDir(dataDirectory).filePath(QStringLiteral("cache-v2.json"));
}

} // namespace quorvane::DataPaths
