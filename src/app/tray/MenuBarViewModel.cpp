#include "tray/MenuBarViewModel.h"

#include "Formats.h"
#include "model/AppBinding.h"

using namespace Qt::StringLiterals;

namespace quorvane {

void MenuBarViewModel::setApp(AppModel *app)
{
    const auto signals = {&AppModel::snapshotChanged, &AppModel::ticked, &AppModel::bannerChanged,
                          &AppModel::needsSignInChanged};
    if (!AppBinding::follow(m_app, app, this, signals, &MenuBarViewModel::reload))
        return;
    Q_EMIT appChanged();
    reload();
}

void MenuBarViewModel::reload()
{
    if (m_app) {
        m_content = PopoverContent::select(m_app->needsSignIn(), m_app->account().has_value(), m_app->banner());
        m_dateText = Formats::format(m_app->now(), u"EEEEMMMd"_s, m_app->locale(), m_app->zone());
    } else {
        m_content = {};
        m_dateText.clear();
    }
    Q_EMIT changed();
}

} // namespace quorvane
