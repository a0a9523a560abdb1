#pragma once

#include "Booking.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

class AppModel;

// Today's bookings as timeline rows, in the model's order, re-judged at every model change
// and minute tick: a row dims once its meeting ends and its marker is green while it runs.
class TimelineModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(quorvane::AppModel *app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        IdRole = Qt::UserRole + 1,
        TimeRole,   // start, short time
        NameRole,   // the guest
        DetailRole, // "Intro call · 30 min"
        ColorRole,  // the type's colour
        PastRole,
        LiveRole,
        ShowsJoinRole,
        JoinNameRole, // accessible name of the join button
    };
    Q_ENUM(Role)

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] AppModel *app() const { return m_app; }
    void setApp(AppModel *app);
    [[nodiscard]] int count() const { return int(m_bookings.size()); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void join(int row);

Q_SIGNALS:
    void appChanged();
    void countChanged();

private:
    void reload();

    QPointer<AppModel> m_app;
    QList<Booking> m_bookings;
    QDateTime m_now;
};

} // namespace quorvane
