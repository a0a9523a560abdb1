#include "UrlOpener.h"

#include "Links.h"

#include <QDesktopServices>

namespace quorvane {

UrlOpener::UrlOpener(Launcher launcher)
    : m_launcher(launcher ? std::move(launcher) : Launcher(&QDesktopServices::openUrl))
{}

bool UrlOpener::allows(const QUrl &url)
{
    if (Links::isWebPage(url))
        return true;
    return url.isValid() && url.scheme().compare(QLatin1String("mailto"), Qt::CaseInsensitive) == 0
           && !url.path().isEmpty();
}

bool UrlOpener::open(const QUrl &url) const
{
    return allows(url) && m_launcher(url);
}

} // namespace quorvane
