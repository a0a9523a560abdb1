#pragma once

#include "model/AppListModel.h"
#include "model/AppViewModel.h"

#include "CalendarItem.h"

namespace quorvane {

// The Calendar pane's first section and "New bookings": the connection, the server's error,
// where new bookings go and whether they get Meet links. The calendars' sections only show
// while connected, with calendars from the server and the host's settings at hand.
class CalendarSettingsModel : public AppViewModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool connected READ connected NOTIFY changed)
    Q_PROPERTY(QString statusText READ statusText NOTIFY changed)
    Q_PROPERTY(QString error READ error NOTIFY changed) // empty: none
    Q_PROPERTY(bool showsCalendars READ showsCalendars NOTIFY changed)
    // Where "Add to" stands among the writable calendars; -1 when it names none of them.
    Q_PROPERTY(int bookingIndex READ bookingIndex NOTIFY changed)
    Q_PROPERTY(bool addMeet READ addMeet WRITE setAddMeet NOTIFY changed)

public:
    explicit CalendarSettingsModel(QObject *parent = nullptr);

    [[nodiscard]] bool connected() const;
    [[nodiscard]] QString statusText() const;
    [[nodiscard]] QString error() const;
    [[nodiscard]] bool showsCalendars() const;
    [[nodiscard]] int bookingIndex() const;
    [[nodiscard]] bool addMeet() const;
    void setAddMeet(bool on);

    // "Add to": the writable calendar at `index` takes the new bookings.
    Q_INVOKABLE void chooseBooking(int index);
    // "Connect" or "Reconnect".
    Q_INVOKABLE void connectCalendar();

    // The calendars of the snapshot; empty without any.
    [[nodiscard]] static QList<CalendarItem> calendars(const AppModel *app);
};

// The server's calendars as switches ("Check these calendars for conflicts"), or with
// `writableOnly` the choices of "Add to".
class CalendarListModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool writableOnly READ writableOnly WRITE setWritableOnly NOTIFY writableOnlyChanged)

public:
    enum Role {
        KeyRole = Qt::UserRole + 1, // "primary" or the calendar's id
        LabelRole,
        OnRole, // checked for conflicts
    };
    Q_ENUM(Role)

    explicit CalendarListModel(QObject *parent = nullptr);

    [[nodiscard]] bool writableOnly() const { return m_writableOnly; }
    void setWritableOnly(bool on);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // The switch of a row: one edit of the host's settings.
    Q_INVOKABLE void setChecked(int row, bool on);

Q_SIGNALS:
    void writableOnlyChanged();

protected:
    void rebuild() override;

private:
    struct Row {
        CalendarItem calendar;
        bool on = false;
        bool operator==(const Row &) const = default;
    };

    bool m_writableOnly = false;
    QList<Row> m_rows;
};

} // namespace quorvane
