#include "Links.h"

namespace quorvane::Links {

bool isWebPage(const QUrl &url)
{
    if (!url.isValid() || url.isRelative())
        return false;
    const QString scheme = url.scheme().toLower();
    return (scheme == QLatin1String("http") || scheme == QLatin1String("https")) && !url.host().isEmpty();
}

} // namespace quorvane::Links
