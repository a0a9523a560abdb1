#include "today/TimelineModel.h"

#include "Formats.h"
#include "components/HexColor.h"
#include "today/Timeline.h"

using namespace Qt::StringLiterals;

namespace quorvane {

TimelineModel::TimelineModel(QObject *parent)
    : AppListModel({&AppModel::snapshotChanged, &AppModel::ticked}, parent)
{}

void TimelineModel::rebuild()
{
    m_now = app() ? app()->now() : QDateTime();
    replaceRows(m_bookings, app() ? app()->today() : QList<Booking>());
}

int TimelineModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_bookings.size());
}

QVariant TimelineModel::data(const QModelIndex &index, int role) const
{
    const AppModel *model = app();
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) || !model)
        return {};
    const Booking &b = m_bookings.at(index.row());
    switch (role) {
    case IdRole:
        return b.id;
    case TimeRole:
        return Formats::format(b.start, u"jmm"_s, model->locale(), model->zone());
    case Qt::DisplayRole:
    case NameRole:
        return b.name;
    case DetailRole:
        return Timeline::detail(model->typeTitle(b.type), Timeline::minutes(b));
    case ColorRole:
        return HexColor::parse(model->typeColorHex(b.type));
    case PastRole:
        return Timeline::isPast(b, m_now);
    case LiveRole:
        return Timeline::isLive(b, m_now);
    case ShowsJoinRole:
        return Timeline::showsJoin(b, m_now);
    case JoinNameRole:
        return Timeline::joinAccessibleName(b.name);
    default:
        return {};
    }
}

QHash<int, QByteArray> TimelineModel::roleNames() const
{
    return {{IdRole, "bookingId"},  {TimeRole, "time"},           {NameRole, "name"},
            {DetailRole, "detail"}, {ColorRole, "typeColor"},     {PastRole, "past"},
            {LiveRole, "live"},     {ShowsJoinRole, "showsJoin"}, {JoinNameRole, "joinName"}};
}

void TimelineModel::join(int row)
{
    if (app() && row >= 0 && row < m_bookings.size())
        app()->join(m_bookings.at(row));
}

} // namespace quorvane
