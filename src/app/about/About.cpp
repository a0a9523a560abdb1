#include "about/About.h"

#include "UrlOpener.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane::About {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(About)
};

// A configured target that the app would refuse to open is as good as none.
void addIfOpenable(QList<Link> &links, const QString &title, const QUrl &url)
{
    if (!title.isEmpty() && UrlOpener::allows(url))
        links.append({title, url});
}

QUrl web(const QString &text)
{
    return QUrl(text, QUrl::StrictMode);
}

QUrl mail(const QString &address)
{
    if (address.isEmpty() || address.contains(u':') || !address.contains(u'@'))
        return {};
    QUrl url;
    url.setScheme(u"mailto"_s);
    url.setPath(address);
    return url;
}

} // namespace

QString versionLine(const QString &version, const QString &build)
{
    const QString shown = version.isEmpty() ? u"2.0"_s : version;
    if (build.isEmpty())
        return Text::tr("Version %1").arg(shown);
    return Text::tr("Version %1 (%2)").arg(shown, build);
}

QString siteName(const QUrl &site)
{
    QString host = site.host();
    if (host.startsWith(u"www."_s))
        host.remove(0, 4);
    return host;
}

QList<Link> productLinks(const AboutConfig &config)
{
    QList<Link> links;
    addIfOpenable(links, Text::tr("Website"), web(config.site));
    addIfOpenable(links, Text::tr("Privacy"), web(config.privacy));
    addIfOpenable(links, Text::tr("Terms"), web(config.terms));
    return links;
}

QList<Link> authorLinks(const AboutConfig &config)
{
    QList<Link> links;
    const QUrl own = web(config.makerSite);
    addIfOpenable(links, siteName(own), own);
    addIfOpenable(links, u"LinkedIn"_s, web(config.makerProfile));
    addIfOpenable(links, u"Quorvane"_s, web(config.site));
    addIfOpenable(links, Text::tr("Contact"), mail(config.makerMail));
    return links;
}

QString madeBy(const QString &makerName)
{
    return makerName.isEmpty() ? QString() : Text::tr("Made by %1").arg(makerName);
}

} // namespace quorvane::About
