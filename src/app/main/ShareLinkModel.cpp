#include "main/ShareLinkModel.h"

#include "components/HexColor.h"
#include "model/AppBinding.h"

using namespace Qt::StringLiterals;

namespace quorvane {

ShareLinkModel::ShareLinkModel(QObject *parent)
    : QAbstractListModel(parent)
{}

void ShareLinkModel::setApp(AppModel *app)
{
    if (!AppBinding::follow(m_app, app, this, {&AppModel::snapshotChanged, &AppModel::preferencesChanged},
                            &ShareLinkModel::reload))
        return;
    reload();
    Q_EMIT appChanged();
}

void ShareLinkModel::reload()
{
    const qsizetype before = m_types.size();
    beginResetModel();
    m_types = m_app ? m_app->activeTypes() : QList<EventType>();
    endResetModel();
    if (m_types.size() != before)
        Q_EMIT countChanged();
}

int ShareLinkModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_types.size());
}

QVariant ShareLinkModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) || !m_app)
        return {};
    const EventType &type = m_types.at(index.row());
    switch (role) {
    case SlugRole:
        return type.slug;
    case Qt::DisplayRole:
    case TitleRole:
        return type.title;
    case ColorRole:
        return HexColor::parse(m_app->typeColorHex(type.slug));
    case LinkRole:
        return m_app->link(type);
    case ToolTipRole:
        return u"Copy "_s + m_app->link(type);
    case AccessibleRole:
        return u"Copy link for "_s + type.title;
    default:
        return {};
    }
}

QHash<int, QByteArray> ShareLinkModel::roleNames() const
{
    return {{SlugRole, "slug"}, {TitleRole, "title"},     {ColorRole, "typeColor"},
            {LinkRole, "link"}, {ToolTipRole, "toolTip"}, {AccessibleRole, "accessibleName"}};
}

void ShareLinkModel::copyLink(int row)
{
    if (m_app && row >= 0 && row < m_types.size())
        m_app->copyLink(m_types.at(row));
}

} // namespace quorvane
