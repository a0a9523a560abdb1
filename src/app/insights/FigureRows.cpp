#include "insights/FigureRows.h"

namespace quorvane {

FigureRows::FigureRows(QList<QByteArray> roles, QObject *parent)
    : QAbstractListModel(parent)
    , m_roles(std::move(roles))
{}

int FigureRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant FigureRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    return m_rows.at(index.row()).value(role - Qt::UserRole - 1);
}

QHash<int, QByteArray> FigureRows::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int i = 0; i < m_roles.size(); ++i)
        names.insert(Qt::UserRole + 1 + i, m_roles.at(i));
    return names;
}

void FigureRows::setRows(QList<QVariantList> rows)
{
    const bool counted = rows.size() != m_rows.size();
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
    if (counted)
        Q_EMIT countChanged();
}

} // namespace quorvane
