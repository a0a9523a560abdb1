#include "model/AppListModel.h"

namespace quorvane {

AppListModel::AppListModel(QList<AppBinding::Signal> followed, QObject *parent)
    : QAbstractListModel(parent)
    , m_signals(std::move(followed))
{}

void AppListModel::setApp(AppModel *app)
{
    if (!AppBinding::follow(m_app, app, this, m_signals, &AppListModel::rebuild))
        return;
    rebuild();
    Q_EMIT appChanged();
}

void AppListModel::emitChanged(const QList<int> &changed)
{
    for (qsizetype first = 0; first < changed.size();) {
        qsizetype last = first;
        while (last + 1 < changed.size() && changed.at(last + 1) == changed.at(last) + 1)
            ++last;
        Q_EMIT dataChanged(index(changed.at(first)), index(changed.at(last)));
        first = last + 1;
    }
}

} // namespace quorvane
