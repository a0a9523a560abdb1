#include "tray/LinkTypesModel.h"

#include "components/HexColor.h"
#include "model/AppBinding.h"

using namespace Qt::StringLiterals;

namespace quorvane {

void LinkTypesModel::setApp(AppModel *app)
{
    if (!AppBinding::follow(m_app, app, this, {&AppModel::snapshotChanged}, &LinkTypesModel::reload))
        return;
    Q_EMIT appChanged();
    reload();
}

void LinkTypesModel::reload()
{
    QList<EventType> types = m_app ? m_app->activeTypes() : QList<EventType>();
    if (types == m_types)
        return;
    const int before = count();
    beginResetModel();
    m_types = std::move(types);
    endResetModel();
    if (count() != before)
        Q_EMIT countChanged();
}

int LinkTypesModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant LinkTypesModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const EventType &t = m_types.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return t.title;
    case MinutesRole:
        return u"%1m"_s.arg(t.minutes);
    case ColorRole:
        return HexColor::parse(t.colorHex);
    case AccessibleNameRole:
        return u"Copy %1 link"_s.arg(t.title);
    default:
        return {};
    }
}

QHash<int, QByteArray> LinkTypesModel::roleNames() const
{
    return {{TitleRole, "title"},
            {MinutesRole, "minutes"},
            {ColorRole, "typeColor"},
            {AccessibleNameRole, "accessibleName"}};
}

void LinkTypesModel::copy(int row)
{
    if (m_app && row >= 0 && row < count())
        m_app->copyLink(m_types.at(row));
}

} // namespace quorvane
