#pragma once

#include "model/AppSection.h"
#include "shell/AppWindow.h"
#include "shell/QmlType.h"

#include <QList>

namespace quorvane {

// Which QML type draws each section and each window: the one place a new screen or window is
// named. A section or window without a row shows a panel saying what will be there.
namespace ViewTable {
// The screen of a main-window section.
[[nodiscard]] QmlType section(AppSection section);
// The window itself.
[[nodiscard]] QmlType window(AppWindow::Id window);
// What fills a window whose frame belongs to the shell (everything but the main window).
[[nodiscard]] QmlType content(AppWindow::Id window);
// The sheet over the main window that makes a new poll.
[[nodiscard]] QmlType newPollSheet();
// The command palette over the main window.
[[nodiscard]] QmlType commandPalette();
// What the main window shows in place of every screen while nobody is signed in: made only
// then, so that a returning user's start never compiles it.
[[nodiscard]] QmlType signInHero();
// The tray icon's popover.
[[nodiscard]] QmlType popover();
// Every row above, for the self-test to make each once.
[[nodiscard]] QList<QmlType> all();
} // namespace ViewTable

} // namespace quorvane
