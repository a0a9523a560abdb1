#include "share/ShareChipsModel.h"

namespace quorvane {

void ShareChipsModel::setChips(QList<Chip> chips)
{
    beginResetModel();
    m_chips = std::move(chips);
    endResetModel();
}

void ShareChipsModel::setPicked(const QList<Slot> &picked)
{
    for (int row = 0; row < m_chips.size(); ++row) {
        Chip &chip = m_chips[row];
        const bool now = picked.contains(chip.slot);
        if (chip.picked == now)
            continue;
        chip.picked = now;
        Q_EMIT dataChanged(index(row), index(row), {PickedRole});
    }
}

int ShareChipsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_chips.size());
}

QVariant ShareChipsModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Chip &chip = m_chips.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case TimeRole:
        return chip.time;
    case AccessibleNameRole:
        return chip.accessibleName;
    case BestRole:
        return chip.best;
    case PickedRole:
        return chip.picked;
    default:
        return {};
    }
}

QHash<int, QByteArray> ShareChipsModel::roleNames() const
{
    return {{TimeRole, "time"}, {AccessibleNameRole, "accessibleName"}, {BestRole, "best"}, {PickedRole, "picked"}};
}

} // namespace quorvane
