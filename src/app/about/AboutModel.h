#pragma once

#include "about/AboutConfig.h"
#include "about/LinkListModel.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class UrlOpener;

// What the About view shows: version, links and the author's card.
class AboutModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Reached as Setup.about.")
    Q_PROPERTY(QString versionLine READ versionLine CONSTANT)
    Q_PROPERTY(quorvane::LinkListModel *links READ links CONSTANT)
    Q_PROPERTY(quorvane::LinkListModel *authorLinks READ authorLinks CONSTANT)
    Q_PROPERTY(QString madeBy READ madeBy CONSTANT)
    Q_PROPERTY(QString legal READ legal CONSTANT)

public:
    // `opener` must outlive this object.
    AboutModel(const AboutConfig &config, const UrlOpener &opener, QObject *parent = nullptr);

    [[nodiscard]] QString versionLine() const { return m_versionLine; }
    [[nodiscard]] LinkListModel *links() { return &m_links; }
    [[nodiscard]] LinkListModel *authorLinks() { return &m_authorLinks; }
    [[nodiscard]] QString madeBy() const { return m_madeBy; }
    [[nodiscard]] QString legal() const { return m_legal; }

    // Opens one of the links in the browser or the mail program.
    Q_INVOKABLE bool open(const QUrl &url) const;

private:
    const UrlOpener &m_opener;
    QString m_versionLine;
    LinkListModel m_links;
    LinkListModel m_authorLinks;
    QString m_madeBy;
    QString m_legal;
};

} // namespace quorvane
