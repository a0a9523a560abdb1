#include "model/AppViewModel.h"

namespace quorvane {

AppViewModel::AppViewModel(QList<AppBinding::Signal> signals, QObject *parent)
    : QObject(parent)
    , m_signals(std::move(signals))
{}

void AppViewModel::setApp(AppModel *app)
{
    if (!AppBinding::follow(m_app, app, this, m_signals, &AppViewModel::reload))
        return;
    Q_EMIT appChanged();
    reload();
}

void AppViewModel::reload()
{
    recompute();
    Q_EMIT changed();
}

} // namespace quorvane
