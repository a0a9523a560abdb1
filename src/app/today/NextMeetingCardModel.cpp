#include "today/NextMeetingCardModel.h"

#include "components/HexColor.h"
#include "today/NextMeeting.h"

namespace quorvane {

NextMeetingCardModel::NextMeetingCardModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged, &AppModel::ticked}, parent)
{}

void NextMeetingCardModel::recompute()
{
    m_booking = m_app ? m_app->next() : std::nullopt;
    m_date = m_app ? m_app->now() : QDateTime();
}

bool NextMeetingCardModel::isNow() const
{
    return shown() && NextMeeting::isNow(*m_booking, m_date);
}

QString NextMeetingCardModel::caption() const
{
    return shown() ? NextMeeting::caption(*m_booking, m_date) : QString();
}

QString NextMeetingCardModel::headline() const
{
    return shown() ? NextMeeting::headline(m_app->typeTitle(m_booking->type), m_booking->name) : QString();
}

QString NextMeetingCardModel::timeRange() const
{
    return shown() ? NextMeeting::timeRange(*m_booking, m_app->locale(), m_app->zone()) : QString();
}

QColor NextMeetingCardModel::color() const
{
    return shown() ? HexColor::parse(m_app->typeColorHex(m_booking->type)) : QColor();
}

QString NextMeetingCardModel::joinName() const
{
    return shown() ? NextMeeting::joinAccessibleName(m_booking->name) : QString();
}

void NextMeetingCardModel::join()
{
    if (shown())
        m_app->join(*m_booking);
}

} // namespace quorvane
