#include "share/ShareDaysModel.h"

namespace quorvane {

void ShareDaysModel::setDays(QList<Day> days)
{
    beginResetModel();
    qDeleteAll(m_chips);
    m_chips.clear();
    m_headings.clear();
    for (Day &day : days) {
        m_headings.append(day.heading);
        auto *chips = new ShareChipsModel(this);
        chips->setChips(std::move(day.chips));
        m_chips.append(chips);
    }
    endResetModel();
}

void ShareDaysModel::setPicked(const QList<Slot> &picked)
{
    for (ShareChipsModel *chips : std::as_const(m_chips))
        chips->setPicked(picked);
}

int ShareDaysModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_chips.size());
}

QVariant ShareDaysModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case HeadingRole:
        return m_headings.at(index.row());
    case ChipsRole:
        return QVariant::fromValue(static_cast<QObject *>(m_chips.at(index.row())));
    default:
        return {};
    }
}

QHash<int, QByteArray> ShareDaysModel::roleNames() const
{
    return {{HeadingRole, "heading"}, {ChipsRole, "chips"}};
}

} // namespace quorvane
