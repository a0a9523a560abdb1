#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

namespace quorvane {

// The rows of one chart: a few named values each, set all at once when the figures change.
// The chart is drawn afresh then, so the rows are reset rather than merged.
class FigureRows : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Chart rows come from the view models.")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    FigureRows(QList<QByteArray> roles, QObject *parent);

    [[nodiscard]] int count() const { return int(m_rows.size()); }
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // Each row holds one value per role, in the order of the roles.
    void setRows(QList<QVariantList> rows);

Q_SIGNALS:
    void countChanged();

private:
    QList<QByteArray> m_roles;
    QList<QVariantList> m_rows;
};

} // namespace quorvane
