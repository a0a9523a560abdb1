#include "availability/TimeZoneListModel.h"

#include "TextSearch.h"

#include <QTimeZone>

#include <algorithm>

namespace quorvane {

TimeZoneListModel::TimeZoneListModel(QObject *parent)
    : TimeZoneListModel(systemZones(), parent)
{}

TimeZoneListModel::TimeZoneListModel(QStringList zones, QObject *parent)
    : QAbstractListModel(parent)
    , m_zones(std::move(zones))
{
    m_names.reserve(m_zones.size());
    for (const QString &zone : std::as_const(m_zones))
        m_names << QString(zone).replace(u'_', u' ');
    filter();
}

QStringList TimeZoneListModel::systemZones()
{
    QStringList zones;
    for (const QByteArray &id : QTimeZone::availableTimeZoneIds())
        zones << QString::fromUtf8(id);
    std::sort(zones.begin(), zones.end());
    zones.erase(std::unique(zones.begin(), zones.end()), zones.end());
    return zones;
}

int TimeZoneListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

QVariant TimeZoneListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const int at = m_shown.at(index.row());
    switch (role) {
    case ZoneRole:
        return m_zones.at(at);
    case NameRole:
    case Qt::DisplayRole:
        return m_names.at(at);
    default:
        return {};
    }
}

QHash<int, QByteArray> TimeZoneListModel::roleNames() const
{
    return {{ZoneRole, "zone"}, {NameRole, "name"}};
}

void TimeZoneListModel::setQuery(const QString &query)
{
    if (query == m_query)
        return;
    m_query = query;
    filter();
}

int TimeZoneListModel::indexOf(const QString &zone) const
{
    const qsizetype at = m_zones.indexOf(zone);
    return at < 0 ? -1 : int(m_shown.indexOf(int(at)));
}

QString TimeZoneListModel::zoneAt(int row) const
{
    return row >= 0 && row < m_shown.size() ? m_zones.at(m_shown.at(row)) : QString();
}

void TimeZoneListModel::filter()
{
    beginResetModel();
    m_shown.clear();
    // Typed with blanks or underscores alike: "new york" and "new_york" find New_York.
    const TextSearch search(QString(m_query.trimmed()).replace(u'_', u' '), QLocale().name());
    for (int i = 0; i < m_names.size(); ++i) {
        if (search.isEmpty() || search.foundIn(m_names.at(i)))
            m_shown << i;
    }
    endResetModel();
    Q_EMIT queryChanged();
}

} // namespace quorvane
