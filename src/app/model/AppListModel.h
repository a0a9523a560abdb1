#pragma once

#include "model/AppBinding.h"

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

namespace quorvane {

// A list whose rows are read from the application model, set as the `app` property from QML.
// The rows are rebuilt when the model is set and on each of the model's signals a subclass
// names. A rebuild keeps the rows in place: the rows at positions that still exist are told
// their data changed, and only the difference in length is removed or added at the end, so
// the delegates on screen, and with them hover, focus and selection, survive a refresh.
class AppListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(quorvane::AppModel *app READ app WRITE setApp NOTIFY appChanged)
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    [[nodiscard]] AppModel *app() const { return m_app; }
    void setApp(AppModel *app);
    [[nodiscard]] int count() const { return rowCount(); }

Q_SIGNALS:
    void appChanged();
    void countChanged();

protected:
    // `followed`: the model's signals after which the rows are read again.
    AppListModel(QList<AppBinding::Signal> followed, QObject *parent);

    // Reads the rows again from app(), which may be null, and hands them to replaceRows().
    virtual void rebuild() = 0;

    // Puts `next` in place of `rows`, the storage behind rowCount() and data(), with the
    // notifications a view needs. `roles` narrows what the kept rows are told changed.
    template <typename Row>
    void replaceRows(QList<Row> &rows, QList<Row> next, const QList<int> &roles = {});

private:
    QList<AppBinding::Signal> m_signals;
    QPointer<AppModel> m_app;
};

template <typename Row>
void AppListModel::replaceRows(QList<Row> &rows, QList<Row> next, const QList<int> &roles)
{
    const qsizetype before = rows.size();
    const qsizetype after = next.size();
    // Rows are cut before the kept ones change and added after, so each signal describes the
    // rows exactly as they stand at that moment.
    if (after < before) {
        beginRemoveRows({}, int(after), int(before) - 1);
        rows.resize(after);
        endRemoveRows();
    }
    const qsizetype kept = std::min(before, after);
    std::move(next.begin(), next.begin() + kept, rows.begin());
    if (kept > 0)
        Q_EMIT dataChanged(index(0), index(int(kept) - 1), roles);
    if (after > before) {
        beginInsertRows({}, int(before), int(after) - 1);
        rows.append(QList<Row>(std::make_move_iterator(next.begin() + kept), std::make_move_iterator(next.end())));
        endInsertRows();
    }
    if (after != before)
        Q_EMIT countChanged();
}

} // namespace quorvane
