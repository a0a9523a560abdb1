#include "components/TypeLinksModel.h"

#include "components/HexColor.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(TypeLinksModel)
};
} // namespace

TypeLinksModel::TypeLinksModel(QObject *parent)
    : AppListModel({&AppModel::snapshotChanged, &AppModel::preferencesChanged}, parent)
{}

void TypeLinksModel::rebuild()
{
    if (!app())
        replaceRows(m_types, {});
    else
        replaceRows(m_types, m_includeInactive ? app()->eventTypes() : app()->activeTypes());
}

void TypeLinksModel::setIncludeInactive(bool value)
{
    if (value == m_includeInactive)
        return;
    m_includeInactive = value;
    rebuild();
    Q_EMIT includeInactiveChanged();
}

int TypeLinksModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_types.size());
}

QVariant TypeLinksModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) || !app())
        return {};
    const EventType &type = m_types.at(index.row());
    switch (role) {
    case SlugRole:
        return type.slug;
    case Qt::DisplayRole:
    case TitleRole:
        return type.title;
    case MinutesRole:
        return Text::tr("%1m").arg(type.minutes);
    case ChoiceRole:
        return Text::tr("%1 (%2 min)").arg(type.title).arg(type.minutes);
    case ColorRole:
        return HexColor::parse(type.colorHex);
    case LinkRole:
        return app()->link(type);
    case ToolTipRole:
        return Text::tr("Copy %1").arg(app()->link(type));
    case AccessibleNameRole:
        return Text::tr("Copy link for %1").arg(type.title);
    case ShortAccessibleNameRole:
        return Text::tr("Copy %1 link").arg(type.title);
    default:
        return {};
    }
}

QHash<int, QByteArray> TypeLinksModel::roleNames() const
{
    return {{SlugRole, "slug"},
            {TitleRole, "title"},
            {MinutesRole, "minutes"},
            {ChoiceRole, "choice"},
            {ColorRole, "typeColor"},
            {LinkRole, "link"},
            {ToolTipRole, "toolTip"},
            {AccessibleNameRole, "accessibleName"},
            {ShortAccessibleNameRole, "shortAccessibleName"}};
}

void TypeLinksModel::copyLink(int row)
{
    if (app() && row >= 0 && row < m_types.size())
        app()->copyLink(m_types.at(row));
}

} // namespace quorvane
