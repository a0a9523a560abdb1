#include "about/AboutModel.h"

#include "UrlOpener.h"
#include "about/About.h"

namespace quorvane {

AboutModel::AboutModel(const AboutConfig &config, const UrlOpener &opener, QObject *parent)
    : QObject(parent)
    , m_opener(opener)
    , m_versionLine(About::versionLine(config.version, config.build))
    , m_links(About::productLinks(config))
    , m_authorLinks(About::authorLinks(config))
    , m_madeBy(About::madeBy(config.makerName))
    , m_legal(config.legal)
{}

bool AboutModel::open(const QUrl &url) const
{
    return m_opener.open(url);
}

} // namespace quorvane
