#include "about/LinkListModel.h"

namespace quorvane {

LinkListModel::LinkListModel(QList<Link> links, QObject *parent)
    : QAbstractListModel(parent)
    , m_links(std::move(links))
{}

int LinkListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_links.size());
}

QVariant LinkListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Link &link = m_links.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return link.title;
    case UrlRole:
        return link.url;
    default:
        return {};
    }
}

QHash<int, QByteArray> LinkListModel::roleNames() const
{
    return {{TitleRole, "title"}, {UrlRole, "url"}};
}

} // namespace quorvane
