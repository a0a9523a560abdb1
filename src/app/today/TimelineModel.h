#pragma once

#include "model/AppListModel.h"

#include "Booking.h"

namespace quorvane {

// Today's bookings as timeline rows, in the model's order, re-judged at every model change
// and minute tick: a row dims once its meeting ends and its marker is green while it runs.
class TimelineModel : public AppListModel
{
    Q_OBJECT
    QML_ELEMENT

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

    explicit TimelineModel(QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    Q_INVOKABLE void join(int row);

protected:
    void rebuild() override;

private:
    QList<Booking> m_bookings;
    QDateTime m_now;
};

} // namespace quorvane
