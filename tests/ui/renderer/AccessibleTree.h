#pragma once

#include <QStringList>

class QWindow;

namespace quorvane::test {

// What a screen reader finds in a window: every control it can reach with the keyboard needs
// a name to say and a role.
namespace AccessibleTree {

// A screen reader's bridge is on (waiting a moment for it): only then do Qt Quick's controls
// give their names (from their texts) and roles.
[[nodiscard]] bool readerActive();

// Each focusable control without a name or a role, as the path to it ("main/MainToolBar[1]/
// refreshButton: no name").
[[nodiscard]] QStringList unnamedControls(QWindow *window);

} // namespace AccessibleTree

} // namespace quorvane::test
