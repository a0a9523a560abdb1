#pragma once

#include "model/AppListModel.h"

#include "Booking.h"
#include "bookings/Bookings.h"
#include "components/StatusLabel.h"

#include <QDate>

#include <utility>

#include <optional>

namespace quorvane {

// The bookings screen's list: the bookings that the filter, the event type and the search
// show, one row each, day by day; the first row of a day carries the day's heading. The screen's three choices live here. Rows keep their
// delegates across a refresh, a tick and each letter typed: only rows that come, go or
// change are touched, so the selection and the scroll position stay.
class BookingListModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString query READ query WRITE setQuery NOTIFY queryChanged)
    // The segmented filter, as an index into filterTitles: Upcoming, Past, Cancelled, All.
    Q_PROPERTY(int filter READ filterIndex WRITE setFilterIndex NOTIFY filterChanged)
    // The slug of the one event type to show; empty for all.
    Q_PROPERTY(QString typeFilter READ typeFilter WRITE setTypeFilter NOTIFY typeFilterChanged)
    Q_PROPERTY(QStringList filterTitles READ filterTitles CONSTANT)
    Q_PROPERTY(QString typeMenuTitle READ typeMenuTitle NOTIFY typeMenuTitleChanged)
    Q_PROPERTY(QString emptyTitle READ emptyTitle NOTIFY emptyStateChanged)
    Q_PROPERTY(QString emptySymbol READ emptySymbol NOTIFY emptyStateChanged)
    Q_PROPERTY(QString emptyDescription READ emptyDescription NOTIFY emptyStateChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        DayTitleRole,   // "Tuesday, March 10" on the first row of a day, else empty
        NameRole,       // the guest
        DetailRole,     // "9:30 AM · Intro call"
        ColorRole,      // the type's colour
        StatusRole,     // the pill's text, or empty
        StatusTintRole, // the pill's colour
        CancelledRole,  // drawn struck through
        ShowsVideoRole, // the green camera: it has a meeting link and is on
        AccessibleRole, // the row read as one
        EmailLabelRole, // "Email Ann"
        CanJoinRole,    // context menu entries, as of the last tick
        CanRescheduleRole,
        NoShowTitleRole, // "Mark as No-show", "Clear No-show", or empty
    };
    Q_ENUM(Role)

    explicit BookingListModel(QObject *parent = nullptr);

    [[nodiscard]] const QString &query() const { return m_query; }
    void setQuery(const QString &query);
    [[nodiscard]] Bookings::Filter filter() const { return m_filter; }
    void setFilter(Bookings::Filter filter);
    [[nodiscard]] int filterIndex() const { return int(m_filter); }
    void setFilterIndex(int index);
    [[nodiscard]] QString typeFilter() const { return m_typeFilter.value_or(QString()); }
    void setTypeFilter(const QString &slug);
    [[nodiscard]] QStringList filterTitles() const;
    [[nodiscard]] QString typeMenuTitle() const;
    [[nodiscard]] QString emptyTitle() const { return m_empty.title; }
    [[nodiscard]] QString emptySymbol() const { return m_empty.symbol; }
    [[nodiscard]] QString emptyDescription() const { return m_empty.description; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // The row of a booking, or -1 when the list doesn't show it.
    Q_INVOKABLE int indexOf(const QString &id) const;
    Q_INVOKABLE QString idAt(int row) const;

    // The context menu's commands on one row.
    Q_INVOKABLE void join(int row);
    Q_INVOKABLE void copyEmail(int row);
    Q_INVOKABLE void email(int row);
    Q_INVOKABLE void rescheduleMessage(int row);
    Q_INVOKABLE void cancel(int row);
    Q_INVOKABLE void toggleNoShow(int row);

Q_SIGNALS:
    void queryChanged();
    void filterChanged();
    void typeFilterChanged();
    void typeMenuTitleChanged();
    void emptyStateChanged();

protected:
    void rebuild() override;

private:
    struct Row {
        Booking booking;
        QDate day;
        bool firstOfDay = false;
        QString typeTitle;
        QString colorHex;
        // Where the booking stood at the last rebuild: what its pill and menu depend on
        // besides the booking itself. The rest is worked out when a view asks.
        bool ahead = false; // it ends after now
        bool ended = false; // it ended before now
        bool operator==(const Row &) const = default;
    };
    [[nodiscard]] const Booking *at(int row) const;
    [[nodiscard]] QString dayTitle(QDate day) const;

    Instant m_now;
    QString m_query;
    Bookings::Filter m_filter = Bookings::Filter::upcoming;
    std::optional<QString> m_typeFilter;
    Bookings::EmptyState m_empty;
    QString m_typeMenuTitle; // as last announced
    QList<Row> m_rows;
};

} // namespace quorvane
