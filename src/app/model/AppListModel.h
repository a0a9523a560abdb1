#pragma once

#include "model/AppBinding.h"

#include <QAbstractListModel>
#include <QList>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include <QHash>

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

    // Like replaceRows(), for lists whose rows have an identity (`key`) and keep their relative
    // order from one reading to the next, as a filtered list does: rows that stay keep their
    // delegates even when rows before them come or go, and hear of a change only when they
    // differ. A row that moved against the others is taken out and put back.
    template <typename Row, typename KeyOf>
    void mergeRows(QList<Row> &rows, QList<Row> next, KeyOf keyOf);

private:
    // Emits dataChanged for the kept rows in `changed`, one signal per run of neighbours.
    void emitChanged(const QList<int> &changed);

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

template <typename Row, typename KeyOf>
void AppListModel::mergeRows(QList<Row> &rows, QList<Row> next, KeyOf keyOf)
{
    using Key = std::decay_t<decltype(keyOf(next.first()))>;
    QHash<Key, int> position; // in `next`
    position.reserve(next.size());
    for (int i = 0; i < next.size(); ++i)
        position.insert(keyOf(next.at(i)), i);

    // Out go the rows that are gone, and those that would break the order of the kept ones;
    // runs of neighbours leave together, from the back so that the indexes hold.
    QList<bool> keep(rows.size());
    for (int i = 0, last = -1; i < rows.size(); ++i) {
        const int at = position.value(keyOf(rows.at(i)), -1);
        keep[i] = at > last;
        if (keep[i])
            last = at;
    }
    const qsizetype before = rows.size();
    for (int end = int(rows.size()); end > 0;) {
        if (keep.at(end - 1)) {
            --end;
            continue;
        }
        int first = end - 1;
        while (first > 0 && !keep.at(first - 1))
            --first;
        beginRemoveRows({}, first, end - 1);
        rows.remove(first, end - first);
        endRemoveRows();
        end = first;
    }

    // The kept rows are now in `next`'s order; the new ones go in between.
    QList<int> changed;
    int i = 0;
    for (int j = 0; j < next.size();) {
        if (i < rows.size() && keyOf(rows.at(i)) == keyOf(next.at(j))) {
            if (!(rows.at(i) == next.at(j))) {
                rows[i] = std::move(next[j]);
                changed.append(i);
            }
            ++i;
            ++j;
            continue;
        }
        int end = j; // the run of new rows that goes in at i
        while (end < next.size() && (i >= rows.size() || keyOf(rows.at(i)) != keyOf(next.at(end))))
            ++end;
        beginInsertRows({}, i, i + (end - j) - 1);
        for (int k = j; k < end; ++k)
            rows.insert(i + (k - j), std::move(next[k]));
        endInsertRows();
        i += end - j;
        j = end;
    }
    emitChanged(changed);
    if (rows.size() != before)
        Q_EMIT countChanged();
}

} // namespace quorvane
