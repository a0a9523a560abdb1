#include "tray/MenuBarViewModel.h"

#include "Formats.h"

using namespace Qt::StringLiterals;

namespace quorvane {

MenuBarViewModel::MenuBarViewModel(QObject *parent)
    : AppViewModel(
        {&AppModel::snapshotChanged, &AppModel::ticked, &AppModel::bannerChanged, &AppModel::needsSignInChanged},
        parent)
{}

void MenuBarViewModel::recompute()
{
    if (m_app) {
        m_content = PopoverContent::select(m_app->needsSignIn(), m_app->account().has_value(), m_app->banner());
        m_dateText = Formats::format(m_app->now(), u"EEEEMMMd"_s, m_app->locale(), m_app->zone());
    } else {
        m_content = {};
        m_dateText.clear();
    }
}

} // namespace quorvane
