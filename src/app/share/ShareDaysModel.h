#pragma once

#include "share/ShareChipsModel.h"

#include <QAbstractListModel>
#include <QList>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The days of Share Times, each with its heading and its chips.
class ShareDaysModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Share Times makes it.")

public:
    enum Role {
        HeadingRole = Qt::UserRole + 1, // "Tuesday, Mar 10"
        ChipsRole,                      // the day's ShareChipsModel
    };
    Q_ENUM(Role)

    struct Day {
        QString heading;
        QList<ShareChipsModel::Chip> chips;
    };

    using QAbstractListModel::QAbstractListModel;

    void setDays(QList<Day> days);
    void setPicked(const QList<Slot> &picked);
    [[nodiscard]] ShareChipsModel *chipsAt(int row) const { return m_chips.value(row); }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

private:
    QStringList m_headings;
    QList<ShareChipsModel *> m_chips; // owned
};

} // namespace quorvane
