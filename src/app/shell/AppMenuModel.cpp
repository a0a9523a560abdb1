#include "shell/AppMenuModel.h"

#include "BuildInfo.h"
#include "UrlOpener.h"
#include "about/About.h"

#include <QKeySequence>

using namespace Qt::StringLiterals;

namespace quorvane {

AppMenuModel::AppMenuModel(QObject *parent)
    : AppMenuModel(QString::fromUtf8(build::makerName), QString::fromUtf8(build::makerSite), parent)
{}

AppMenuModel::AppMenuModel(const QString &makerName, const QString &makerSite, QObject *parent)
    : QObject(parent)
    , m_madeBy(About::madeBy(makerName.trimmed()))
{
    const QUrl site(makerSite.trimmed(), QUrl::StrictMode);
    // Only a web page gets an item: the build configuration is trusted, but not with schemes.
    if (!site.host().isEmpty() && (site.scheme() == "https"_L1 || site.scheme() == "http"_L1)
        && UrlOpener::allows(site)) {
        m_makerSite = site;
        m_makerSiteTitle = About::siteName(site);
    }
}

QString AppMenuModel::shortcutText(const QString &sequence)
{
    return QKeySequence(sequence, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

QString AppMenuModel::sectionShortcut(const QString &digit)
{
    return digit.isEmpty() ? QString() : u"Ctrl+"_s + digit;
}

} // namespace quorvane
