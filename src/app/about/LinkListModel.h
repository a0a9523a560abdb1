#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// A row of named links, such as the ones on About.
class LinkListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Links come from the view models that own them.")

public:
    struct Link {
        QString title;
        QUrl url;
        friend bool operator==(const Link &, const Link &) = default;
    };
    enum Role { TitleRole = Qt::UserRole + 1, UrlRole };

    explicit LinkListModel(QList<Link> links = {}, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<Link> m_links;
};

} // namespace quorvane
