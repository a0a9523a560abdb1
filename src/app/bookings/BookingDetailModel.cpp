#include "bookings/BookingDetailModel.h"

#include "Formats.h"
#include "bookings/Bookings.h"
#include "components/HexColor.h"
#include "components/StatusLabel.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(BookingDetailModel)
};
} // namespace

BookingDetailModel::BookingDetailModel(QObject *parent)
    : AppViewModel({&AppModel::snapshotChanged, &AppModel::ticked, &AppModel::selectedBookingChanged}, parent)
{}

void BookingDetailModel::recompute()
{
    m_booking.reset();
    if (!m_app)
        return;
    m_now = m_app->now();
    if (const std::optional<QString> &id = m_app->selectedBooking())
        m_booking = m_app->booking(*id);
}

QString BookingDetailModel::typeTitle() const
{
    return m_booking ? m_app->typeTitle(m_booking->type) : QString();
}

QColor BookingDetailModel::typeColor() const
{
    return m_booking ? HexColor::parse(m_app->typeColorHex(m_booking->type)) : QColor();
}

QString BookingDetailModel::status() const
{
    const std::optional<StatusLabel> label = m_booking ? StatusLabel::of(*m_booking, m_now) : std::nullopt;
    return label ? label->text : QString();
}

QColor BookingDetailModel::statusTint() const
{
    const std::optional<StatusLabel> label = m_booking ? StatusLabel::of(*m_booking, m_now) : std::nullopt;
    return Tints::color(label ? label->tint : Tint::secondary);
}

QString BookingDetailModel::when() const
{
    if (!m_booking)
        return {};
    return u"%1 \u2013 %2"_s.arg(Formats::format(m_booking->start, u"EEEEMMMMdjmm"_s, m_app->locale(), m_app->zone()),
                                 Formats::format(m_booking->end, u"jmm"_s, m_app->locale(), m_app->zone()));
}

QString BookingDetailModel::theirTime() const
{
    return m_booking ? Bookings::theirTime(*m_booking, m_app->locale(), m_app->zone()) : QString();
}

QString BookingDetailModel::meet() const
{
    return m_booking ? m_booking->meet.value_or(QString()) : QString();
}

QUrl BookingDetailModel::meetURL() const
{
    return m_booking ? m_booking->meetURL().value_or(QUrl()) : QUrl();
}

QString BookingDetailModel::booked() const
{
    if (!m_booking || !m_booking->created)
        return {};
    return Formats::relativeTime(*m_booking->created, m_now, m_app->locale());
}

QStringList BookingDetailModel::questions() const
{
    QStringList out;
    if (m_booking && m_booking->answers)
        for (const Answer &answer : *m_booking->answers)
            out << answer.q;
    return out;
}

QStringList BookingDetailModel::answers() const
{
    QStringList out;
    if (m_booking && m_booking->answers)
        for (const Answer &answer : *m_booking->answers)
            out << answer.a;
    return out;
}

QString BookingDetailModel::notes() const
{
    return m_booking ? m_booking->notes.value_or(QString()) : QString();
}

bool BookingDetailModel::showsJoin() const
{
    return m_booking && Bookings::joinsFromDetail(*m_booking, m_now);
}

bool BookingDetailModel::showsReschedule() const
{
    return m_booking && Bookings::actions(*m_booking, m_now).reschedule;
}

bool BookingDetailModel::showsNoShow() const
{
    return m_booking && Bookings::actions(*m_booking, m_now).noShow;
}

QString BookingDetailModel::cancelTitle() const
{
    return m_booking ? Text::tr("Cancel %1 with %2?").arg(typeTitle(), m_booking->name) : QString();
}

QString BookingDetailModel::cancelMessage() const
{
    if (!m_booking)
        return {};
    return Text::tr("The event is removed from your calendar and %1 gets a cancellation email from Google Calendar.")
        .arg(m_booking->name);
}

void BookingDetailModel::join()
{
    if (m_booking)
        m_app->join(*m_booking);
}

void BookingDetailModel::rescheduleMessage()
{
    if (m_booking)
        m_app->rescheduleMessage(*m_booking);
}

void BookingDetailModel::cancel()
{
    if (m_booking)
        m_app->cancel(*m_booking);
}

void BookingDetailModel::setNoShow(bool value)
{
    if (m_booking)
        m_app->setNoShow(*m_booking, value);
}

} // namespace quorvane
