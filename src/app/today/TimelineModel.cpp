#include "today/TimelineModel.h"

#include "Formats.h"
#include "components/HexColor.h"
#include "model/AppBinding.h"
#include "today/Timeline.h"

using namespace Qt::StringLiterals;

namespace quorvane {

void TimelineModel::setApp(AppModel *app)
{
    if (!AppBinding::follow(m_app, app, this, {&AppModel::snapshotChanged, &AppModel::ticked}, &TimelineModel::reload))
        return;
    Q_EMIT appChanged();
    reload();
}

void TimelineModel::reload()
{
    QList<Booking> bookings = m_app ? m_app->today() : QList<Booking>();
    m_now = m_app ? m_app->now() : QDateTime();
    const auto ids = [](const QList<Booking> &list) {
        QStringList out;
        for (const Booking &b : list)
            out.append(b.id);
        return out;
    };
    // The same rows keep their delegates; only what they show is told to change.
    if (ids(bookings) == ids(m_bookings)) {
        m_bookings = std::move(bookings);
        if (!m_bookings.isEmpty())
            Q_EMIT dataChanged(index(0), index(int(m_bookings.size()) - 1));
        return;
    }
    const int before = count();
    beginResetModel();
    m_bookings = std::move(bookings);
    endResetModel();
    if (count() != before)
        Q_EMIT countChanged();
}

int TimelineModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant TimelineModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) || !m_app)
        return {};
    const Booking &b = m_bookings.at(index.row());
    switch (role) {
    case IdRole:
        return b.id;
    case TimeRole:
        return Formats::format(b.start, u"jmm"_s, m_app->locale(), m_app->zone());
    case Qt::DisplayRole:
    case NameRole:
        return b.name;
    case DetailRole:
        return Timeline::detail(m_app->typeTitle(b.type), Timeline::minutes(b));
    case ColorRole:
        return HexColor::parse(m_app->typeColorHex(b.type));
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
    if (m_app && row >= 0 && row < count())
        m_app->join(m_bookings.at(row));
}

} // namespace quorvane
