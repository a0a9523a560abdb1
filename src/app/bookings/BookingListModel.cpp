#include "bookings/BookingListModel.h"

#include "Formats.h"
#include "components/HexColor.h"
#include "components/Tint.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace quorvane {

namespace {
struct Text {
    Q_DECLARE_TR_FUNCTIONS(BookingListModel)
};
} // namespace

BookingListModel::BookingListModel(QObject *parent)
    : AppListModel({&AppModel::snapshotChanged, &AppModel::ticked}, parent)
{
    m_empty = Bookings::emptyState(m_filter, m_query);
}

void BookingListModel::setQuery(const QString &query)
{
    if (query == m_query)
        return;
    m_query = query;
    rebuild();
    Q_EMIT queryChanged();
}

void BookingListModel::setFilter(Bookings::Filter filter)
{
    if (filter == m_filter)
        return;
    m_filter = filter;
    rebuild();
    Q_EMIT filterChanged();
}

void BookingListModel::setFilterIndex(int index)
{
    const QList<Bookings::Filter> filters = Bookings::allFilters();
    if (index >= 0 && index < filters.size())
        setFilter(filters.at(index));
}

void BookingListModel::setTypeFilter(const QString &slug)
{
    std::optional<QString> next = slug.isEmpty() ? std::nullopt : std::optional(slug);
    if (next == m_typeFilter)
        return;
    m_typeFilter = std::move(next);
    rebuild();
    Q_EMIT typeFilterChanged();
}

QStringList BookingListModel::filterTitles() const
{
    QStringList out;
    for (const Bookings::Filter f : Bookings::allFilters())
        out << Bookings::title(f);
    return out;
}

QString BookingListModel::typeMenuTitle() const
{
    if (!m_typeFilter)
        return Text::tr("All types");
    return app() ? app()->typeTitle(*m_typeFilter) : *m_typeFilter;
}

void BookingListModel::rebuild()
{
    QList<Row> next;
    if (const AppModel *model = app()) {
        next.reserve(m_rows.size());
        const Instant now = model->now();
        m_now = now;
        QHash<QString, QString> titles;
        const auto typeTitle = [&](const QString &slug) {
            auto found = titles.find(slug);
            if (found == titles.end())
                found = titles.insert(slug, model->typeTitle(slug));
            return *found;
        };
        QList<Booking> shown =
            Bookings::filtered(model->allBookings(), m_filter, m_typeFilter, m_query, now, model->locale(), typeTitle);
        QHash<QString, QString> colors;
        for (Bookings::Day &day :
             Bookings::grouped(std::move(shown), m_filter, WeekCalendar(model->locale(), model->zone()))) {
            bool first = true;
            for (Booking &b : day.bookings) {
                auto color = colors.find(b.type);
                if (color == colors.end())
                    color = colors.insert(b.type, model->typeColorHex(b.type));
                QString title = typeTitle(b.type);
                const bool ahead = b.end > now;
                const bool ended = b.end < now;
                next.append(
                    Row{std::move(b), day.day, std::exchange(first, false), std::move(title), *color, ahead, ended});
            }
        }
    }
    mergeRows(m_rows, std::move(next), [](const Row &row) { return row.booking.id; });

    // A type renamed on the server renames the menu too.
    if (const QString title = typeMenuTitle(); title != m_typeMenuTitle) {
        m_typeMenuTitle = title;
        Q_EMIT typeMenuTitleChanged();
    }
    const Bookings::EmptyState empty = Bookings::emptyState(m_filter, m_query);
    if (empty.title != m_empty.title) {
        m_empty = empty;
        Q_EMIT emptyStateChanged();
    }
}

int BookingListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant BookingListModel::data(const QModelIndex &index, int role) const
{
    const AppModel *model = app();
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) || !model)
        return {};
    const Row &row = m_rows.at(index.row());
    const Booking &b = row.booking;
    // Worked out for the role asked for only: a link is parsed for the actions.
    const auto status = [&] { return StatusLabel::of(b, m_now); };
    const auto actions = [&] { return Bookings::actions(b, m_now); };
    const auto detail = [&] {
        return u"%1 \u00B7 %2"_s.arg(Formats::format(b.start, u"jmm"_s, model->locale(), model->zone()), row.typeTitle);
    };
    switch (role) {
    case IdRole:
        return b.id;
    case DayTitleRole:
        return row.firstOfDay ? dayTitle(row.day) : QString();
    case Qt::DisplayRole:
    case NameRole:
        return b.name;
    case DetailRole:
        return detail();
    case ColorRole:
        return HexColor::parse(row.colorHex);
    case StatusRole:
        return status().value_or(StatusLabel{}).text;
    case StatusTintRole:
        return Tints::color(status().value_or(StatusLabel{}).tint);
    case CancelledRole:
        return b.status == BookingStatus::cancelled;
    case ShowsVideoRole:
        return actions().join;
    case AccessibleRole: {
        QStringList parts{b.name};
        if (const std::optional<StatusLabel> label = status())
            parts << label->text;
        parts << detail();
        if (actions().join)
            parts << Text::tr("Has Google Meet link");
        return parts.join(u", "_s);
    }
    case EmailLabelRole:
        return Bookings::emailLabel(b.name);
    case CanJoinRole:
        return actions().join;
    case CanRescheduleRole:
        return actions().reschedule;
    case NoShowTitleRole:
        if (!actions().noShow)
            return QString();
        return b.noShow.value_or(false) ? Text::tr("Clear No-show") : Text::tr("Mark as No-show");
    default:
        return {};
    }
}

QHash<int, QByteArray> BookingListModel::roleNames() const
{
    return {{IdRole, "bookingId"},
            {DayTitleRole, "dayTitle"},
            {NameRole, "name"},
            {DetailRole, "detail"},
            {ColorRole, "typeColor"},
            {StatusRole, "status"},
            {StatusTintRole, "statusTint"},
            {CancelledRole, "cancelled"},
            {ShowsVideoRole, "showsVideo"},
            {AccessibleRole, "accessibleText"},
            {EmailLabelRole, "emailLabel"},
            {CanJoinRole, "canJoin"},
            {CanRescheduleRole, "canReschedule"},
            {NoShowTitleRole, "noShowTitle"}};
}

int BookingListModel::indexOf(const QString &id) const
{
    if (id.isEmpty())
        return -1;
    const auto found =
        std::find_if(m_rows.cbegin(), m_rows.cend(), [&](const Row &row) { return row.booking.id == id; });
    return found == m_rows.cend() ? -1 : int(found - m_rows.cbegin());
}

QString BookingListModel::idAt(int row) const
{
    const Booking *b = at(row);
    return b ? b->id : QString();
}

QString BookingListModel::dayTitle(QDate date) const
{
    // Noon of that day in the zone: clear of any change of the clocks at night.
    const QDateTime noon(date, QTime(12, 0), QTimeZone(app()->zone().toUtf8()));
    return Formats::format(noon, u"EEEEMMMMd"_s, app()->locale(), app()->zone());
}

const Booking *BookingListModel::at(int row) const
{
    return app() && row >= 0 && row < m_rows.size() ? &m_rows.at(row).booking : nullptr;
}

void BookingListModel::join(int row)
{
    if (const Booking *b = at(row))
        app()->join(*b);
}

void BookingListModel::copyEmail(int row)
{
    if (const Booking *b = at(row))
        app()->copy(b->email);
}

void BookingListModel::email(int row)
{
    if (const Booking *b = at(row))
        app()->email(*b);
}

void BookingListModel::rescheduleMessage(int row)
{
    if (const Booking *b = at(row))
        app()->rescheduleMessage(*b);
}

void BookingListModel::cancel(int row)
{
    if (const Booking *b = at(row))
        app()->cancel(*b);
}

void BookingListModel::toggleNoShow(int row)
{
    if (const Booking *b = at(row))
        app()->setNoShow(*b, !b->noShow.value_or(false));
}

} // namespace quorvane
