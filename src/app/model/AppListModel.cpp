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

} // namespace quorvane
