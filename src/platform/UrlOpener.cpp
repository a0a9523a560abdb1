#include "UrlOpener.h"

#include <QDesktopServices>

namespace quorvane {

UrlOpener::UrlOpener(Launcher launcher)
    : m_launcher(launcher ? std::move(launcher) : Launcher(&QDesktopServices::openUrl))
{}

bool UrlOpener::allows(const QUrl &url)
{
    if (!url.isValid() || url.isRelative())
        return false;
    const QString scheme = url.scheme().toLower();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https"))
        return !url.host().isEmpty();
    if (scheme == QLatin1String("mailto"))
        return !url.path().isEmpty();
    return false;
}

bool UrlOpener::open(const QUrl &url) const
{
    return allows(url) && m_launcher(url);
}

} // namespace quorvane
