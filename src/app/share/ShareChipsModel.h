#pragma once

#include "Slot.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The chips of one day in Share Times: up to twelve times, a star on the day's best, and
// which of them are picked.
class ShareChipsModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Each day of Share Times makes its own.")

public:
    enum Role {
        TimeRole = Qt::UserRole + 1, // "9:30 AM"
        AccessibleNameRole,          // "Tuesday 9:30 AM, best of the day"
        BestRole,
        PickedRole,
    };
    Q_ENUM(Role)

    struct Chip {
        Slot slot;
        QString time;
        QString accessibleName;
        bool best = false;
        bool picked = false;
    };

    using QAbstractListModel::QAbstractListModel;

    void setChips(QList<Chip> chips);
    // Marks the chips equal to one of `picked` in all three fields.
    void setPicked(const QList<Slot> &picked);
    [[nodiscard]] const QList<Chip> &chips() const { return m_chips; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QList<Chip> m_chips;
};

} // namespace quorvane
